#ifndef FAKEERRORPROXY_H
#define FAKEERRORPROXY_H

#include <QSortFilterProxyModel>

/// Filters and sorts as the plug-in's proxy does: category mask, text, part of the station id;
/// newest first.
class FakeErrorProxy : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit FakeErrorProxy(QObject *parent);

    Q_INVOKABLE void setErrorCategory(int errorCategory);
    Q_INVOKABLE void setFilterParentStationID(const QString &stationID);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    int categoryMask = 3;
    QString filterStationID;
};

#endif
