#ifndef PRINTEDVALUE_H
#define PRINTEDVALUE_H

#include <QAbstractItemModel>
#include <QString>
#include <QStringList>
#include <QVariant>

/// A value as one text that shows its type as well, so that comparing two texts compares both.
///
/// Strings stand in quotes, doubles have a decimal point, 64-bit integers end in LL or ULL, lists
/// of variants stand in [], maps in {}; other types are named, as in `QStringList["a", "b"]`. An
/// invalid variant is `invalid`.
QString printedValue(const QVariant &value);

/// What a row of the error list holds, apart from its time.
struct ErrorValues
{
    QVariant key;
    QVariant stationID;
    QVariant deviceID;
    QVariant type;
    QVariant category;
    QVariant name;
    QVariant origin; ///< the name of the device that triggered it
};

/// A row of the error list as one text: everything but the time.
QString printedError(const ErrorValues &error);
QString printedError(const QModelIndex &index);

/// Every row of the error list, or of a proxy over it, in the order shown.
QStringList printedErrors(const QAbstractItemModel &errors);

/// The unique keys of every row of the error list, or of a proxy over it, in the order shown.
QStringList errorKeys(const QAbstractItemModel &errors);

/// A row of the resource model as one text. Equal neighbours in the history are counted, as in
/// `0 x 59, 10 x 1`.
QString printedResource(const QModelIndex &index);

/// Every row of the resource model.
QStringList printedResources(const QAbstractItemModel &resources);

#endif
