#ifndef SYSTEMRESOURCEMODELITEM_H
#define SYSTEMRESOURCEMODELITEM_H

#include <QStandardItem>

/// One row of the resource model: the usage of one resource with its history.
class SystemResourceModelItem : public QStandardItem
{
public:
    enum Type : int {
        CpuType = 0,
        MemoryType = 1,
        NetworkType = 2,
    };

    enum Role : int {
        TypeRole = Qt::UserRole + 1, ///< int, a Type
        TitleRole,                   ///< string, translated
        SubtitleRole,                ///< string; the interface's name, empty for CPU and memory
        ThresholdRole,               ///< int, percent
        UsageListRole,               ///< list of HistoryLength numbers, percent, oldest first
        BandwidthRole,               ///< number, as the station reports it; 0 until it does
    };

    /// How many samples a history keeps.
    static constexpr int HistoryLength = 60;

    /// A new row with a history of zeros, or null when memory is short. The caller owns it.
    static SystemResourceModelItem *create(Type type, const QString &title, const QString &subtitle,
                                           int threshold);

    /// The names by which QML reads the roles.
    static QHash<int, QByteArray> roleNames();
};

/// The translated title of a kind of row; empty for an unknown kind.
QString getTitle(SystemResourceModelItem::Type type);

#endif
