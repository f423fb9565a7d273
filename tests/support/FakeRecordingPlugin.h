#ifndef FAKERECORDINGPLUGIN_H
#define FAKERECORDINGPLUGIN_H

#include "CallLog.h"

#include <QObject>

/// The plug-in that manages recordings; logs what it is asked.
class FakeRecordingPlugin : public QObject
{
    Q_OBJECT

public:
    explicit FakeRecordingPlugin(CallLog &log)
        : m_log(log)
    { }

    /// Logs `reloadStorageUsageInfo "st1"`.
    Q_INVOKABLE void reloadStorageUsageInfo(const QString &stationID);

private:
    CallLog &m_log;
};

#endif
