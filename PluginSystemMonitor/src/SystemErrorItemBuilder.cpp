#include "SystemErrorItemBuilder.h"

#include "SystemErrorModel.h"

#include <QStandardItem>

#include <array>
#include <memory>

namespace {

struct Field
{
    QString key;
    int role;
};

// In the order in which a record holds them.
const std::array<Field, 8> &fields()
{
    static const std::array<Field, 8> fields = {{
        {QStringLiteral("deviceID"), SystemErrorModel::DeviceIDRole},
        {QStringLiteral("errorCategory"), SystemErrorModel::ErrorCategoryRole},
        {QStringLiteral("errorName"), SystemErrorModel::ErrorNameRole},
        {QStringLiteral("errorType"), SystemErrorModel::ErrorTypeRole},
        {QStringLiteral("id"), SystemErrorModel::UniqueIDRole},
        {QStringLiteral("stationID"), SystemErrorModel::StationIDRole},
        {QStringLiteral("timestamp"), SystemErrorModel::TimestampRole},
        {QStringLiteral("triggerDeviceName"), SystemErrorModel::TriggerDeviceNameRole},
    }};
    return fields;
}

// An item with room for every role: a bare one would make room again and again.
std::unique_ptr<const QStandardItem> makeBlank()
{
    auto item = std::make_unique<QStandardItem>();
    for (const Field &field : fields())
        item->setData(QVariant(), field.role);
    return item;
}

} // namespace

QStandardItem *SystemErrorItemBuilder::create(const QMap<QString, QVariant> &record)
{
    static const std::unique_ptr<const QStandardItem> blank = makeBlank();
    QStandardItem *item = blank->clone();
    auto it = record.cbegin();
    for (const auto &[key, role] : fields()) {
        if (it == record.cend() || it.key() != key)
            it = record.constFind(key);
        if (it != record.cend())
            item->setData((it++).value(), role);
    }
    return item;
}
