#ifndef RECORDING_H
#define RECORDING_H

#include "JournalWriter.h"
#include "PluginRecorder.h"

class PluginHost;

/// A journal of what one plug-in is given, from before it is initialised.
class Recording
{
public:
    /// Puts a recorder before the plug-in. Throws InputError when the file cannot be started.
    ///
    /// @param host  must not use the plug-in once the recording is gone
    /// @param clock must outlive the recording
    Recording(const QString &fileName, PluginHost &host, const Clock &clock);

    /// Writes the journal's end. Throws HostError when some of the journal could not be written.
    void finish();

private:
    JournalWriter m_journal;
    PluginRecorder m_recorder;
};

#endif
