#include "SystemErrorModel.h"

SystemErrorModel::SystemErrorModel(QObject *parent)
    : QStandardItemModel(parent)
{ }

QHash<int, QByteArray> SystemErrorModel::roleNames() const
{
    return {
        {StationIDRole, "stationIDRole"},
        {DeviceIDRole, "deviceIDRole"},
        {ErrorTypeRole, "errorTypeRole"},
        {ErrorCategoryRole, "errorCategoryRole"},
        {TimestampRole, "timestampRole"},
        {ErrorNameRole, "errorNameRole"},
        {TriggerDeviceNameRole, "triggerDeviceNameRole"},
        {UniqueIDRole, "uniqueIDRole"},
    };
}
