#ifndef FAKERECORDINGPLUGIN_H
#define FAKERECORDINGPLUGIN_H

#include "CallLog.h"

#include <QObject>

#include <functional>

/// The plug-in that manages recordings; logs what it is asked.
class FakeRecordingPlugin : public QObject
{
    Q_OBJECT

public:
    explicit FakeRecordingPlugin(CallLog &log)
        : m_log(log)
    { }

    /// Logs `reloadStorageUsageInfo "st1"`, then does what the test wants.
    Q_INVOKABLE void reloadStorageUsageInfo(const QString &stationID);

    std::function<void()> onReload; ///< called in the course of every reload; may be empty

private:
    CallLog &m_log;
};

#endif
