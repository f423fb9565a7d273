#ifndef SIGNALLOG_H
#define SIGNALLOG_H

#include "CallLog.h"

#include <QObject>

/// Logs every signal that an object's own class declares, as `setSnoozeResponse(true)`.
///
/// Works by the object's meta-object alone, so the class need not be known to the test. Signals
/// are logged directly, in the order in which they are emitted.
class SignalLog : public QObject
{
public:
    /// Connects to every signal of @p sender. The log must outlive this object; the sender need
    /// not.
    SignalLog(QObject *sender, CallLog &log);

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    void record(int signalIndex, void **arguments);

    const QMetaObject *m_senderClass;
    CallLog &m_log;
};

#endif
