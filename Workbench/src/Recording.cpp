#include "Recording.h"

#include "HostError.h"
#include "PluginHost.h"

Recording::Recording(const QString &fileName, PluginHost &host, const Clock &clock)
    : m_journal(fileName, host.pluginId(), clock)
    , m_recorder(*host.plugin(), m_journal)
{
    host.setFront(m_recorder);
}

void Recording::finish()
{
    m_recorder.finish();
    if (!m_journal.failure().isEmpty())
        throw HostError(m_journal.failure());
}
