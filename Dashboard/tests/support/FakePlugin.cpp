#include "FakePlugin.h"

#include "FakeErrorProxy.h"

namespace {

constexpr int HistoryLength = 60;
constexpr int NetworkType = 2;
constexpr int CameraType = 3;

QString errorName(int type)
{
    static const QStringList names{
        QStringLiteral("CPU utilization over 90%"),
        QStringLiteral("Memory usage over 90%"),
        QStringLiteral("Network usage over 50%"),
        QStringLiteral("Camera disconnected"),
        QStringLiteral("Station disconnected"),
        QStringLiteral("Volume disconnected"),
        QString(),
        QStringLiteral("Insufficient recording days"),
    };
    return names.value(type);
}

QString triggerName(int type, const QStringList &names)
{
    if (names.size() < 2)
        return QStringLiteral("Station: %1").arg(names.value(0));
    const QString word = type == CameraType ? QStringLiteral("Camera") : QStringLiteral("Archive");
    return QStringLiteral("Station: %1 / %2: %3").arg(names.at(0), word, names.at(1));
}

} // namespace

FakePlugin::FakePlugin(QObject *parent)
    : QObject(parent)
{
    errors.setItemRoleNames({
        {StationIDRole, "stationIDRole"},
        {DeviceIDRole, "deviceIDRole"},
        {ErrorTypeRole, "errorTypeRole"},
        {ErrorCategoryRole, "errorCategoryRole"},
        {TimestampRole, "timestampRole"},
        {ErrorNameRole, "errorNameRole"},
        {TriggerDeviceNameRole, "triggerDeviceNameRole"},
        {UniqueIDRole, "uniqueIDRole"},
    });
    usage.setItemRoleNames({
        {TypeRole, "typeRole"},
        {TitleRole, "titleRole"},
        {SubtitleRole, "subtitleRole"},
        {ThresholdRole, "thresholdRole"},
        {UsageListRole, "usageListRole"},
        {BandwidthRole, "bandwidthRole"},
    });
    errors.setParent(this);
    usage.setParent(this);
    resetUsage();
}

QObject *FakePlugin::getSystemErrorModel()
{
    return &errors;
}

QObject *FakePlugin::getSystemErrorSortFilterModel(QObject *parent)
{
    auto *proxy = new FakeErrorProxy(parent);
    proxy->setSourceModel(&errors);
    return proxy;
}

QObject *FakePlugin::getSystemResourceModel()
{
    return &usage;
}

bool FakePlugin::checkSupportSystemMonitor(const QString &stationId)
{
    record(QStringLiteral("checkSupportSystemMonitor %1").arg(stationId));
    return accepting;
}

void FakePlugin::reconnectDisconnectSubstations()
{
    record(QStringLiteral("reconnectDisconnectSubstations"));
}

void FakePlugin::reconnectDisconnectCameras()
{
    record(QStringLiteral("reconnectDisconnectCameras"));
}

bool FakePlugin::setSnooze(const QString &nodeID, qlonglong timestamp, int type)
{
    record(QStringLiteral("setSnooze %1 %2 %3").arg(nodeID).arg(timestamp).arg(type));
    return accepting;
}

QString FakePlugin::focusStationResource() const
{
    return focusStation;
}

void FakePlugin::setFocusStationResource(const QString &stationId)
{
    if (stationId == focusStation)
        return;
    focusStation = stationId;
    resetUsage();
    Q_EMIT focusStationResourceChanged(stationId);
}

void FakePlugin::addError(int type, const QString &stationID, const QString &deviceID,
                          const QStringList &names, qint64 timestamp)
{
    const bool camera = type == CameraType;
    const QString nodeID = camera ? deviceID : stationID;
    const QString subID = camera || deviceID.isEmpty() ? QString() : u'_' + deviceID;
    auto *item = new QStandardItem;
    item->setData(QString::number(type) + u'_' + nodeID + subID, UniqueIDRole);
    item->setData(stationID, StationIDRole);
    item->setData(deviceID, DeviceIDRole);
    item->setData(type, ErrorTypeRole);
    item->setData(camera ? 2 : 1, ErrorCategoryRole);
    item->setData(timestamp, TimestampRole);
    item->setData(errorName(type), ErrorNameRole);
    item->setData(triggerName(type, names), TriggerDeviceNameRole);
    errors.appendRow(item);
}

