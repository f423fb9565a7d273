#include "PluginSystemMonitor.h"

#include "PluginSystemMonitorCommon.h"
#include "PluginSystemMonitor_Log.h"

using namespace PluginSystemMonitorCommon;

namespace {

const auto RESULT_SUCCESS = QLatin1String("0");
// The same text as the signal that carries the answer.
const auto METHOD_IS_SUPPORT_SYSTEM_MONITOR = QLatin1String("isSupportSystemMonitor");

} // namespace

void PluginSystemMonitor::EventProcessor(QString eventName, qint64, int, int, QVariant data,
                                         const QString &sourceID)
{
    if (listChanges.isBusy()) {
        return listChanges.postpone(
            [=, this] { EventProcessor(eventName, 0, 0, 0, data, sourceID); });
    }
    const EntryLog entryLog = traceEntry("EventProcessor");

    if (eventName == EVENT_SYSTEM_RES_CHANGED) {
        handleSystemResChgEvent(data, sourceID);
        Q_EMIT notifySystemResourceUpdated();
    } else if (eventName == EVENT_SERVER_REACHING_LIMITED) {
        handleServerReachingLimitedEvent(data);
    } else if (eventName == EVENT_SNOOZE_ERROR) {
        handleSnoozeError(data);
    } else if (eventName == EVENT_DEVICE_STILL_ERROR) {
        snoozeExpiredAndShowError(data);
    } else if (eventName == EVENT_REMOVE_SNOOZE) {
        deleteSnooze(data.toString());
    }
}

void PluginSystemMonitor::EventProcessorEx(QString, ConfigBase *, qint64, int, int, QVariant,
                                           const QString &)
{
    const EntryLog entryLog = traceEntry("EventProcessorEx");
}

void PluginSystemMonitor::CommandProcessor(QString command, QVariant data, void *context,
                                           QString resultCode, QString, bool, const QString &)
{
    if (command == METHOD_IS_SUPPORT_SYSTEM_MONITOR)
        handleSupportResponse(context, resultCode);
    else if (command == METHOD_SET_SNOOZE)
        handleSetSnoozeResponse(data, resultCode == RESULT_SUCCESS);
    else if (command == METHOD_GET_SNOOZE_LIST)
        replaceSnoozes(data.toStringList());
}

void PluginSystemMonitor::CommandProcessorEx(QString, ConfigBase *, QVariant, void *, QString,
                                             QString, bool, const QString &)
{
    const EntryLog entryLog = traceEntry("CommandProcessorEx");
}
