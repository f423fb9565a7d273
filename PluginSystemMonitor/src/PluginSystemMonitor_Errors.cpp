#include "PluginSystemMonitor.h"

#include "ErrorKey.h"
#include "PluginSystemMonitor_Log.h"
#include "SystemErrorItemBuilder.h"
#include "SystemErrorModel.h"
#include "SystemErrorSortFilterModel.h"
#include "TopologyRoles.h"

#include <QDateTime>
#include <QPersistentModelIndex>
#include <QPointer>

#include <new>

namespace {

// How long the list must be quiet before the errors of each station are recounted.
constexpr int RecountDelayMs = 500;

qsizetype endOfParentStationID(const QString &deviceID)
{
    return deviceID.lastIndexOf(QLatin1Char('/'));
}

/// Sets a text, or keeps an equal one: the rows of a storm have many in common.
void share(QVariant &value, const QString &text)
{
    if (text.isEmpty() || value.toString() != text)
        value.setValue(text);
}

} // namespace

QString getParentStationID(const QString &deviceID)
{
    const qsizetype end = endOfParentStationID(deviceID);
    return end < 0 ? QString() : deviceID.left(end);
}

QString PluginSystemMonitor::uniqueId(ErrorType type, const QString &id, const QString &subId) const
{
    return ErrorKey(type, id, subId).toString();
}

QString PluginSystemMonitor::getErrorName(ErrorType type) const
{
    switch (type) {
    case HighCpuUsage:
        return QObject::tr("CPU utilization over %1%").arg(cpuThreshold);
    case HighMemoryUsage:
        return QObject::tr("Memory usage over %1%").arg(memoryThreshold);
    case HighNetworkUsage:
        return QObject::tr("Network usage over %1%").arg(networkThreshold);
    case CameraDisconnected:
        return QObject::tr("Camera disconnected");
    case StationDisconnected:
        return QObject::tr("Station disconnected");
    case VolumeDisconnected:
        return QObject::tr("Volume disconnected");
    case InsufficientRecordingDays:
        return QObject::tr("Insufficient recording days");
    case Reserved:
        break;
    }
    return QString();
}

QString PluginSystemMonitor::getTriggerDeviceName(ErrorCategory category,
                                                  const QString &deviceID) const
{
    if (category != CameraCategory)
        return QStringLiteral("%1: %2").arg(QObject::tr("Station"), findDeviceName(deviceID));

    const QString stationName = parentStationName(deviceID);
    QString cameraName = findDeviceName(deviceID);
    if (cameraName.isEmpty())
        cameraName = QStringLiteral("N/A");
    return QStringLiteral("%1: %2 / %3: %4")
        .arg(QObject::tr("Station"), stationName, QObject::tr("Camera"), cameraName);
}

QString PluginSystemMonitor::findDeviceName(const QString &deviceID) const
{
    topologyIndex.setModel(topologyModel);
    return topologyIndex.find(deviceID)
        .data(Topology::PropertiesRole)
        .toMap()
        .value(QStringLiteral("nameRole"))
        .toString();
}

QString PluginSystemMonitor::parentStationName(const QString &cameraID) const
{
    // Only looked up, for every camera of a storm: no copy of the text.
    const qsizetype length = qMax(qsizetype(0), endOfParentStationID(cameraID));
    return findDeviceName(QString::fromRawData(cameraID.constData(), length));
}

bool PluginSystemMonitor::isCameraInTopologyModel(int nodeType) const
{
    return nodeType == Topology::CameraNode;
}

bool PluginSystemMonitor::isStationInTopologyModel(int nodeType) const
{
    return nodeType == Topology::StationNode;
}

bool PluginSystemMonitor::createErrorListModel()
{
    errorModel = new (std::nothrow) SystemErrorModel(this);
    if (!errorModel)
        return false;

    indexMap.setModel(errorModel);
    const auto scheduleRecount = [this] { stationErrorNumberTimer.start(RecountDelayMs); };
    connect(errorModel, &QAbstractItemModel::rowsInserted, this, scheduleRecount);
    connect(errorModel, &QAbstractItemModel::rowsRemoved, this, scheduleRecount);
    return true;
}

QObject *PluginSystemMonitor::getSystemErrorModel()
{
    return errorModel;
}

QObject *PluginSystemMonitor::getSystemErrorSortFilterModel(QObject *parent)
{
    auto *proxy = new SystemErrorSortFilterModel(parent);
    if (!listChanges.isBusy()) {
        proxy->setSourceModel(errorModel);
        return proxy;
    }
    // Told of the end of a change alone, it would be out of step from the start.
    listChanges.postpone([this, view = QPointer<SystemErrorSortFilterModel>(proxy)] {
        if (view)
            view->setSourceModel(errorModel);
    });
    return proxy;
}

void PluginSystemMonitor::appendSystemErrorModel(const QString &uniqueId, QStandardItem *item)
{
    if (!errorModel) {
        delete item;
        return;
    }
    // Whoever hears of the row may look for it, or remove it: it has its key by then.
    indexMap.announce(uniqueId, item);
    listChanges.perform([&] {
        errorModel->appendRow(item);
        indexMap.announce(QString(), nullptr);
    });
}

void PluginSystemMonitor::RemoveSystemErrorModelRow(const QModelIndex &index)
{
    if (!errorModel)
        return;
    indexMap.remove(index.data(SystemErrorModel::UniqueIDRole).toString());
    listChanges.perform([&] { errorModel->removeRows(index.row(), 1, index.parent()); });
}

