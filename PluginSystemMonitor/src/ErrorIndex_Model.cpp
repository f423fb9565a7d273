#include "ErrorIndex.h"

#include "SystemErrorModel.h"

#include <QStandardItemModel>

#include <utility>

namespace {

using Model = QAbstractItemModel;

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

QStandardItem *ErrorIndex::itemOfRow(int row) const
{
    // A row that was inserted bare gets its item here.
    return m_model->itemFromIndex(m_model->index(row, 0));
}

ErrorIndex::Row &ErrorIndex::track(QStandardItem *item)
{
    // Rows are filed under their items whenever one may be tracked twice.
    Row *row = m_filesItems ? rowOfItem(item) : nullptr;
    if (row)
        unfile(*row);
    else
        row = &newRow(item);
    file(*row);
    row->age = ++m_newestAge;
    if (item == m_announcedItem)
        fileAnnounced(*row);
    return *row;
}

void ErrorIndex::fileAnnounced(Row &row)
{
    m_announcedItem = nullptr;
    fileUnderKey(row, m_announcedKey);
}

void ErrorIndex::untrack(const QStandardItem *item)
{
    Row *row = rowOfItem(item);
    if (!row)
        return;
    unfile(*row);
    dropKey(*row);
    giveBack(*row);
    // The next storm shall begin as cheaply as the first one.
    if (m_rowsOfItems.isEmpty())
        clear();
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
        Row *changed = rowOfItem(itemOfRow(row));
        if (!changed) {
            // Another item stands where one was filed, which may be deleted by now.
            trackAnew();
            return;
        }
        unfile(*changed);
        file(*changed);
    }
}

void ErrorIndex::beginChange()
{
    if (m_changes++ == 0)
        return;
    // What is told of changes within one another may come in another order than they did.
    m_tracksDoomed = true;
    fileItems();
}

void ErrorIndex::endChange()
{
    m_changes = qMax(0, m_changes - 1);
    if (m_tracksDoomed && m_changes == 0) {
        trackAnew();
        fileItems(); // the coming of a row that is here already is told only after this
    }
}

void ErrorIndex::trackAnew()
{
    m_tracksDoomed = m_changes > 0;
    fileItems();
    const auto oldRows = std::exchange(m_rows, {});
    const auto rowsOfOldItems = std::exchange(m_rowsOfItems, {});
    clear();
    // In mid-change, the coming of a row that is here already may be told only after this.
    m_filesItems = m_changes > 0;
    const QStandardItem *announced = m_announcedItem;
    Row *announcedRow = nullptr;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        // The item that a bare row gets may have the address of one that was deleted.
        const bool wasBare = !m_model->item(row);
        QStandardItem *item = itemOfRow(row);
        if (!item)
            continue;
        Row &tracked = track(item);
        if (const Row *old = wasBare ? nullptr : rowsOfOldItems.value(item))
            inherit(tracked, *old);
        if (item == announced)
            announcedRow = &tracked;
    }
    // Last, since it may take a key over.
    if (announcedRow)
        fileAnnounced(*announcedRow);
}

void ErrorIndex::inherit(Row &row, const Row &old)
{
    row.age = old.age;
    if (old.isKeyed)
        fileUnderKey(row, old.key);
}
