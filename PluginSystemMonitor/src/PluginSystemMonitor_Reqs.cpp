#include "PluginSystemMonitor.h"

#include "FrameworkWrapperBase.h"
#include "PluginSystemMonitorCommon.h"
#include "SystemErrorModel.h"

#include <memory>

using namespace PluginSystemMonitorCommon;

bool PluginSystemMonitor::sendCommand(const QString &command, const QVariant &data, void *context,
                                      const QString &target)
{
    return m_framework
           && m_framework->SendCommand(m_hostHandle, PSSYSTEMMONITOR_PLUGIN_ID, command, data,
                                       context, 0, target);
}

bool PluginSystemMonitor::setSnooze(const QString &nodeID, qlonglong timestamp, int type)
{
    const QVariantMap request{
        {ARG_SNOOZE_NODE_ID, nodeID},
        {ARG_SNOOZE_TIMESTAMP, timestamp},
        {ARG_SNOOZE_TYPE, type},
    };
    return sendCommand(METHOD_SET_SNOOZE, request, nullptr, QString());
}

bool PluginSystemMonitor::checkSupportSystemMonitor(const QString &stationId)
{
    if (!m_framework)
        return false;
    // From here on the context is the answer's to free, and a host may answer what it refused.
    return sendCommand(QStringLiteral("isSupportSystemMonitor"), QVariant(), new QString(stationId),
                       stationId);
}

void PluginSystemMonitor::handleSupportResponse(void *context, const QString &resultCode)
{
    const std::unique_ptr<QString> stationId(static_cast<QString *>(context));
    if (stationId)
        Q_EMIT isSupportSystemMonitor(*stationId, resultCode != FRAMEWORK_INTERNAL_ERROR);
}

QModelIndexList PluginSystemMonitor::errorsOfType(ErrorType type) const
{
    if (!errorModel)
        return {};
    return errorModel->match(errorModel->index(0, 0), SystemErrorModel::ErrorTypeRole,
                             static_cast<int>(type), -1, Qt::MatchExactly | Qt::MatchRecursive);
}

void PluginSystemMonitor::reconnectDisconnectSubstations()
{
    QMap<QString, QStringList> substationsByParent;
    const QModelIndexList errors = errorsOfType(StationDisconnected);
    for (const QModelIndex &error : errors) {
        QStringList path =
            error.data(SystemErrorModel::StationIDRole).toString().split(QLatin1Char('/'));
        const QString substationId = path.takeLast();
        substationsByParent[path.join(QLatin1Char('/'))].append(substationId);
    }

    for (auto it = substationsByParent.cbegin(); it != substationsByParent.cend(); ++it)
        sendCommand(METHOD_RECONNECT_SUBSTATIONS, it.value(), nullptr, it.key());
}

void PluginSystemMonitor::reconnectDisconnectCameras()
{
    // The server takes a list of variants here, where it takes a string list for sub-stations.
    QMap<QString, QVariantList> camerasByStation;
    const QModelIndexList errors = errorsOfType(CameraDisconnected);
    for (const QModelIndex &error : errors) {
        const QString deviceId = error.data(SystemErrorModel::DeviceIDRole).toString();
        const qsizetype slash = deviceId.lastIndexOf(QLatin1Char('/'));
        camerasByStation[getParentStationID(deviceId)].append(deviceId.mid(slash + 1));
    }

    for (auto it = camerasByStation.cbegin(); it != camerasByStation.cend(); ++it)
        sendCommand(METHOD_RECONNECT_CAMERAS, it.value(), nullptr, it.key());
}
