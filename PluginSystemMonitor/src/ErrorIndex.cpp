#include "ErrorIndex.h"

#include "SystemErrorModel.h"

#include <QStandardItemModel>

#include <algorithm>
#include <functional>

namespace {

template <typename Compare>
QList<QStandardItem *> sortedByRow(const QList<QStandardItem *> &items, Compare compare)
{
    QList<std::pair<int, QStandardItem *>> rows;
    rows.reserve(items.size());
    for (QStandardItem *item : items)
        rows.emplaceBack(item->row(), item);
    std::sort(rows.begin(), rows.end(), [compare](const auto &left, const auto &right) {
        return compare(left.first, right.first);
    });

    QList<QStandardItem *> sorted;
    sorted.reserve(rows.size());
    for (const auto &[row, item] : std::as_const(rows))
        sorted.append(item);
    return sorted;
}

bool mayHoldIds(const QList<int> &roles)
{
    return roles.isEmpty() || roles.contains(SystemErrorModel::StationIDRole)
           || roles.contains(SystemErrorModel::DeviceIDRole);
}

} // namespace

void ErrorIndex::setModel(QStandardItemModel *model)
{
    m_model = model;
    using Model = QAbstractItemModel;
    // The rows of the list have no children; what lies below them is of no concern.
    connect(model, &Model::rowsInserted, this,
            [this](const QModelIndex &parent, int first, int last) {
                if (!parent.isValid())
                    trackRows(first, last);
            });
    connect(model, &Model::rowsAboutToBeRemoved, this,
            [this](const QModelIndex &parent, int first, int last) {
                ++m_removals;
                if (!parent.isValid())
                    untrackRows(first, last);
            });
    connect(model, &Model::rowsRemoved, this, &ErrorIndex::endRemoval);
    connect(model, &Model::dataChanged, this,
            [this](const QModelIndex &from, const QModelIndex &to, const QList<int> &roles) {
                if (!from.parent().isValid() && mayHoldIds(roles))
                    refileRows(from.row(), to.row());
            });

    // Items may be replaced or gone after these, which nobody does to the error list in earnest.
    connect(model, &Model::layoutChanged, this, &ErrorIndex::trackAnew);
    connect(model, &Model::columnsInserted, this, &ErrorIndex::trackAnew);
    connect(model, &Model::columnsRemoved, this, &ErrorIndex::trackAnew);
    connect(model, &Model::modelReset, this, &ErrorIndex::trackAnew);
    connect(model, &Model::modelAboutToBeReset, this, &ErrorIndex::clear);
    connect(model, &Model::columnsAboutToBeRemoved, this,
            [this](const QModelIndex &parent, int first) {
                if (!parent.isValid() && first == 0)
                    clear();
            });
    trackAnew();
}

void ErrorIndex::insert(const QString &key, QStandardItem *item)
{
    const auto it = m_rows.find(item);
    if (it == m_rows.end())
        return;
    const auto old = m_itemByKey.constFind(it->key);
    if (old != m_itemByKey.cend() && old.value() == item)
        m_itemByKey.erase(old);
    it->key = key;
    m_itemByKey.insert(key, item);
}

void ErrorIndex::remove(const QString &key)
{
    m_itemByKey.remove(key);
}

QModelIndex ErrorIndex::find(const QString &key) const
{
    const auto it = m_itemByKey.constFind(key);
    return it == m_itemByKey.cend() ? QModelIndex() : m_model->indexFromItem(it.value());
}

QList<QStandardItem *> ErrorIndex::rowsOfStationsStartingWith(const QString &prefix) const
{
    // Every id begins with an empty prefix, a null id too, where startsWith() says otherwise.
    const auto belongs = [&prefix](const QString &stationID) {
        return prefix.isEmpty() || stationID.startsWith(prefix);
    };
    QList<QStandardItem *> items;
    for (auto it = m_itemsByStation.lowerBound(prefix);
         it != m_itemsByStation.cend() && belongs(it.key()); ++it)
        items.append(it.value().values());
    return sortedByRow(items, std::greater<>());
}

