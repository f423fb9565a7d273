#include "PluginSystemMonitor.h"

#include "ISystemResourceMonitor.h"
#include "PluginSystemMonitorCommon.h"
#include "PluginSystemMonitor_Log.h"
#include "SystemResourceModelControl.h"

using namespace PluginSystemMonitorCommon;

namespace {

// A hash, or anything else that would convert, does not qualify.
bool isVariantMap(const QVariant &data)
{
    return data.typeId() == QMetaType::QVariantMap;
}

} // namespace

void PluginSystemMonitor::handleSystemResChgEvent(const QVariant &data, const QString &stationId)
{
    const EntryLog entryLog = traceEntry("handleSystemResChgEvent");

    if (!isVariantMap(data)) {
        if (isTraced(TraceLog::ErrorLevel))
            LocalTraceOutFuncPluginSystemMonitor("%s, event data is invalid",
                                                 "handleSystemResChgEvent");
        return;
    }

    const QVariantMap report = data.toMap();
    const int cpu = report.value(KEY_CPU_PERCENTAGE).toInt();
    const int memory = report.value(KEY_MEM_PERCENTAGE).toInt();
    const QVariantList networkList = report.value(KEY_NETWORK_USAGE_LIST).toList();

    monitorCPUUsage(stationId, cpu);
    monitorMemoryUsage(stationId, memory);
    for (const QVariant &entry : networkList) {
        const QVariantMap usage = entry.toMap();
        const int percentage = usage.value(KEY_NETWORK_PERCENTAGE).toInt();
        if (mayChangeUsageErrors(stationId, percentage, networkThreshold))
            monitorNetworkUsage(stationId, percentage,
                                usage.value(KEY_NETWORK_INTERFACE).toString());
    }

    if (stationId == focusStationId && resourceModelControl) {
        resourceModelControl->updateUsage(cpu, memory, networkList);
        Q_EMIT systemResourceChanged(cpu, memory, networkList);
    }
}

void PluginSystemMonitor::handleServerReachingLimitedEvent(QVariant data)
{
    if (!isVariantMap(data)) {
        if (isTraced(TraceLog::ErrorLevel))
            LocalTraceOutFuncPluginSystemMonitor("%s, event data is invalid",
                                                 "handleServerReachingLimitedEvent");
        return;
    }

    const QVariantMap warning = data.toMap();
    Q_EMIT notifyServerReachingLimited(warning.value(KEY_SERVER_NAME).toString(),
                                       warning.value(KEY_VIRTUAL_SIZE_PERCENTAGE).toDouble());
}

QString PluginSystemMonitor::focusStationResource() const
{
    return focusStationId;
}

void PluginSystemMonitor::setFocusStationResource(const QString &stationId)
{
    if (stationId == focusStationId)
        return;
    focusStationId = stationId;
    if (resourceModelControl)
        resourceModelControl->initialModelData();
    Q_EMIT focusStationResourceChanged(stationId);
}

QObject *PluginSystemMonitor::getSystemResourceModel()
{
    return resourceModelControl ? resourceModelControl->model() : nullptr;
}

void PluginSystemMonitor::setSystemResourceMonitor(
    const QSharedPointer<ISystemResourceMonitor> &monitor)
{
    resourceMonitor = monitor;
    if (!monitor)
        return;
    connect(monitor.data(), &ISystemResourceMonitor::resourceChanged, this,
            &PluginSystemMonitor::clientResourceChanged);
}
