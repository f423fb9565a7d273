#include "SystemResourceModelItem.h"

#include <QObject>

#include <new>

SystemResourceModelItem *SystemResourceModelItem::create(Type type, const QString &title,
                                                         const QString &subtitle, int threshold)
{
    auto *item = new (std::nothrow) SystemResourceModelItem;
    if (!item)
        return nullptr;
    item->setData(static_cast<int>(type), TypeRole);
    item->setData(title, TitleRole);
    item->setData(subtitle, SubtitleRole);
    item->setData(threshold, ThresholdRole);
    item->setData(QVariantList(HistoryLength, 0), UsageListRole);
    item->setData(0, BandwidthRole);
    return item;
}

QHash<int, QByteArray> SystemResourceModelItem::roleNames()
{
    return {
        {TypeRole, "typeRole"},           {TitleRole, "titleRole"},
        {SubtitleRole, "subtitleRole"},   {ThresholdRole, "thresholdRole"},
        {UsageListRole, "usageListRole"}, {BandwidthRole, "bandwidthRole"},
    };
}

QString getTitle(SystemResourceModelItem::Type type)
{
    switch (type) {
    case SystemResourceModelItem::CpuType:
        return QObject::tr("CPU usage");
    case SystemResourceModelItem::MemoryType:
        return QObject::tr("Memory usage");
    case SystemResourceModelItem::NetworkType:
        return QObject::tr("Network usage");
    }
    return QString();
}
