#ifndef TESTEDPLUGIN_H
#define TESTEDPLUGIN_H

#include "PluginSystemMonitor.h"

/// The plug-in with its protected operations and members within a test's reach.
///
/// Private operations are called as the host calls them, by name.
class TestedPlugin : public PluginSystemMonitor
{
public:
    using PluginSystemMonitor::findDeviceName;
    using PluginSystemMonitor::getErrorName;
    using PluginSystemMonitor::getTriggerDeviceName;
    using PluginSystemMonitor::isCameraInTopologyModel;
    using PluginSystemMonitor::isStationInTopologyModel;
    using PluginSystemMonitor::uniqueId;

    using PluginSystemMonitor::appendSystemErrorModel;
    using PluginSystemMonitor::clearSystemErrorModel;
    using PluginSystemMonitor::createErrorListModel;
    using PluginSystemMonitor::removeErrorFromModel;
    using PluginSystemMonitor::RemoveSystemErrorModelRow;

    using PluginSystemMonitor::addCameraError;
    using PluginSystemMonitor::addStorageError;
    using PluginSystemMonitor::addSystemError;
    using PluginSystemMonitor::existError;
    using PluginSystemMonitor::recursiveAppendStatusError;
    using PluginSystemMonitor::removeStationFromErrorModel;

    using PluginSystemMonitor::deleteSnooze;
    using PluginSystemMonitor::handleServerReachingLimitedEvent;
    using PluginSystemMonitor::handleSnoozeError;
    using PluginSystemMonitor::handleSystemResChgEvent;
    using PluginSystemMonitor::snoozeExpiredAndShowError;

    using PluginSystemMonitor::addOperationLog;
    using PluginSystemMonitor::composeOperationMessage;

    using PluginSystemMonitor::cpuThreshold;
    using PluginSystemMonitor::errorModel;
    using PluginSystemMonitor::focusStationId;
    using PluginSystemMonitor::indexMap;
    using PluginSystemMonitor::initNodeStatusTimer;
    using PluginSystemMonitor::memoryThreshold;
    using PluginSystemMonitor::networkThreshold;
    using PluginSystemMonitor::resourceModelControl;
    using PluginSystemMonitor::resourceMonitor;
    using PluginSystemMonitor::snoozedDeviceList;
    using PluginSystemMonitor::stationErrorNumberTimer;
    using PluginSystemMonitor::stationErrors;
    using PluginSystemMonitor::topologyModel;

    /// Whether an error is listed under its key.
    bool lists(ErrorType type, const QString &id, const QString &subId = QString())
    {
        return existError(type, id, subId).isValid();
    }

    /// Calls a slot or an invokable method by name. Ends the process when there is no such method.
    template <typename... Arguments> void invoke(const char *method, const Arguments &...arguments)
    {
        if (!QMetaObject::invokeMethod(this, method, Qt::DirectConnection, argument(arguments)...))
            qFatal("%s cannot be invoked", method);
    }

private:
    template <typename Type> static QArgument<Type> argument(const Type &value)
    {
        return QArgument<Type>(QMetaType::fromType<Type>().name(), value);
    }
};

#endif
