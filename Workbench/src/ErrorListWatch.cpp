#include "ErrorListWatch.h"

#include <QHash>

ErrorListWatch::ErrorListWatch(QAbstractItemModel &model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    const QHash<int, QByteArray> roles = model.roleNames();
    m_keyRole = roles.key("uniqueIDRole");
    m_typeRole = roles.key("errorTypeRole");
    m_nameRole = roles.key("errorNameRole");
    m_originRole = roles.key("triggerDeviceNameRole");
    m_stationRole = roles.key("stationIDRole");
    m_deviceRole = roles.key("deviceIDRole");
    m_categoryRole = roles.key("errorCategoryRole");
    m_timeRole = roles.key("timestampRole");

    connect(&model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) {
                forRows(first, last, &ErrorListWatch::raised);
            });
    connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex &, int first, int last) {
                forRows(first, last, &ErrorListWatch::cleared);
            });
    connect(&model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &topLeft, const QModelIndex &bottomRight) {
                forRows(topLeft.row(), bottomRight.row(), &ErrorListWatch::changed);
            });
}

QList<ListedError> ErrorListWatch::listed() const
{
    QList<ListedError> errors;
    for (int row = 0; row < m_model.rowCount(); ++row)
        errors.append(errorAt(row));
    return errors;
}

ListedError ErrorListWatch::errorAt(int row) const
{
    const QModelIndex index = m_model.index(row, 0);
    return {index.data(m_keyRole).toString(),     index.data(m_typeRole).toInt(),
            index.data(m_nameRole).toString(),    index.data(m_originRole).toString(),
            index.data(m_stationRole).toString(), index.data(m_deviceRole).toString(),
            index.data(m_categoryRole).toInt(),   index.data(m_timeRole).toLongLong()};
}

void ErrorListWatch::forRows(int first, int last,
                             void (ErrorListWatch::*notify)(const ListedError &))
{
    for (int row = first; row <= last; ++row)
        Q_EMIT(this->*notify)(errorAt(row));
}
