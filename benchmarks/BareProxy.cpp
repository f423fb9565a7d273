#include "BareProxy.h"

#include "ModelRoles.h"
#include "Verify.h"

#include <QRegularExpression>

BareProxy::BareProxy(QAbstractItemModel &errors)
{
    setSortRole(ErrorRole::Timestamp);
    sort(0, Qt::DescendingOrder);
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    setSourceModel(&errors);
    verify(rowCount() == errors.rowCount(), "the bare proxy shows every row");
}

bool BareProxy::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QRegularExpression expression = filterRegularExpression();
    if (expression.pattern().isEmpty())
        return true;
    const QModelIndex error = sourceModel()->index(sourceRow, 0, sourceParent);
    return error.data(ErrorRole::Name).toString().contains(expression)
           || error.data(ErrorRole::TriggerDeviceName).toString().contains(expression);
}
