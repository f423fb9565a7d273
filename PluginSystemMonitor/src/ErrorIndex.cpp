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

} // namespace

void ErrorIndex::insert(const QString &key, QStandardItem *item)
{
    if (Row *row = rowOfItem(item))
        fileUnderKey(*row, key);
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

bool ErrorIndex::contains(const QStandardItem *item, quint64 age)
{
    const Row *row = rowOfItem(item);
    return row && row->age <= age;
}

void ErrorIndex::fileUnderKey(Row &row, const QString &key)
{
    dropKey(row);
    if (Row *predecessor = rowOfKey(key))
        dropKey(*predecessor);
    row.key = key;
    row.isKeyed = true;
    Row *&first = m_keys[qHash(key)];
    row.nextOfHash = first;
    first = &row;
    m_usageKeys.add(key);
}

ErrorIndex::Row *ErrorIndex::rowOfKey(const QString &key) const
{
    const auto first = m_keys.find(qHash(key));
    Row *row = first != m_keys.end() ? first->second : nullptr;
    while (row && row->key != key)
        row = row->nextOfHash;
    return row;
}

void ErrorIndex::dropKey(Row &row)
{
    if (!row.isKeyed)
        return;
    row.isKeyed = false;
    const size_t hash = qHash(row.key);
    Row *&first = m_keys[hash];
    Row **link = &first;
    while (*link != &row)
        link = &(*link)->nextOfHash;
    *link = row.nextOfHash;
    // By the hash: by its place, the table would look for the next entry, however far that is.
    if (!first)
        m_keys.erase(hash);
    m_usageKeys.remove(row.key);
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

ErrorIndex::Row &ErrorIndex::newRow(QStandardItem *item)
{
    if (m_freeRows.isEmpty())
        m_freeRows.append(&m_rows.emplace_back());
    Row &row = *m_freeRows.takeLast();
    row.item = item;
    if (m_filesItems)
        m_rowsOfItems.insert(item, &row);
    return row;
}

void ErrorIndex::giveBack(Row &row)
{
    m_rowsOfItems.remove(row.item);
    row = Row();
    m_freeRows.append(&row);
}

ErrorIndex::Row *ErrorIndex::rowOfItem(const QStandardItem *item)
{
    fileItems();
    return m_rowsOfItems.value(item);
}

void ErrorIndex::fileItems()
{
    if (m_filesItems)
        return;
    m_filesItems = true;
    m_rowsOfItems.reserve(static_cast<qsizetype>(m_rows.size()));
    for (Row &row : m_rows) {
        if (row.item)
            m_rowsOfItems.insert(row.item, &row);
    }
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
    for (Row &row : m_rows) {
        if (row.item)
            fileUnderDevice(row);
    }
}

void ErrorIndex::clear()
{
    m_rows.clear();
    m_freeRows.clear();
    m_rowsOfItems.clear();
    m_filesItems = false;
    m_keys = Keys();
    m_usageKeys.clear();
    m_stations.clear();
    m_lastStation = nullptr;
    m_devices.clear();
    m_filesDevices = false;
}
