#include "TopologyJournal.h"

#include <QJsonArray>
#include <QStandardItemModel>

#include <memory>
#include <utility>

namespace {

const QString PathKey = QStringLiteral("path");
const QString RowKey = QStringLiteral("row");
const QString ResetKey = QStringLiteral("reset");
const QString InsertKey = QStringLiteral("insert");
const QString RemoveKey = QStringLiteral("remove");
const QString ChangeKey = QStringLiteral("change");
const QString RolesKey = QStringLiteral("roles");
const QString ChildrenKey = QStringLiteral("children");

QJsonArray pathOf(const QModelIndex &index)
{
    QJsonArray path;
    for (QModelIndex node = index; node.isValid(); node = node.parent())
        path.prepend(node.row());
    return path;
}

QJsonObject rolesOf(const QModelIndex &index)
{
    QJsonObject roles;
    const QMap<int, QVariant> data = index.model()->itemData(index);
    for (auto role = data.begin(); role != data.end(); ++role)
        roles.insert(QString::number(role.key()), QJsonValue::fromVariant(role.value()));
    return roles;
}

QJsonObject nodeOf(const QModelIndex &index)
{
    QJsonArray children;
    for (int row = 0; row < index.model()->rowCount(index); ++row)
        children.append(nodeOf(index.model()->index(row, 0, index)));
    QJsonObject node{{RolesKey, rolesOf(index)}};
    if (!children.isEmpty())
        node.insert(ChildrenKey, children);
    return node;
}

void setRoles(QStandardItem &item, const QJsonObject &roles)
{
    for (auto role = roles.begin(); role != roles.end(); ++role)
        item.setData(role.value().toVariant(), role.key().toInt());
}

QStandardItem *makeItem(const QJsonObject &node)
{
    auto item = std::make_unique<QStandardItem>();
    setRoles(*item, node.value(RolesKey).toObject());
    const QJsonArray children = node.value(ChildrenKey).toArray();
    for (const auto &child : children)
        item->appendRow(makeItem(child.toObject()));
    return item.release();
}

// Null when there is no such node; the invisible one at the top for an empty path.
QStandardItem *itemAt(const QStandardItemModel &model, const QJsonArray &path)
{
    QStandardItem *item = model.invisibleRootItem();
    for (const auto &row : path)
        item = item ? item->child(row.toInt(-1)) : nullptr;
    return item;
}

bool insertRows(QStandardItem &parent, int row, const QJsonArray &nodes)
{
    if (row < 0 || row > parent.rowCount())
        return false;
    int next = row;
    for (const auto &node : nodes)
        parent.insertRow(next++, makeItem(node.toObject()));
    return true;
}

bool removeRows(QStandardItem &parent, int row, int count)
{
    if (row < 0 || count < 1 || count > parent.rowCount() - row)
        return false;
    parent.removeRows(row, count);
    return true;
}

} // namespace

TopologyRecorder::TopologyRecorder(QStandardItemModel &model, Write write)
    : m_model(model)
    , m_write(std::move(write))
{
    connect(&model, &QAbstractItemModel::modelReset, this, [this] { m_write({{ResetKey, true}}); });
    connect(&model, &QAbstractItemModel::rowsInserted, this, &TopologyRecorder::writeRows);
    connect(
        &model, &QAbstractItemModel::rowsRemoved, this,
        [this](const QModelIndex &parent, int first, int last) {
            m_write({{PathKey, pathOf(parent)}, {RowKey, first}, {RemoveKey, last - first + 1}});
        });
    connect(&model, &QAbstractItemModel::dataChanged, this, [this](const QModelIndex &index) {
        m_write({{PathKey, pathOf(index)}, {ChangeKey, rolesOf(index)}});
    });
    if (model.rowCount() > 0)
        writeRows({}, 0, model.rowCount() - 1);
}

void TopologyRecorder::writeRows(const QModelIndex &parent, int first, int last)
{
    QJsonArray nodes;
    for (int row = first; row <= last; ++row)
        nodes.append(nodeOf(m_model.index(row, 0, parent)));
    m_write({{PathKey, pathOf(parent)}, {RowKey, first}, {InsertKey, nodes}});
}

bool applyTopologyChange(QStandardItemModel &model, const QJsonObject &change)
{
    if (change.contains(ResetKey)) {
        model.clear();
        return true;
    }
    QStandardItem *const item = itemAt(model, change.value(PathKey).toArray());
    if (!item)
        return false;
    const int row = change.value(RowKey).toInt(-1);
    if (change.contains(InsertKey))
        return insertRows(*item, row, change.value(InsertKey).toArray());
    if (change.contains(RemoveKey))
        return removeRows(*item, row, change.value(RemoveKey).toInt());
    if (!change.contains(ChangeKey) || item == model.invisibleRootItem())
        return false;
    setRoles(*item, change.value(ChangeKey).toObject());
    return true;
}
