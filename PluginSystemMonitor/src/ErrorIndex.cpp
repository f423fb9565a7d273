#include "ErrorIndex.h"

#include "SystemErrorModel.h"

#include <QStandardItemModel>

#include <algorithm>
#include <functional>

namespace {

using Model = QAbstractItemModel;

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
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    m_changes = 0;
    countChanges();
    followRows();
    trackAnew();
}

void ErrorIndex::countChanges()
{
    connect(m_model, &Model::rowsAboutToBeInserted, this, &ErrorIndex::beginChange);
    connect(m_model, &Model::rowsAboutToBeRemoved, this, &ErrorIndex::beginChange);
    connect(m_model, &Model::columnsAboutToBeInserted, this, &ErrorIndex::beginChange);
    connect(m_model, &Model::columnsAboutToBeRemoved, this, &ErrorIndex::beginChange);
    connect(m_model, &Model::modelAboutToBeReset, this, &ErrorIndex::beginChange);

    connect(m_model, &Model::rowsInserted, this, &ErrorIndex::endChange);
    connect(m_model, &Model::rowsRemoved, this, &ErrorIndex::endChange);
    connect(m_model, &Model::columnsInserted, this, &ErrorIndex::endChange);
    connect(m_model, &Model::columnsRemoved, this, &ErrorIndex::endChange);
    connect(m_model, &Model::modelReset, this, &ErrorIndex::endChange);
}

void ErrorIndex::followRows()
{
    // The rows of the list have no children; what lies below them is of no concern.
    connect(m_model, &Model::rowsInserted, this,
            [this](const QModelIndex &parent, int first, int last) {
                if (!parent.isValid())
                    trackRows(first, last);
            });
    connect(m_model, &Model::rowsAboutToBeRemoved, this,
            [this](const QModelIndex &parent, int first, int last) {
                if (!parent.isValid())
                    untrackRows(first, last);
            });
    connect(m_model, &Model::dataChanged, this,
            [this](const QModelIndex &from, const QModelIndex &to, const QList<int> &roles) {
                if (!from.parent().isValid() && mayHoldIds(roles))
                    refileRows(from.row(), to.row());
            });

    // Items may be replaced or gone after these, which nobody does to the error list in earnest.
    connect(m_model, &Model::layoutChanged, this, &ErrorIndex::trackAnew);
    connect(m_model, &Model::columnsInserted, this, &ErrorIndex::trackAnew);
    connect(m_model, &Model::columnsRemoved, this, &ErrorIndex::trackAnew);
    connect(m_model, &Model::modelReset, this, &ErrorIndex::trackAnew);
    connect(m_model, &Model::modelAboutToBeReset, this, &ErrorIndex::clear);
    connect(m_model, &Model::columnsAboutToBeRemoved, this,
            [this](const QModelIndex &parent, int first) {
                if (!parent.isValid() && first == 0)
                    clear();
            });
}

void ErrorIndex::insert(const QString &key, QStandardItem *item)
{
    const auto it = m_rows.find(item);
    if (it == m_rows.end())
        return;
    Row &row = it->second;
    dropKey(row);
    if (Row *predecessor = rowOfKey(key))
        dropKey(*predecessor);
    row.key = key;
    row.isKeyed = true;
    addTo(m_keys[qHash(key)], row, &Row::sameHash);
    m_usageKeys.add(key);
}

void ErrorIndex::announce(const QString &key, const QStandardItem *item)
{
    m_announcedKey = key;
    m_announcedItem = item;
}

void ErrorIndex::remove(const QString &key)
{
    if (Row *row = rowOfKey(key))
        dropKey(*row);
}

QModelIndex ErrorIndex::find(const QString &key) const
{
    const Row *row = rowOfKey(key);
    return row ? m_model->indexFromItem(row->item) : QModelIndex();
}

QList<QStandardItem *> ErrorIndex::rowsOfStationsStartingWith(const QString &prefix) const
{
    // Every id begins with an empty prefix, a null id too, where startsWith() says otherwise.
    const auto belongs = [&prefix](const QString &stationID) {
        return prefix.isEmpty() || stationID.startsWith(prefix);
    };
    QList<QStandardItem *> items;
    for (auto it = m_stations.lower_bound(prefix); it != m_stations.end() && belongs(it->first);
         ++it)
        appendItems(items, it->second, &Row::sameStation);
    return sortedByRow(items, std::greater<>());
}

QList<QStandardItem *> ErrorIndex::rowsOfStation(const QString &stationID) const
{
    QList<QStandardItem *> items;
    if (const auto it = m_stations.find(stationID); it != m_stations.end())
        appendItems(items, it->second, &Row::sameStation);
    return sortedByRow(items, std::less<>());
}

QList<QStandardItem *> ErrorIndex::rowsOfDevice(const QString &deviceID)
{
    fileDevices();
    QList<QStandardItem *> items;
    if (const auto it = m_devices.find(deviceID); it != m_devices.end())
        appendItems(items, it->second, &Row::sameDevice);
    return sortedByRow(items, std::less<>());
}

QMap<QString, int> ErrorIndex::countsByStation() const
{
    QMap<QString, int> counts;
    for (const auto &[stationID, group] : m_stations)
        counts.insert(counts.cend(), stationID, group.size);
    return counts;
}

