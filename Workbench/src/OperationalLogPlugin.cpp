#include "OperationalLogPlugin.h"

#include "Clock.h"
#include "OperationalLogStore.h"

OperationalLogPlugin::OperationalLogPlugin(OperationalLogStore &log, const Clock &clock,
                                           QObject *parent)
    : QObject(parent)
    , m_log(log)
    , m_clock(clock)
{ }

bool OperationalLogPlugin::addOperationalLog(const QString &name, const QVariantList &parameters)
{
    QVariantList values;
    for (const QVariant &parameter : parameters)
        values.append(parameter.toMap().value(QStringLiteral("param")));
    if (!m_log.add({QDateTime::fromMSecsSinceEpoch(m_clock.nowMs()), name, values}))
        return false;
    Q_EMIT entryAdded(name, values);
    return true;
}