QList<QStandardItem *> ErrorIndex::rowsOfStation(const QString &stationID) const
{
    return sortedByRow(m_itemsByStation.value(stationID).values(), std::less<>());
}

QList<QStandardItem *> ErrorIndex::rowsOfDevice(const QString &deviceID) const
{
    QList<QStandardItem *> items;
    for (auto it = m_itemsByDevice.lower_bound({deviceID, nullptr});
         it != m_itemsByDevice.cend() && it->first == deviceID; ++it)
        items.append(it->second);
    return sortedByRow(items, std::less<>());
}

QMap<QString, int> ErrorIndex::countsByStation() const
{
    QMap<QString, int> counts;
    for (auto it = m_itemsByStation.cbegin(); it != m_itemsByStation.cend(); ++it)
        counts.insert(counts.cend(), it.key(), static_cast<int>(it.value().size()));
    return counts;
}

QStandardItem *ErrorIndex::itemOfRow(int row) const
{
    // A row that was inserted bare gets its item here.
    return m_model->itemFromIndex(m_model->index(row, 0));
}

void ErrorIndex::track(QStandardItem *item)
{
    file(item, {QString(), item->data(SystemErrorModel::StationIDRole).toString(),
                item->data(SystemErrorModel::DeviceIDRole).toString()});
}

void ErrorIndex::untrack(const QStandardItem *item)
{
    const Row row = m_rows.take(item);
    unfile(item, row);
    const auto it = m_itemByKey.constFind(row.key);
    if (it != m_itemByKey.cend() && it.value() == item)
        m_itemByKey.erase(it);
}

void ErrorIndex::file(QStandardItem *item, const Row &row)
{
    m_itemsByStation[row.stationID].insert(item);
    m_itemsByDevice.emplace(row.deviceID, item);
    m_rows.insert(item, row);
}

void ErrorIndex::unfile(const QStandardItem *item, const Row &row)
{
    auto *const key = const_cast<QStandardItem *>(item);
    const auto station = m_itemsByStation.find(row.stationID);
    if (station != m_itemsByStation.end()) {
        station.value().remove(key);
        if (station.value().isEmpty())
            m_itemsByStation.erase(station);
    }
    m_itemsByDevice.erase({row.deviceID, key});
}

void ErrorIndex::trackRows(int first, int last)
{
    for (int row = first; row <= last; ++row) {
        if (QStandardItem *item = itemOfRow(row))
            track(item);
    }
}

void ErrorIndex::untrackRows(int first, int last)
{
    for (int row = first; row <= last; ++row)
        untrack(itemOfRow(row));
}

void ErrorIndex::refileRows(int first, int last)
{
    for (int row = first; row <= last; ++row) {
        QStandardItem *item = itemOfRow(row);
        const auto it = m_rows.constFind(item);
        if (it == m_rows.cend()) {
            // Another item stands where one was filed, which may be deleted by now.
            trackAnew();
            return;
        }
        const Row &filed = it.value();
        unfile(item, filed);
        file(item, {filed.key, item->data(SystemErrorModel::StationIDRole).toString(),
                    item->data(SystemErrorModel::DeviceIDRole).toString()});
    }
}

void ErrorIndex::endRemoval()
{
    m_removals = qMax(0, m_removals - 1);
    if (m_tracksDoomed && m_removals == 0) {
        m_tracksDoomed = false;
        trackAnew();
    }
}

void ErrorIndex::trackAnew()
{
    m_tracksDoomed = m_removals > 0;
    const QHash<const QStandardItem *, Row> oldRows = m_rows;
    const QHash<QString, QStandardItem *> oldItemByKey = m_itemByKey;
    clear();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        // The item that a bare row gets may have the address of one that was deleted.
        const bool wasBare = !m_model->item(row);
        QStandardItem *item = itemOfRow(row);
        if (!item)
            continue;
        track(item);
        const QString key = oldRows.value(item).key;
        if (!wasBare && oldItemByKey.value(key) == item)
            insert(key, item);
    }
}

void ErrorIndex::clear()
{
    m_rows.clear();
    m_itemByKey.clear();
    m_itemsByStation.clear();
    m_itemsByDevice.clear();
}
