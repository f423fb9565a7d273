#include "TopologyIndex.h"

#include "TopologyRoles.h"

namespace {

bool isText(const QVariant &id)
{
    return id.typeId() == QMetaType::QString;
}

/// The search descends through the first column alone.
bool isSearched(QModelIndex parent)
{
    for (; parent.isValid(); parent = parent.parent()) {
        if (parent.column() != 0)
            return false;
    }
    return true;
}

} // namespace

void TopologyIndex::setModel(QStandardItemModel *model)
{
    if (model == m_model)
        return;
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    m_changes = 0;
    discard();
    if (!model)
        return;

    using Model = QAbstractItemModel;
    connect(model, &Model::rowsAboutToBeInserted, this, &TopologyIndex::beginChange);
    connect(model, &Model::rowsInserted, this, &TopologyIndex::nodesInserted);
    connect(model, &Model::rowsAboutToBeRemoved, this, &TopologyIndex::nodesAboutToBeRemoved);
    connect(model, &Model::rowsRemoved, this, &TopologyIndex::endChange);
    connect(model, &Model::dataChanged, this,
            [this](const QModelIndex &from, const QModelIndex &to, const QList<int> &roles) {
                if (roles.isEmpty() || roles.contains(Topology::IdRole))
                    nodesChanged(from, to);
            });

    // The order of the nodes, or all of them, may be others after these.
    connect(model, &Model::modelAboutToBeReset, this, &TopologyIndex::beginChange);
    connect(model, &Model::modelAboutToBeReset, this, &TopologyIndex::discard);
    connect(model, &Model::modelReset, this, &TopologyIndex::endChange);
    connect(model, &Model::columnsAboutToBeRemoved, this, &TopologyIndex::beginChange);
    connect(model, &Model::columnsAboutToBeRemoved, this, &TopologyIndex::discard);
    connect(model, &Model::columnsRemoved, this, &TopologyIndex::endChange);
    connect(model, &Model::columnsInserted, this, &TopologyIndex::discard);
    connect(model, &Model::columnsMoved, this, &TopologyIndex::discard);
    connect(model, &Model::rowsMoved, this, &TopologyIndex::discard);
    connect(model, &Model::layoutAboutToBeChanged, this, &TopologyIndex::discard);
    connect(model, &Model::layoutChanged, this, &TopologyIndex::discard);
    connect(model, &QObject::destroyed, this, &TopologyIndex::discard);
}

QModelIndex TopologyIndex::find(const QString &id)
{
    if (!m_model)
        return QModelIndex();
    // Who asks now may still find what is about to go, and the table must not remember it; or find
    // already what has come, of which the table has not heard.
    if (m_changes > 0)
        return searchModel(id);
    if (!m_isBuilt)
        build();
    // The search compares ids as variants: the number 7 equals the text "7".
    if (m_isUncertain)
        return searchModel(id);
    const auto it = m_nodes.constFind(qHash(id));
    if (it == m_nodes.cend())
        return QModelIndex();
    const QModelIndex node = m_model->indexFromItem(it->item);
    return node.data(Topology::IdRole).toString() == id ? node : QModelIndex();
}

QModelIndex TopologyIndex::searchModel(const QString &id) const
{
    return m_model
        ->match(m_model->index(0, 0), Topology::IdRole, id, 1,
                Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

void TopologyIndex::build()
{
    m_isBuilt = true;
    addNodes(QModelIndex(), 0, m_model->rowCount() - 1);
}

void TopologyIndex::discard()
{
    m_isBuilt = false;
    m_isUncertain = false;
    m_nodes.clear();
}

void TopologyIndex::beginChange()
{
    ++m_changes;
}

void TopologyIndex::endChange()
{
    if (m_changes > 0)
        --m_changes;
    else
        discard(); // it began before anybody listened, and the table may hold what is gone now
}

/// Adds the nodes and what is below them, in the order of the search. Returns whether every id was
/// new.
bool TopologyIndex::addNodes(const QModelIndex &parent, int first, int last)
{
    bool allNew = true;
    for (int row = first; row <= last; ++row) {
        const QModelIndex index = m_model->index(row, 0, parent);
        if (!index.isValid())
            continue;
        const QVariant id = index.data(Topology::IdRole);
        if (isText(id)) {
            Node &node = m_nodes[qHash(id.toString())];
            if (node.count == 0)
                node.item = m_model->itemFromIndex(index);
            else if (m_model->indexFromItem(node.item).data(Topology::IdRole) != id)
                m_isUncertain = true;
            allNew &= node.count == 0;
            ++node.count;
        } else if (id.isValid()) {
            m_isUncertain = true;
        }
        allNew &= addNodes(index, 0, m_model->rowCount(index) - 1);
    }
    return allNew;
}

/// Removes the nodes and what is below them. Returns whether the table is true of what stays.
bool TopologyIndex::removeNodes(const QModelIndex &parent, int first, int last)
{
    bool allGone = true;
    for (int row = first; row <= last; ++row) {
        const QModelIndex index = m_model->index(row, 0, parent);
        if (!index.isValid())
            continue;
        const QVariant id = index.data(Topology::IdRole);
        if (isText(id)) {
            const auto it = m_nodes.constFind(qHash(id.toString()));
            if (it == m_nodes.cend() || it->count > 1)
                allGone = false;
            else
                m_nodes.erase(it);
        } else if (id.isValid()) {
            allGone = false;
        }
        allGone &= removeNodes(index, 0, m_model->rowCount(index) - 1);
    }
    return allGone;
}

void TopologyIndex::nodesInserted(const QModelIndex &parent, int first, int last)
{
    endChange();
    if (m_isBuilt && isSearched(parent) && !addNodes(parent, first, last))
        discard();
}

void TopologyIndex::nodesAboutToBeRemoved(const QModelIndex &parent, int first, int last)
{
    beginChange();
    if (m_isBuilt && isSearched(parent) && !removeNodes(parent, first, last))
        discard();
}

void TopologyIndex::nodesChanged(const QModelIndex &from, const QModelIndex &to)
{
    if (!m_isBuilt || from.column() != 0 || !isSearched(from.parent()))
        return;
    for (int row = from.row(); row <= to.row(); ++row) {
        const QModelIndex index = from.siblingAtRow(row);
        const QVariant id = index.data(Topology::IdRole);
        const auto it = isText(id) ? m_nodes.constFind(qHash(id.toString())) : m_nodes.cend();
        if (it == m_nodes.cend() || it->item != m_model->itemFromIndex(index)) {
            discard();
            return;
        }
    }
}
