#include "SystemErrorSortFilterModel.h"

#include "SystemErrorModel.h"

SystemErrorSortFilterModel::SystemErrorSortFilterModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    sort(0, Qt::DescendingOrder);
    setFilterCaseSensitivity(Qt::CaseInsensitive);
}

void SystemErrorSortFilterModel::setErrorCategory(int errorCategory)
{
    categoryMask = errorCategory;
    invalidateFilter();
}

void SystemErrorSortFilterModel::setFilterParentStationID(const QString &stationID)
{
    filterStationID = stationID;
    invalidateFilter();
}

bool SystemErrorSortFilterModel::filterAcceptsRow(int sourceRow,
                                                  const QModelIndex &sourceParent) const
{
    const QModelIndex error = sourceModel()->index(sourceRow, 0, sourceParent);
    if ((categoryMask & error.data(SystemErrorModel::ErrorCategoryRole).toInt()) <= 0)
        return false;
    if (!matchesText(error))
        return false;
    return error.data(SystemErrorModel::StationIDRole).toString().contains(filterStationID);
}

bool SystemErrorSortFilterModel::matchesText(const QModelIndex &error) const
{
    const QRegularExpression &expression = textExpression();
    if (expression.pattern().isEmpty())
        return true;
    // Matching against an invalid expression would warn, once for every row.
    if (!expression.isValid())
        return false;
    return error.data(SystemErrorModel::ErrorNameRole).toString().contains(expression)
           || error.data(SystemErrorModel::TriggerDeviceNameRole).toString().contains(expression);
}

/// The expression that the text filter asks for: its pattern and case sensitivity, with whichever
/// options came with it dropped. Compiled when it changes, not for every row.
const QRegularExpression &SystemErrorSortFilterModel::textExpression() const
{
    const QString pattern = filterRegularExpression().pattern();
    const QRegularExpression::PatternOptions options =
        filterCaseSensitivity() == Qt::CaseInsensitive ? QRegularExpression::CaseInsensitiveOption
                                                       : QRegularExpression::NoPatternOption;
    if (compiledExpression.pattern() != pattern || compiledExpression.patternOptions() != options)
        compiledExpression = QRegularExpression(pattern, options);
    return compiledExpression;
}

bool SystemErrorSortFilterModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    return left.data(SystemErrorModel::TimestampRole).toLongLong()
           < right.data(SystemErrorModel::TimestampRole).toLongLong();
}
