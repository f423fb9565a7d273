#include "BareErrorList.h"

#include "ModelRoles.h"

namespace {

int roleOf(std::size_t value)
{
    return ErrorRole::StationID + static_cast<int>(value);
}

QVariant detached(const QVariant &value)
{
    if (value.typeId() != QMetaType::QString)
        return value;
    const QString text = value.toString();
    return QString(text.constData(), text.size());
}

bool isSameText(const QVariant &left, const QVariant &right)
{
    return left.typeId() == QMetaType::QString && left.toString() == right.toString();
}

} // namespace

ErrorRow errorRow(const QStandardItemModel &errors, int row)
{
    ErrorRow values;
    for (std::size_t value = 0; value < values.size(); ++value)
        values[value] = detached(errors.item(row)->data(roleOf(value)));
    return values;
}

QList<ErrorRow> errorRows(const QStandardItemModel &errors)
{
    QList<ErrorRow> rows;
    for (int row = 0; row < errors.rowCount(); ++row)
        rows.append(errorRow(errors, row));
    return rows;
}

QStandardItem *BareErrorList::append(const ErrorRow &row)
{
    auto *item = new QStandardItem;
    for (std::size_t value = 0; value < row.size(); ++value) {
        QVariant &last = m_last[value];
        if (!isSameText(last, row[value]))
            last = detached(row[value]);
        item->setData(last, roleOf(value));
    }
    model.appendRow(item);
    return item;
}

QList<QStandardItem *> BareErrorList::fill(const QList<ErrorRow> &rows)
{
    QList<QStandardItem *> items;
    for (const ErrorRow &row : rows)
        items.append(append(row));
    return items;
}
