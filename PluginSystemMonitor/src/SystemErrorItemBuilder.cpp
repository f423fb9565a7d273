#include "SystemErrorItemBuilder.h"

#include "SystemErrorModel.h"

#include <QStandardItem>

QStandardItem *SystemErrorItemBuilder::create(const QMap<QString, QVariant> &record)
{
    auto *item = new QStandardItem;
    item->setData(record.value(QStringLiteral("id")), SystemErrorModel::UniqueIDRole);
    item->setData(record.value(QStringLiteral("stationID")), SystemErrorModel::StationIDRole);
    item->setData(record.value(QStringLiteral("deviceID")), SystemErrorModel::DeviceIDRole);
    item->setData(record.value(QStringLiteral("timestamp")), SystemErrorModel::TimestampRole);
    item->setData(record.value(QStringLiteral("errorCategory")),
                  SystemErrorModel::ErrorCategoryRole);
    item->setData(record.value(QStringLiteral("errorType")), SystemErrorModel::ErrorTypeRole);
    item->setData(record.value(QStringLiteral("errorName")), SystemErrorModel::ErrorNameRole);
    item->setData(record.value(QStringLiteral("triggerDeviceName")),
                  SystemErrorModel::TriggerDeviceNameRole);
    return item;
}
