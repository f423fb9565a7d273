#include "PluginSystemMonitor.h"

#include "PluginSystemMonitorCommon.h"
#include "PluginSystemMonitor_Log.h"
#include "SystemErrorModel.h"
#include "TopologyRoles.h"

#include <QStringBuilder>

namespace {

// How long the topology plug-in is given to settle before its model is walked.
constexpr int WalkDelayMs = 5000;

void traceConnectedButNotListed(const QString &stationID)
{
    if (isTraced(TraceLog::ErrorLevel))
        LocalTraceOutFuncPluginSystemMonitor("Station connect but error is not existed [%s]",
                                             qPrintable(stationID));
}

void traceDisconnectedButListed(const QString &stationID)
{
    if (isTraced(TraceLog::ErrorLevel))
        LocalTraceOutFuncPluginSystemMonitor("Station disconnect but error is already existed [%s]",
                                             qPrintable(stationID));
}

} // namespace

// Node status, live

void PluginSystemMonitor::monitorNodeStatus(int type, const QString &nodeID, bool connected)
{
    if (listChanges.isBusy())
        return listChanges.postpone([=, this] { monitorNodeStatus(type, nodeID, connected); });
    if (isStationInTopologyModel(type))
        monitorStationStatus(nodeID, connected);
    else if (isCameraInTopologyModel(type))
        monitorCameraStatus(nodeID, connected, QString());
}

void PluginSystemMonitor::monitorStationStatus(const QString &stationID, bool connected)
{
    if (connected) {
        clearStationDisconnected(stationID);
        return;
    }

    // What a station says of itself and of its cameras is void once it is gone.
    if (isTraced(TraceLog::InfoLevel))
        LocalTraceOutFuncPluginSystemMonitor("Station disconnect remove all error on [%s]",
                                             qPrintable(stationID));
    removeStationFromErrorModel(stationID);
    if (existError(StationDisconnected, stationID, QString()).isValid())
        traceDisconnectedButListed(stationID);
    else
        addSystemError(stationID, StationDisconnected, QString(), QString());
}

void PluginSystemMonitor::clearStationDisconnected(const QString &stationID)
{
    const QModelIndex error = existError(StationDisconnected, stationID, QString());
    if (error.isValid())
        RemoveSystemErrorModelRow(error);
    else
        traceConnectedButNotListed(stationID);
}

void PluginSystemMonitor::monitorCameraStatus(const QString &cameraID, bool connected,
                                              const QString &triggerDeviceName)
{
    const QModelIndex error = existError(CameraDisconnected, cameraID, QString());
    if (connected && error.isValid())
        RemoveSystemErrorModelRow(error);
    else if (!connected && !error.isValid())
        addCameraError(cameraID, CameraDisconnected, triggerDeviceName);
}

// Node status at start-up

void PluginSystemMonitor::monitorNodeStatusForInit(int type, const QString &nodeID, bool connected,
                                                   const QString &triggerDeviceName)
{
    if (listChanges.isBusy()) {
        return listChanges.postpone(
            [=, this] { monitorNodeStatusForInit(type, nodeID, connected, triggerDeviceName); });
    }
    if (isStationInTopologyModel(type))
        monitorStationStatusForInit(nodeID, connected, triggerDeviceName);
    else if (isCameraInTopologyModel(type))
        monitorCameraStatus(nodeID, connected, triggerDeviceName);
}

void PluginSystemMonitor::monitorStationStatusForInit(const QString &stationID, bool connected,
                                                      const QString &triggerDeviceName)
{
    if (connected) {
        clearStationDisconnected(stationID);
    } else if (existError(StationDisconnected, stationID, QString()).isValid()) {
        traceDisconnectedButListed(stationID);
    } else {
        removeStationFromErrorModel(stationID);
        addSystemError(stationID, StationDisconnected, QString(), triggerDeviceName);
    }
}

void PluginSystemMonitor::initNodeStatusErrorTimer(bool)
{
    if (isTraced(TraceLog::InfoLevel))
        LocalTraceOutFuncPluginSystemMonitor("=== Start initial node status ===");
    initNodeStatusTimer.start(WalkDelayMs);
}

void PluginSystemMonitor::initNodeStatusError()
{
    if (listChanges.isBusy())
        return listChanges.postpone([this] { initNodeStatusError(); });
    if (!topologyModel)
        return;

    if (isTraced(TraceLog::InfoLevel))
        LocalTraceOutFuncPluginSystemMonitor("=== Init node status start ===");
    recursiveAppendStatusError(topologyModel->index(0, 0));
    if (isTraced(TraceLog::InfoLevel))
        LocalTraceOutFuncPluginSystemMonitor("=== Init node status finish ===");
}

void PluginSystemMonitor::recursiveAppendStatusError(const QModelIndex &parent)
{
    // Whoever hears of an error, or is to reload a storage, may change the topology or end it.
    const QPointer<QStandardItemModel> walkedModel = topologyModel;
    const QPersistentModelIndex walkedNode(parent);
    const auto isThere = [&] {
        return walkedModel && walkedModel == topologyModel
               && walkedNode.isValid() == parent.isValid();
    };
    for (int row = 0; isThere() && row < walkedModel->rowCount(walkedNode); ++row) {
        const QModelIndex node = walkedModel->index(row, 0, walkedNode);
        const int type = node.data(Topology::NodeTypeRole).toInt();
        const bool connected = node.data(Topology::ConnectedRole).toBool();
        const QString nodeID = node.data(Topology::NodeIdRole).toString();
        // The name is for an error to be raised; a connected node raises none.
        const QString triggerDeviceName = connected ? QString() : nameInWalk(node, type, nodeID);
        const bool isStation = isStationInTopologyModel(type);
        const QPersistentModelIndex station = isStation ? node : QModelIndex();
        monitorNodeStatusForInit(type, nodeID, connected, triggerDeviceName);

        if (isStation)
            reloadStorageUsage(nodeID);
        if (station.isValid())
            recursiveAppendStatusError(station);
    }
}