void ErrorIndex::addTo(Group &group, Row &row, Links Row::*links)
{
    row.*links = {nullptr, group.first};
    if (group.first)
        (group.first->*links).previous = &row;
    group.first = &row;
    ++group.size;
}

void ErrorIndex::takeFrom(Group &group, Row &row, Links Row::*links)
{
    const Links neighbours = row.*links;
    if (neighbours.next)
        (neighbours.next->*links).previous = neighbours.previous;
    if (neighbours.previous)
        (neighbours.previous->*links).next = neighbours.next;
    else
        group.first = neighbours.next;
    --group.size;
}

void ErrorIndex::appendItems(QList<QStandardItem *> &items, const Group &group, Links Row::*links)
{
    for (const Row *row = group.first; row; row = (row->*links).next)
        items.append(row->item);
}

bool ErrorIndex::contains(const QStandardItem *item, quint64 age) const
{
    const auto it = m_rows.find(item);
    return it != m_rows.end() && it->second.age <= age;
}

QStandardItem *ErrorIndex::itemOfRow(int row) const
{
    // A row that was inserted bare gets its item here.
    return m_model->itemFromIndex(m_model->index(row, 0));
}

void ErrorIndex::track(QStandardItem *item)
{
    const auto [it, isNew] = m_rows.try_emplace(item);
    Row &row = it->second;
    if (!isNew)
        unfile(row);
    row.item = item;
    file(row);
    row.age = ++m_newestAge;
    if (item == m_announcedItem) {
        m_announcedItem = nullptr;
        insert(m_announcedKey, item);
    }
}

void ErrorIndex::untrack(const QStandardItem *item)
{
    const auto it = m_rows.find(item);
    if (it == m_rows.end())
        return;
    unfile(it->second);
    dropKey(it->second);
    m_rows.erase(it);
}

void ErrorIndex::file(Row &row)
{
    fileUnderStation(row);
    if (m_filesDevices)
        fileUnderDevice(row);
}

void ErrorIndex::unfile(Row &row)
{
    takeFrom(row.station->second, row, &Row::sameStation);
    if (!row.station->second.first) {
        if (row.station == m_lastStation)
            m_lastStation = nullptr;
        m_stations.erase(m_stations.find(row.station->first));
    }
    if (!m_filesDevices)
        return;
    takeFrom(row.device->second, row, &Row::sameDevice);
    if (!row.device->second.first)
        m_devices.erase(m_devices.find(row.device->first));
}

void ErrorIndex::fileUnderStation(Row &row)
{
    const QString stationID = row.item->data(SystemErrorModel::StationIDRole).toString();
    // Errors come in by the station.
    if (!m_lastStation || m_lastStation->first != stationID)
        m_lastStation = &*m_stations.try_emplace(stationID).first;
    row.station = m_lastStation;
    addTo(row.station->second, row, &Row::sameStation);
}

void ErrorIndex::fileUnderDevice(Row &row)
{
    const QString deviceID = row.item->data(SystemErrorModel::DeviceIDRole).toString();
    row.device = &*m_devices.try_emplace(deviceID).first;
    addTo(row.device->second, row, &Row::sameDevice);
}

void ErrorIndex::fileDevices()
{
    if (m_filesDevices)
        return;
    m_filesDevices = true;
    for (auto &[item, row] : m_rows)
        fileUnderDevice(row);
}

ErrorIndex::Row *ErrorIndex::rowOfKey(const QString &key) const
{
    Row *row = m_keys.value(qHash(key)).first;
    while (row && row->key != key)
        row = row->sameHash.next;
    return row;
}

void ErrorIndex::dropKey(Row &row)
{
    if (!row.isKeyed)
        return;
    row.isKeyed = false;
    const auto group = m_keys.find(qHash(row.key));
    takeFrom(*group, row, &Row::sameHash);
    if (!group->first)
        m_keys.erase(group);
    m_usageKeys.remove(row.key);
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
        const auto it = m_rows.find(itemOfRow(row));
        if (it == m_rows.end()) {
            // Another item stands where one was filed, which may be deleted by now.
            trackAnew();
            return;
        }
        unfile(it->second);
        file(it->second);
    }
}

void ErrorIndex::beginChange()
{
    ++m_changes;
}

void ErrorIndex::endChange()
{
    m_changes = qMax(0, m_changes - 1);
    if (m_tracksDoomed && m_changes == 0) {
        m_tracksDoomed = false;
        trackAnew();
    }
}

void ErrorIndex::trackAnew()
{
    m_tracksDoomed = m_changes > 0;
    const auto oldRows = std::move(m_rows);
    clear();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        // The item that a bare row gets may have the address of one that was deleted.
        const bool wasBare = !m_model->item(row);
        QStandardItem *item = itemOfRow(row);
        if (!item)
            continue;
        track(item);
        const auto old = oldRows.find(item);
        if (wasBare || old == oldRows.end())
            continue;
        m_rows[item].age = old->second.age;
        if (old->second.isKeyed)
            insert(old->second.key, item);
    }
}

void ErrorIndex::clear()
{
    m_rows.clear();
    m_keys.clear();
    m_usageKeys.clear();
    m_stations.clear();
    m_lastStation = nullptr;
    m_devices.clear();
}
