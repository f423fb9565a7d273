#ifndef ERRORINDEX_H
#define ERRORINDEX_H

#include "UsageKeys.h"

#include <QHash>
#include <QList>
#include <QMap>
#include <QModelIndex>
#include <QObject>
#include <QString>

#include <tsl/hopscotch_map.h>

#include <deque>
#include <map>
#include <unordered_map>

class QStandardItem;
class QStandardItemModel;

/// Finds rows of the error list by key, by station and by device without a scan.
///
/// Rows are held by their items: a persistent index would cost time at every removal of any other
/// row. The index follows the model's signals, so that rows which others add, change or remove are
/// found, or not found, as a scan would.
///
/// A storm that only adds rows asks for none by its item or by its device. Rows are filed under
/// those when somebody first does, until the list is empty again.
class ErrorIndex : public QObject
{
public:
    /// Follows this model, not owned, from now on. It must outlive the index or be destroyed while
    /// the index is not used.
    void setModel(QStandardItemModel *model);

    /// Files the row of an item under its key, in place of what was filed there and of the key that
    /// the row had. An item that is no row of the model, which it may have left by now, files
    /// nothing.
    void insert(const QString &key, QStandardItem *item);
    /// Files an item under its key as soon as it becomes a row, before others hear of it. One item
    /// at a time; it is not looked into.
    void announce(const QString &key, const QStandardItem *item);
    /// Forgets a key; its row stays where it is.
    void remove(const QString &key);
    /// The row filed under a key, or an invalid index.
    QModelIndex find(const QString &key) const;

    /// False when no usage error of this station is filed under any key.
    bool mayHoldUsageError(const QString &stationID) const
    {
        return m_usageKeys.mayHold(stationID);
    }

    /// The rows of every station whose id begins with @p prefix, the last row first.
    QList<QStandardItem *> rowsOfStationsStartingWith(const QString &prefix) const;
    /// The rows of one station, the first row first.
    QList<QStandardItem *> rowsOfStation(const QString &stationID) const;
    /// The rows of one device, the first row first.
    QList<QStandardItem *> rowsOfDevice(const QString &deviceID);
    /// How many rows each station has, in the order of the station ids.
    QMap<QString, int> countsByStation() const;

    /// The age of the newest row; rows that come later have higher ages.
    quint64 newestAge() const { return m_newestAge; }
    /// Whether an item is a row of the model that came no later than the row of this age. If not,
    /// it may be deleted, or stand where a deleted one stood.
    bool contains(const QStandardItem *item, quint64 age);
    /// Whether rows or columns are announced to come or to go, and have not yet.
    bool isChanging() const { return m_changes > 0; }

private:
    struct Row;
    struct Links
    {
        Row *previous = nullptr;
        Row *next = nullptr;
    };
    /// The rows of one station or device, chained through themselves: a group of any size takes
    /// and gives up a row in constant time.
    struct Group
    {
        Row *first = nullptr;
        int size = 0;
    };
    using Keys = tsl::hopscotch_map<size_t, Row *>;
    using Stations = std::map<QString, Group>;
    using Devices = std::unordered_map<QString, Group>;

    /// What an item is filed under.
    struct Row
    {
        QStandardItem *item = nullptr; ///< null while no row of the list is kept here
        QString key;
        bool isKeyed = false; ///< filed under its key, which another row may have taken over
        quint64 age = 0;
        Stations::value_type *station = nullptr;
        Devices::value_type *device = nullptr;
        Links sameStation;
        Links sameDevice;
        Row *nextOfHash = nullptr;
    };

    static void addTo(Group &group, Row &row, Links Row::*links);
    static void takeFrom(Group &group, Row &row, Links Row::*links);
    static void appendItems(QList<QStandardItem *> &items, const Group &group, Links Row::*links);

    // Keys

    void fileUnderKey(Row &row, const QString &key);
    Row *rowOfKey(const QString &key) const;
    void dropKey(Row &row);

    // Items, stations and devices

    Row &newRow(QStandardItem *item);
    void giveBack(Row &row);
    Row *rowOfItem(const QStandardItem *item);
    void fileItems();
    void file(Row &row);
    void unfile(Row &row);
    void fileUnderStation(Row &row);
    void fileUnderDevice(Row &row);
    void fileDevices();
    void clear();

    // The model

    void countChanges();
    void followRows();
    QStandardItem *itemOfRow(int row) const;
    Row &track(QStandardItem *item);
    void untrack(const QStandardItem *item);
    void fileAnnounced(Row &row);
    void trackRows(int first, int last);
    void untrackRows(int first, int last);
    void refileRows(int first, int last);
    void trackAnew();
    void inherit(Row &row, const Row &old);
    void beginChange();
    void endChange();

    QStandardItemModel *m_model = nullptr;
    std::deque<Row> m_rows; ///< they stay where they are in memory
    QList<Row *> m_freeRows;
    QHash<const QStandardItem *, Row *> m_rowsOfItems;
    bool m_filesItems = false;
    Keys m_keys; ///< by the hashes of the keys, which are not copied
    UsageKeys m_usageKeys;
    Stations m_stations;
    Stations::value_type *m_lastStation = nullptr; ///< under which a row was filed last
    Devices m_devices;
    bool m_filesDevices = false;
    QString m_announcedKey;
    const QStandardItem *m_announcedItem = nullptr;
    quint64 m_newestAge = 0;
    int m_changes = 0;           ///< announced and not yet done
    bool m_tracksDoomed = false; ///< rows may have been tracked amiss in mid-change
};

#endif
