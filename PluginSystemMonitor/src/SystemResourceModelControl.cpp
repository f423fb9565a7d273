#include "SystemResourceModelControl.h"

#include "PluginSystemMonitorCommon.h"
#include "PluginSystemMonitor_Log.h"

#include <iterator>
#include <utility>

using namespace PluginSystemMonitorCommon;

SystemResourceModelControl::SystemResourceModelControl(int cpuLimit, int memoryLimit,
                                                       int networkLimit, QObject *parent)
    : QObject(parent)
    , cpuThreshold(cpuLimit)
    , memoryThreshold(memoryLimit)
    , networkThreshold(networkLimit)
{
    try {
        resourceModel.reset(new QStandardItemModel(this));
    } catch (...) {
        if (isTraced(TraceLog::ErrorLevel))
            LocalTraceOutFuncPluginSystemMonitor("%s, create QStandardItemModel failed",
                                                 "SystemResourceModelControl");
        throw;
    }
    resourceModel->setItemRoleNames(SystemResourceModelItem::roleNames());
    initialModelData();
}

bool SystemResourceModelControl::initialModelData()
{
    if (changes.isBusy()) {
        changes.postpone([this] { initialModelData(); });
        return true;
    }
    bool isComplete = false;
    changes.perform([&] {
        resourceModel->clear();
        isComplete = appendBaseRows();
        if (isComplete)
            networkRowsPending = true;
    });
    return isComplete;
}

bool SystemResourceModelControl::appendBaseRows()
{
    const std::pair<SystemResourceModelItem::Type, int> kinds[]{
        {SystemResourceModelItem::CpuType, cpuThreshold},
        {SystemResourceModelItem::MemoryType, memoryThreshold},
        {SystemResourceModelItem::NetworkType, networkThreshold},
    };
    for (const auto &[type, threshold] : kinds) {
        QStandardItem *row = createRow(type, QString(), threshold, "initialModelData");
        if (!row)
            return false;
        resourceModel->appendRow(row);
    }
    return true;
}

QStandardItem *SystemResourceModelControl::createRow(SystemResourceModelItem::Type type,
                                                     const QString &subtitle, int threshold,
                                                     const char *caller) const
{
    auto *item = SystemResourceModelItem::create(type, getTitle(type), subtitle, threshold);
    if (!item && isTraced(TraceLog::ErrorLevel))
        LocalTraceOutFuncPluginSystemMonitor("%s, call SystemResourceModelItem create failed",
                                             caller);
    return item;
}

void SystemResourceModelControl::updateNetworkModalData(QList<QVariant> networkUsageList)
{
    if (!networkRowsPending || networkUsageList.isEmpty())
        return;

    if (QStandardItem *firstNetworkRow = findNetworkRow()) {
        const QVariantMap usage = networkUsageList.takeFirst().toMap();
        firstNetworkRow->setData(usage.value(KEY_NETWORK_INTERFACE),
                                 SystemResourceModelItem::SubtitleRole);
    }
    for (const QVariant &entry : std::as_const(networkUsageList)) {
        QStandardItem *row = createRow(SystemResourceModelItem::NetworkType,
                                       entry.toMap().value(KEY_NETWORK_INTERFACE).toString(),
                                       networkThreshold, "updateNetworkModalData");
        if (row)
            resourceModel->appendRow(row);
    }
    networkRowsPending = false;
}

void SystemResourceModelControl::updateUsage(int cpuPercentage, int memoryPercentage,
                                             const QList<QVariant> &networkUsageList)
{
    if (changes.isBusy()) {
        return changes.postpone(
            [=, this] { updateUsage(cpuPercentage, memoryPercentage, networkUsageList); });
    }
    if (resourceModel->rowCount() == 0)
        initialModelData();
    changes.perform([&] { pushSample(cpuPercentage, memoryPercentage, networkUsageList); });
}

void SystemResourceModelControl::pushSample(int cpuPercentage, int memoryPercentage,
                                            const QList<QVariant> &networkUsageList)
{
    updateNetworkModalData(networkUsageList);
    for (int row = 0; row < resourceModel->rowCount(); ++row) {
        // A row that others inserted bare gets its item here.
        QStandardItem *item = resourceModel->itemFromIndex(resourceModel->index(row, 0));
        if (!item)
            return;
        switch (item->data(SystemResourceModelItem::TypeRole).toInt()) {
        case SystemResourceModelItem::CpuType:
            updateUsageList<int>(item, cpuPercentage);
            break;
        case SystemResourceModelItem::MemoryType:
            updateUsageList<int>(item, memoryPercentage);
            break;
        default:
            // Once for every network row, over all interfaces: the histories' pace depends on it.
            updateNetworkUsage(networkUsageList);
            break;
        }
    }
}

void SystemResourceModelControl::updateNetworkUsage(const QList<QVariant> &networkUsageList)
{
    for (const QVariant &entry : networkUsageList) {
        const QVariantMap usage = entry.toMap();
        QStandardItem *item = findInterface(usage.value(KEY_NETWORK_INTERFACE).toString());
        if (!item)
            continue;
        // Whoever is told of the first value may remove the row.
        const QPersistentModelIndex row = item->index();
        updateUsageList<double>(item, usage.value(KEY_NETWORK_PERCENTAGE).toDouble());
        resourceModel->setData(row, usage.value(KEY_NETWORK_BANDWIDTH).toDouble(),
                               SystemResourceModelItem::BandwidthRole);
    }
}

QStandardItem *SystemResourceModelControl::findNetworkRow() const
{
    const QModelIndexList hits = resourceModel->match(
        resourceModel->index(0, 0), SystemResourceModelItem::TypeRole,
        SystemResourceModelItem::NetworkType, 1, Qt::MatchStartsWith | Qt::MatchWrap);
    return hits.isEmpty() ? nullptr : resourceModel->itemFromIndex(hits.first());
}

QStandardItem *SystemResourceModelControl::findInterface(const QVariant &name) const
{
    // Asked for each interface in each pass: the model's own search costs more than the update.
    for (int row = 0; row < resourceModel->rowCount(); ++row) {
        QStandardItem *item = resourceModel->item(row);
        if (item && item->data(SystemResourceModelItem::SubtitleRole) == name)
            return item;
    }
    return nullptr;
}

QStandardItemModel *SystemResourceModelControl::model() const
{
    return resourceModel.data();
}
