#ifndef SYSTEMERRORSORTFILTERMODEL_H
#define SYSTEMERRORSORTFILTERMODEL_H

#include "ErrorKinds.h"

#include <QRegularExpression>
#include <QSortFilterProxyModel>

/// A view's own excerpt of the error list, newest error first.
///
/// An error shows when it passes three filters: its category, its station, and the text filter of
/// the base class, which searches the error's name and the triggering device's name.
class SystemErrorSortFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit SystemErrorSortFilterModel(QObject *parent = nullptr);

    /// Shows the errors of these categories, a mask of ErrorCategory bits. Both at first.
    Q_INVOKABLE void setErrorCategory(int errorCategory);

    /// Shows the errors whose station id contains this text, in exactly this case. All when empty,
    /// as at first.
    Q_INVOKABLE void setFilterParentStationID(const QString &stationID);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    bool matchesText(const QModelIndex &error) const;
    const QRegularExpression &textExpression() const;

    int categoryMask = SystemCategory | CameraCategory;
    QString filterStationID;
    mutable QRegularExpression compiledExpression; ///< see textExpression()
};

#endif
