#include "FakeOperationalLogPlugin.h"

#include "PrintedValue.h"

bool FakeOperationalLogPlugin::addOperationalLog(const QString &logName,
                                                 const QVariantList &parameters)
{
    m_log.add(QStringLiteral("addOperationalLog %1 %2")
                  .arg(printedValue(logName), printedValue(parameters)));
    return accepts;
}
