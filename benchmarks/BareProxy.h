#ifndef BAREPROXY_H
#define BAREPROXY_H

#include <QSortFilterProxyModel>

/// What Qt alone offers for the order and the text filter of an error list: the newest timestamp
/// first by the sort role, and two texts searched with the expression that the filter has compiled.
class BareProxy : public QSortFilterProxyModel
{
public:
    /// A proxy in use: it has its rows.
    explicit BareProxy(QAbstractItemModel &errors);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
};

#endif
