#include "SignalLog.h"

#include "PrintedValue.h"

#include <QMetaMethod>

SignalLog::SignalLog(QObject *sender, CallLog &log)
    : m_senderClass(sender->metaObject())
    , m_log(log)
{
    const int slotOffset = QObject::staticMetaObject.methodCount();
    for (int i = m_senderClass->methodOffset(); i < m_senderClass->methodCount(); ++i) {
        if (m_senderClass->method(i).methodType() == QMetaMethod::Signal)
            QMetaObject::connect(sender, i, this, slotOffset + i, Qt::DirectConnection);
    }
}

// The class has no meta-object of its own: the slot that a signal is connected to is its index.
int SignalLog::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    const int signalIndex = QObject::qt_metacall(call, id, arguments);
    if (call != QMetaObject::InvokeMetaMethod || signalIndex < 0)
        return signalIndex;
    record(signalIndex, arguments);
    return -1;
}

void SignalLog::record(int signalIndex, void **arguments)
{
    const QMetaMethod signal = m_senderClass->method(signalIndex);
    QStringList values;
    for (int i = 0; i < signal.parameterCount(); ++i)
        values.append(printedValue(QVariant(signal.parameterMetaType(i), arguments[i + 1])));
    m_log.add(QStringLiteral("%1(%2)").arg(QString::fromUtf8(signal.name()),
                                           values.join(QStringLiteral(", "))));
}
