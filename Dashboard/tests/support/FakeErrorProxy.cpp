#include "FakeErrorProxy.h"

#include "FakePlugin.h"

FakeErrorProxy::FakeErrorProxy(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    sort(0, Qt::DescendingOrder);
    setFilterCaseSensitivity(Qt::CaseInsensitive);
}

void FakeErrorProxy::setErrorCategory(int errorCategory)
{
    categoryMask = errorCategory;
    invalidateFilter();
}

void FakeErrorProxy::setFilterParentStationID(const QString &stationID)
{
    filterStationID = stationID;
    invalidateFilter();
}

bool FakeErrorProxy::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QRegularExpression expression(filterRegularExpression().pattern(),
                                        QRegularExpression::CaseInsensitiveOption);
    const QModelIndex row = sourceModel()->index(sourceRow, 0, sourceParent);
    if ((row.data(FakePlugin::ErrorCategoryRole).toInt() & categoryMask) <= 0)
        return false;
    if (!row.data(FakePlugin::ErrorNameRole).toString().contains(expression)
        && !row.data(FakePlugin::TriggerDeviceNameRole).toString().contains(expression))
        return false;
    return row.data(FakePlugin::StationIDRole).toString().contains(filterStationID);
}

bool FakeErrorProxy::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    return left.data(FakePlugin::TimestampRole).toLongLong()
           < right.data(FakePlugin::TimestampRole).toLongLong();
}