QString PluginSystemMonitor::nameInWalk(const QModelIndex &node, int type,
                                        const QString &nodeID) const
{
    QString name = node.data(Topology::DisplayNameRole).toString();
    if (!isCameraInTopologyModel(type))
        return name;
    return parentStationName(nodeID) % QStringLiteral(" - ") % name;
}

void PluginSystemMonitor::reloadStorageUsage(const QString &stationID)
{
    QMetaObject::invokeMethod(pluginObject(RECORDINGMANAGEMENT_PLUGIN_ID),
                              METHOD_RELOAD_STORAGE_USAGE_INFO.toLatin1().constData(),
                              Qt::AutoConnection, Q_ARG(const QString &, stationID));
}

// Storage and recording

void PluginSystemMonitor::monitorVolumeStatus(const QString &nodeID)
{
    if (listChanges.isBusy())
        return listChanges.postpone([=, this] { monitorVolumeStatus(nodeID); });
    if (!existError(VolumeDisconnected, nodeID, QString()).isValid())
        addSystemError(nodeID, VolumeDisconnected, QString(), QString());
}

void PluginSystemMonitor::removeVolumeError(const QString &nodeID)
{
    if (listChanges.isBusy())
        return listChanges.postpone([=, this] { removeVolumeError(nodeID); });
    QList<QStandardItem *> volumeErrors = indexMap.rowsOfStation(nodeID);
    volumeErrors.removeIf([](const QStandardItem *error) {
        return error->data(SystemErrorModel::ErrorTypeRole) != QVariant(VolumeDisconnected);
    });
    removeRows(volumeErrors);
}

void PluginSystemMonitor::monitorInsufficientRecordingDays(const QString &stationID,
                                                           const QString &groupName,
                                                           const QString &groupID)
{
    if (listChanges.isBusy()) {
        return listChanges.postpone(
            [=, this] { monitorInsufficientRecordingDays(stationID, groupName, groupID); });
    }
    const QModelIndex error = existError(InsufficientRecordingDays, stationID, groupID);
    if (error.isValid())
        relabelError(error, storageLabel(stationID, groupName));
    else
        addStorageError(stationID, InsufficientRecordingDays, groupName, groupID);
}

void PluginSystemMonitor::monitorSufficientRecordingGroup(const QString &stationID,
                                                          const QString &groupID)
{
    if (listChanges.isBusy())
        return listChanges.postpone(
            [=, this] { monitorSufficientRecordingGroup(stationID, groupID); });
    const QModelIndex error = existError(InsufficientRecordingDays, stationID, groupID);
    if (error.isValid())
        RemoveSystemErrorModelRow(error);
}

QString PluginSystemMonitor::storageLabel(const QString &stationID, const QString &groupName) const
{
    return QStringLiteral("%1: %2 / %3: %4")
        .arg(QObject::tr("Station"), findDeviceName(stationID), QObject::tr("Archive"), groupName);
}

// Resource thresholds

void PluginSystemMonitor::monitorCPUUsage(const QString &stationID, int usage)
{
    monitorUsage(HighCpuUsage, stationID, usage, cpuThreshold, QString());
}

void PluginSystemMonitor::monitorMemoryUsage(const QString &stationID, int usage)
{
    monitorUsage(HighMemoryUsage, stationID, usage, memoryThreshold, QString());
}

void PluginSystemMonitor::monitorNetworkUsage(const QString &stationID, int usage,
                                              const QString &interfaceName)
{
    monitorUsage(HighNetworkUsage, stationID, usage, networkThreshold, interfaceName);
}

bool PluginSystemMonitor::mayChangeUsageErrors(const QString &stationID, int usage,
                                               int threshold) const
{
    return usage >= threshold || indexMap.mayHoldUsageError(stationID);
}

void PluginSystemMonitor::monitorUsage(ErrorType type, const QString &stationID, int usage,
                                       int threshold, const QString &subId)
{
    if (listChanges.isBusy()) {
        return listChanges.postpone(
            [=, this] { monitorUsage(type, stationID, usage, threshold, subId); });
    }
    if (!mayChangeUsageErrors(stationID, usage, threshold))
        return;

    const bool isHigh = usage >= threshold;
    const QModelIndex error = existError(type, stationID, subId);
    if (isHigh && !error.isValid())
        addSystemError(stationID, type, subId, QString());
    else if (!isHigh && error.isValid())
        RemoveSystemErrorModelRow(error);
}

// Counts

void PluginSystemMonitor::updateStationErrorNumber()
{
    const QMap<QString, int> counts = indexMap.countsByStation();
    stationErrors.clear();
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        stationErrors.append(QVariantMap{
            {QStringLiteral("stationID"), it.key()},
            {QStringLiteral("errorNumber"), it.value()},
        });
    }
    Q_EMIT stationErrorListChanged();
}

QVariantList PluginSystemMonitor::stationErrorList() const
{
    return stationErrors;
}
