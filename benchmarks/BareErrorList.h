#ifndef BAREERRORLIST_H
#define BAREERRORLIST_H

#include <QStandardItemModel>
#include <QVariant>

#include <array>

/// The values of a listed error, in the order of the numbers of their roles.
using ErrorRow = std::array<QVariant, 8>;

/// A row of an error list, with texts of its own.
ErrorRow errorRow(const QStandardItemModel &errors, int row);

/// All rows of an error list, with texts of their own.
QList<ErrorRow> errorRows(const QStandardItemModel &errors);

/// An error list without rules: rows of ready values, held by their items.
class BareErrorList
{
public:
    QStandardItemModel model;

    /// Appends a row; the model owns the item. A text that the row before has as well is shared
    /// with it, any other is the row's own.
    QStandardItem *append(const ErrorRow &row);

    /// Fills the list before a timed part and returns the items in the order of the rows. The texts
    /// then lie in memory where a plug-in's would: beside their item.
    QList<QStandardItem *> fill(const QList<ErrorRow> &rows);

    /// Removes a row, wherever it stands by now.
    void remove(const QStandardItem *item) { model.removeRow(item->row()); }

private:
    ErrorRow m_last;
};

#endif
