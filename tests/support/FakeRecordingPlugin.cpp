#include "FakeRecordingPlugin.h"

#include "PrintedValue.h"

void FakeRecordingPlugin::reloadStorageUsageInfo(const QString &stationID)
{
    m_log.add(QStringLiteral("reloadStorageUsageInfo ") + printedValue(stationID));
    if (onReload)
        onReload();
}
