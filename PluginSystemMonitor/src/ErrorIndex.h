#ifndef ERRORINDEX_H
#define ERRORINDEX_H

#include <QHash>
#include <QList>
#include <QMap>
#include <QModelIndex>
#include <QObject>
#include <QSet>
#include <QString>

#include <set>
#include <utility>

class QStandardItem;
class QStandardItemModel;

/// Finds rows of the error list by key, by station and by device without a scan.
///
/// Rows are held by their items: a persistent index would cost time at every removal of any other
/// row. The index follows the model's signals, so that rows which others add, change or remove are
/// found, or not found, as a scan would.
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
    /// Forgets a key; its row stays where it is.
    void remove(const QString &key);
    /// The row filed under a key, or an invalid index.
    QModelIndex find(const QString &key) const;

    /// The rows of every station whose id begins with @p prefix, the last row first.
    QList<QStandardItem *> rowsOfStationsStartingWith(const QString &prefix) const;
    /// The rows of one station, the first row first.
    QList<QStandardItem *> rowsOfStation(const QString &stationID) const;
    /// The rows of one device, the first row first.
    QList<QStandardItem *> rowsOfDevice(const QString &deviceID) const;
    /// How many rows each station has, in the order of the station ids.
    QMap<QString, int> countsByStation() const;

    /// Whether an item is a row of the model; it may be deleted if not.
    bool contains(const QStandardItem *item) const { return m_rows.contains(item); }

private:
    /// What an item is filed under.
    struct Row
    {
        QString key; ///< empty for a row that was never given one
        QString stationID;
        QString deviceID;
    };

    QStandardItem *itemOfRow(int row) const;
    void track(QStandardItem *item);
    void untrack(const QStandardItem *item);
    void file(QStandardItem *item, const Row &row);
    void unfile(const QStandardItem *item, const Row &row);
    void trackRows(int first, int last);
    void untrackRows(int first, int last);
    void refileRows(int first, int last);
    void trackAnew();
    void endRemoval();
    void clear();

    QStandardItemModel *m_model = nullptr;
    QHash<const QStandardItem *, Row> m_rows;
    QHash<QString, QStandardItem *> m_itemByKey;
    QMap<QString, QSet<QStandardItem *>> m_itemsByStation;
    std::set<std::pair<QString, QStandardItem *>> m_itemsByDevice;
    int m_removals = 0;          ///< announced and not yet done
    bool m_tracksDoomed = false; ///< rows were tracked that a removal announced
};

#endif
