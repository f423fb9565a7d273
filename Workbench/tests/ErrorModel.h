#ifndef ERRORMODEL_H
#define ERRORMODEL_H

#include <QStandardItemModel>

/// A list with the role names of the error list, under numbers of its own.
class ErrorModel : public QStandardItemModel
{
public:
    enum Role : int { Key = 1001, Type, Name, Origin, Station, Device, Category, Time };

    QHash<int, QByteArray> roleNames() const override
    {
        return {{Key, "uniqueIDRole"},           {Type, "errorTypeRole"},
                {Name, "errorNameRole"},         {Origin, "triggerDeviceNameRole"},
                {Station, "stationIDRole"},      {Device, "deviceIDRole"},
                {Category, "errorCategoryRole"}, {Time, "timestampRole"}};
    }

    void add(const QString &key, int type, const QString &name, const QString &origin)
    {
        auto item = new QStandardItem;
        item->setData(key, Key);
        item->setData(type, Type);
        item->setData(name, Name);
        item->setData(origin, Origin);
        appendRow(item);
    }
};

#endif
