#include "PluginSystemMonitor.h"

#include "PluginSystemMonitorCommon.h"
#include "PluginSystemMonitor_Log.h"
#include "SystemErrorModel.h"

#include <QDateTime>

using namespace PluginSystemMonitorCommon;

namespace {

const auto OPERATIONAL_LOG_PLUGIN_ID = QLatin1String("D8C607070A81469B8CA4FF2E107DB6AB");

/// What the snooze events and the response to "setSnooze" tell of a snooze.
struct Snooze
{
    explicit Snooze(const QVariantMap &data)
        : nodeID(data.value(ARG_SNOOZE_NODE_ID).toString())
        , type(static_cast<ErrorType>(data.value(ARG_SNOOZE_TYPE).toInt()))
    { }

    QString nodeID;
    ErrorType type;
};

} // namespace

void PluginSystemMonitor::handleSnoozeError(const QVariant &data)
{
    const Snooze snooze(data.toMap());
    const QModelIndex error = existError(snooze.type, snooze.nodeID, QString());
    if (!snoozedDeviceList.contains(snooze.nodeID))
        snoozedDeviceList.append(snooze.nodeID);
    if (error.isValid())
        RemoveSystemErrorModelRow(error);
}

void PluginSystemMonitor::snoozeExpiredAndShowError(const QVariant &data)
{
    const Snooze snooze(data.toMap());
    // First, or the error would be suppressed once more.
    deleteSnooze(snooze.nodeID);
    if (existError(snooze.type, snooze.nodeID, QString()).isValid())
        return;

    if (snooze.type == StationDisconnected)
        addSystemError(snooze.nodeID, StationDisconnected, QString(), QString());
    else if (snooze.type == CameraDisconnected)
        addCameraError(snooze.nodeID, CameraDisconnected, QString());
}

void PluginSystemMonitor::replaceSnoozes(const QStringList &nodeIDs)
{
    if (listChanges.isBusy())
        return listChanges.postpone([=, this] { replaceSnoozes(nodeIDs); });
    snoozedDeviceList = nodeIDs;
}

void PluginSystemMonitor::deleteSnooze(const QString &nodeID)
{
    if (!snoozedDeviceList.contains(nodeID))
        return;
    if (isTraced(TraceLog::InfoLevel))
        LocalTraceOutFuncPluginSystemMonitor("Delete this Snooze and it wll show up next time %s",
                                             qPrintable(nodeID));
    snoozedDeviceList.removeAll(nodeID);
}

void PluginSystemMonitor::handleSetSnoozeResponse(const QVariant &data, bool success)
{
    Q_EMIT setSnoozeResponse(success);

    // The log keeps the user's wish, whether or not the server granted it.
    QList<QVariant> params = composeOperationMessage(data);
    if (!params.isEmpty())
        addOperationLog(ADD_DASHBOARD_SNOOZE_LOG_NAME, params);
    else if (isTraced(TraceLog::ErrorLevel))
        LocalTraceOutFuncPluginSystemMonitor(
            "%s, Add operation log failed. Can't find snooze item in system error model",
            "CommandProcessor");
}

QList<QVariant> PluginSystemMonitor::composeOperationMessage(QVariant data)
{
    const QVariantMap request = data.toMap();
    const Snooze snooze(request);
    const QModelIndex error = existError(snooze.type, snooze.nodeID, QString());
    if (!error.isValid())
        return {};

    const auto seconds = static_cast<qint64>(request.value(ARG_SNOOZE_TIMESTAMP).toULongLong());
    return {
        error.data(SystemErrorModel::ErrorNameRole),
        error.data(SystemErrorModel::TriggerDeviceNameRole),
        QDateTime::fromSecsSinceEpoch(seconds).toString(QStringLiteral("yyyy/MM/dd hh:mm:ss")),
    };
}

bool PluginSystemMonitor::addOperationLog(const QString &logName, QList<QVariant> &params)
{
    QVariantList wrappedParams;
    for (const QVariant &param : std::as_const(params))
        wrappedParams.append(QVariantMap{{LOG_PARAM, param}});

    bool accepted = false;
    QMetaObject::invokeMethod(pluginObject(OPERATIONAL_LOG_PLUGIN_ID),
                              METHOD_ADD_OPERATIONAL_LOG.toLatin1().constData(),
                              Qt::DirectConnection, Q_RETURN_ARG(bool, accepted),
                              Q_ARG(QString, logName), Q_ARG(QVariantList, wrappedParams));
    return accepted;
}