void PluginSystemMonitor::relabelError(const QModelIndex &index, const QString &triggerDeviceName)
{
    listChanges.perform([&] {
        errorModel->setData(index, triggerDeviceName, SystemErrorModel::TriggerDeviceNameRole);
    });
}

void PluginSystemMonitor::removeErrorFromModel(const QModelIndex &index)
{
    if (listChanges.isBusy()) {
        listChanges.postpone([this, row = QPersistentModelIndex(index)] {
            if (row.isValid())
                removeErrorFromModel(row);
        });
        return;
    }
    RemoveSystemErrorModelRow(index);
}

void PluginSystemMonitor::removeErrorFromModel(const QString &value, int role, Qt::MatchFlags flags)
{
    if (listChanges.isBusy())
        return listChanges.postpone([=, this] { removeErrorFromModel(value, role, flags); });
    if (!errorModel)
        return;
    const QModelIndexList hits = errorModel->match(errorModel->index(0, 0), role, value, -1, flags);
    const QList<QPersistentModelIndex> rows(hits.cbegin(), hits.cend());
    for (const QPersistentModelIndex &row : rows) {
        if (row.isValid())
            RemoveSystemErrorModelRow(row);
    }
}

void PluginSystemMonitor::clearSystemErrorModel()
{
    if (listChanges.isBusy())
        return listChanges.postpone([this] { clearSystemErrorModel(); });
    if (!errorModel)
        return;
    // From the last row, so that the numbers of the rows still to go stay what they are.
    for (int row = errorModel->rowCount() - 1; row >= 0; --row)
        RemoveSystemErrorModelRow(errorModel->index(row, 0));
}

QModelIndex PluginSystemMonitor::existError(ErrorType type, const QString &id, const QString &subId)
{
    return indexMap.find(ErrorKey(type, id, subId).borrowed());
}

void PluginSystemMonitor::addSystemError(const QString &stationID, ErrorType type,
                                         const QString &deviceID, const QString &triggerDeviceName)
{
    if (type == StationDisconnected && snoozedDeviceList.contains(stationID)) {
        if (isTraced(TraceLog::InfoLevel))
            LocalTraceOutFuncPluginSystemMonitor("Snooze station disconnection error %s",
                                                 qPrintable(stationID));
        return;
    }

    appendError(SystemCategory, type, uniqueId(type, stationID, deviceID), stationID, deviceID,
                triggerDeviceName.isEmpty() ? getTriggerDeviceName(SystemCategory, stationID)
                                            : triggerDeviceName);
}

void PluginSystemMonitor::addCameraError(const QString &deviceID, ErrorType type,
                                         const QString &triggerDeviceName)
{
    if (type == CameraDisconnected && snoozedDeviceList.contains(deviceID)) {
        if (isTraced(TraceLog::InfoLevel))
            LocalTraceOutFuncPluginSystemMonitor("Snooze camera disconnection error %s",
                                                 qPrintable(deviceID));
        return;
    }

    appendError(CameraCategory, type, uniqueId(type, deviceID, QString()),
                getParentStationID(deviceID), deviceID,
                triggerDeviceName.isEmpty() ? getTriggerDeviceName(CameraCategory, deviceID)
                                            : triggerDeviceName);
}

void PluginSystemMonitor::addStorageError(const QString &stationID, ErrorType type,
                                          const QString &groupName, const QString &groupID)
{
    appendError(SystemCategory, type, uniqueId(type, stationID, groupID), stationID, stationID,
                storageLabel(stationID, groupName));
}

void PluginSystemMonitor::appendError(ErrorCategory category, ErrorType type, const QString &key,
                                      const QString &stationID, const QString &deviceID,
                                      const QString &triggerDeviceName)
{
    // The values in the order of their keys: new nodes for every error would cost as much as its
    // row.
    auto value = errorRecord.begin();
    (value++)->setValue(deviceID);
    (value++)->setValue(static_cast<int>(category));
    share(*value++, getErrorName(type));
    (value++)->setValue(static_cast<int>(type));
    (value++)->setValue(key);
    share(*value++, stationID);
    (value++)->setValue(QDateTime::currentMSecsSinceEpoch());
    (value++)->setValue(triggerDeviceName);
    appendSystemErrorModel(key, SystemErrorItemBuilder::create(errorRecord));
}

void PluginSystemMonitor::removeCameraError(const QString &nodeID)
{
    if (listChanges.isBusy())
        return listChanges.postpone([=, this] { removeCameraError(nodeID); });
    removeRows(indexMap.rowsOfDevice(nodeID));
}

void PluginSystemMonitor::removeStationError(const QString &nodeID)
{
    if (listChanges.isBusy())
        return listChanges.postpone([=, this] { removeStationError(nodeID); });
    removeStationFromErrorModel(nodeID);
}

void PluginSystemMonitor::removeStationFromErrorModel(const QString &stationID)
{
    // A prefix, not equality: the errors of the station's cameras and sub-stations go with it.
    removeRows(indexMap.rowsOfStationsStartingWith(stationID));
}

void PluginSystemMonitor::removeRows(const QList<QStandardItem *> &items)
{
    const quint64 newestAge = indexMap.newestAge();
    for (QStandardItem *item : items) {
        // Whoever watches the list may have removed some of them meanwhile, and raised others that
        // stand in their place in memory.
        if (indexMap.contains(item, newestAge))
            RemoveSystemErrorModelRow(errorModel->indexFromItem(item));
    }
}
