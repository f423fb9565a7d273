#ifndef SYSTEMRESOURCEMODELCONTROL_H
#define SYSTEMRESOURCEMODELCONTROL_H

#include "ChangeQueue.h"
#include "SystemResourceModelItem.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QStandardItemModel>
#include <QVariant>

/// Owns and feeds the model of the focused station's resource usage.
///
/// Row 0 is the CPU, row 1 the memory, row 2 the first network interface; each further interface
/// has a row behind.
class SystemResourceModelControl : public QObject
{
    Q_OBJECT

public:
    /// @param cpuLimit, memoryLimit, networkLimit the thresholds shown on their rows, in percent
    SystemResourceModelControl(int cpuLimit, int memoryLimit, int networkLimit, QObject *parent);

    /// Starts over: the three base rows with empty histories; the next sample lays out the network
    /// rows anew. Returns false when memory is short; the rows made so far stay then. Called by who
    /// is told of a change of the model, it waits for the end of that change, and returns true.
    bool initialModelData();

    /// Pushes one sample into the rows, or waits as initialModelData() does.
    ///
    /// @param cpuPercentage, memoryPercentage whole percents
    /// @param networkUsageList one map per interface with its name, its usage in percent and its
    ///                         bandwidth. With N network rows each interface's history moves on by
    ///                         N entries.
    void updateUsage(int cpuPercentage, int memoryPercentage,
                     const QList<QVariant> &networkUsageList);

    /// Gives each interface of the first sample since initialModelData() its row. Later samples
    /// change no layout.
    void updateNetworkModalData(QList<QVariant> networkUsageList);

    /// The model; not owned by the caller.
    QStandardItemModel *model() const;

private:
    bool appendBaseRows();
    void pushSample(int cpuPercentage, int memoryPercentage,
                    const QList<QVariant> &networkUsageList);
    /// A new row, or null when memory is short, which is traced.
    QStandardItem *createRow(SystemResourceModelItem::Type type, const QString &subtitle,
                             int threshold, const char *caller) const;
    void updateNetworkUsage(const QList<QVariant> &networkUsageList);
    QStandardItem *findNetworkRow() const;
    QStandardItem *findInterface(const QVariant &name) const;

    bool networkRowsPending = true;
    int cpuThreshold;
    int memoryThreshold;
    int networkThreshold;
    QSharedPointer<QStandardItemModel> resourceModel;
    ChangeQueue changes{this}; ///< of the model
};

/// Moves a row's history on by one sample.
template <typename T> void updateUsageList(QStandardItem *item, T value)
{
    const QVariantList history = item->data(SystemResourceModelItem::UsageListRole).toList();
    // Room for one more from the start: the entries are copied once, and none is moved.
    QVariantList next;
    next.reserve(history.size() + 1);
    next.append(history);
    next.append(QVariant(value));
    // QML can write to the rows, too.
    if (!history.isEmpty())
        next.removeFirst();
    item->setData(next, SystemResourceModelItem::UsageListRole);
}

#endif