void FakePlugin::addBareError(const QString &uniqueID)
{
    auto *item = new QStandardItem;
    item->setData(uniqueID, UniqueIDRole);
    item->setData(1, ErrorCategoryRole);
    errors.appendRow(item);
}

void FakePlugin::addCameraErrors(int count, qint64 newest)
{
    for (int i = 0; i < count; ++i) {
        const QString station = QStringLiteral("st%1").arg(i % 10);
        addError(CameraType, station, QStringLiteral("%1/cam%2").arg(station).arg(i),
                 {QStringLiteral("Station %1").arg(i % 10), QStringLiteral("Camera %1").arg(i)},
                 newest - qint64{1000} * i);
    }
}

void FakePlugin::removeError(const QString &uniqueID)
{
    if (const QStandardItem *item = findError(uniqueID))
        errors.removeRow(item->row());
}

void FakePlugin::clearErrors()
{
    errors.removeRows(0, errors.rowCount());
}

void FakePlugin::setTimestamp(const QString &uniqueID, qint64 timestamp)
{
    if (QStandardItem *item = findError(uniqueID))
        item->setData(timestamp, TimestampRole);
}

void FakePlugin::report(int cpu, int memory, const QVariantList &networks)
{
    pushUsage(0, cpu);
    pushUsage(1, memory);
    if (!networks.isEmpty() && usage.rowCount() == 3
        && usage.item(2)->data(SubtitleRole).toString().isEmpty()) {
        usage.removeRow(2);
        for (const QVariant &network : networks) {
            const QString name =
                network.toMap().value(QStringLiteral("networkInterface")).toString();
            appendUsageRow(NetworkType, QStringLiteral("Network usage"), name, 50);
        }
    }
    for (const QVariant &network : networks)
        pushNetworkUsage(network.toMap());
    Q_EMIT systemResourceChanged(cpu, memory, networks);
    Q_EMIT notifySystemResourceUpdated();
}

QStringList FakePlugin::calls() const
{
    return recordedCalls;
}

void FakePlugin::forgetCalls()
{
    recordedCalls.clear();
    Q_EMIT callsChanged();
}

void FakePlugin::record(const QString &call)
{
    recordedCalls.append(call);
    Q_EMIT callsChanged();
}

void FakePlugin::resetUsage()
{
    usage.clear();
    appendUsageRow(0, QStringLiteral("CPU usage"), QString(), 90);
    appendUsageRow(1, QStringLiteral("Memory usage"), QString(), 90);
    appendUsageRow(NetworkType, QStringLiteral("Network usage"), QString(), 50);
}

void FakePlugin::appendUsageRow(int type, const QString &title, const QString &subtitle,
                                int threshold)
{
    auto *item = new QStandardItem;
    item->setData(type, TypeRole);
    item->setData(title, TitleRole);
    item->setData(subtitle, SubtitleRole);
    item->setData(threshold, ThresholdRole);
    item->setData(QVariantList(HistoryLength, 0), UsageListRole);
    item->setData(0, BandwidthRole);
    usage.appendRow(item);
}

void FakePlugin::pushUsage(int row, double value)
{
    QVariantList history = usage.item(row)->data(UsageListRole).toList();
    history.removeFirst();
    history.append(value);
    usage.item(row)->setData(history, UsageListRole);
}

// The plug-in passes over the whole list once for every network row, so each interface's history
// advances by as many entries as there are network rows.
void FakePlugin::pushNetworkUsage(const QVariantMap &network)
{
    for (int row = 2; row < usage.rowCount(); ++row) {
        if (usage.item(row)->data(SubtitleRole)
            != network.value(QStringLiteral("networkInterface")))
            continue;
        for (int i = 2; i < usage.rowCount(); ++i)
            pushUsage(row, network.value(QStringLiteral("networkPercentage")).toDouble());
        usage.item(row)->setData(network.value(QStringLiteral("networkBandwidth")).toDouble(),
                                 BandwidthRole);
    }
}

QStandardItem *FakePlugin::findError(const QString &uniqueID) const
{
    const QModelIndexList hits =
        errors.match(errors.index(0, 0), UniqueIDRole, uniqueID, 1, Qt::MatchExactly);
    return hits.isEmpty() ? nullptr : errors.itemFromIndex(hits.constFirst());
}
