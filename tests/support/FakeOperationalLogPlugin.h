#ifndef FAKEOPERATIONALLOGPLUGIN_H
#define FAKEOPERATIONALLOGPLUGIN_H

#include "CallLog.h"

#include <QObject>
#include <QVariantList>

/// The plug-in that keeps the operational log; logs what it is given.
class FakeOperationalLogPlugin : public QObject
{
    Q_OBJECT

public:
    explicit FakeOperationalLogPlugin(CallLog &log)
        : m_log(log)
    { }

    /// Logs `addOperationalLog "AddDashboardSnooze" [{"param": ...}, ...]`.
    Q_INVOKABLE bool addOperationalLog(const QString &logName, const QVariantList &parameters);

    bool accepts = true; ///< the answer to every entry

private:
    CallLog &m_log;
};

#endif
