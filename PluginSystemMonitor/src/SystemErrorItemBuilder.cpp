#include "SystemErrorItemBuilder.h"

#include "SystemErrorModel.h"

#include <QStandardItem>

QStandardItem *SystemErrorItemBuilder::create(const QMap<QString, QVariant> &record)
{
    auto *item = new QStandardItem;
    const auto set = [&record, item](const QString &key, int role) {
        const auto it = record.constFind(key);
        if (it != record.cend())
            item->setData(it.value(), role);
    };
    set(QStringLiteral("id"), SystemErrorModel::UniqueIDRole);
    set(QStringLiteral("stationID"), SystemErrorModel::StationIDRole);
    set(QStringLiteral("deviceID"), SystemErrorModel::DeviceIDRole);
    set(QStringLiteral("timestamp"), SystemErrorModel::TimestampRole);
    set(QStringLiteral("errorCategory"), SystemErrorModel::ErrorCategoryRole);
    set(QStringLiteral("errorType"), SystemErrorModel::ErrorTypeRole);
    set(QStringLiteral("errorName"), SystemErrorModel::ErrorNameRole);
    set(QStringLiteral("triggerDeviceName"), SystemErrorModel::TriggerDeviceNameRole);
    return item;
}
