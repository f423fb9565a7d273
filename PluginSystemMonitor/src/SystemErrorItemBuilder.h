#ifndef SYSTEMERRORITEMBUILDER_H
#define SYSTEMERRORITEMBUILDER_H

#include <QMap>
#include <QString>
#include <QVariant>

class QStandardItem;

/// Turns the record of an error into a row of the error list.
class SystemErrorItemBuilder
{
public:
    /// A new item with the record's values, unconverted, under the roles of SystemErrorModel. A key
    /// that the record lacks leaves its role empty. The caller owns the item.
    static QStandardItem *create(const QMap<QString, QVariant> &record);
};

#endif
