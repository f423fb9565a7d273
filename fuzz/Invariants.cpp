#include "Invariants.h"

#include "SystemErrorModel.h"
#include "SystemResourceModelControl.h"
#include "TestedPlugin.h"

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

// Makes the slowest target take less than three times as long.
constexpr int StepsForEachCheck = 3;

QList<int> rowsOf(const QList<QStandardItem *> &items)
{
    QList<int> rows;
    for (const QStandardItem *item : items)
        rows.append(item->row());
    return rows;
}

void requireErrors(TestedPlugin &plugin)
{
    const SystemErrorModel &errors = *plugin.errorModel;
    QSet<QString> keys;
    QMap<QString, QList<int>> stations;
    QMap<QString, QList<int>> devices;
    for (int row = 0; row < errors.rowCount(); ++row) {
        const QModelIndex error = errors.index(row, 0);
        const QString key = error.data(SystemErrorModel::UniqueIDRole).toString();
        require(!keys.contains(key), "no key is listed twice");
        require(plugin.indexMap.find(key) == error, "every row is found by its key");
        keys.insert(key);
        stations[error.data(SystemErrorModel::StationIDRole).toString()].append(row);
        devices[error.data(SystemErrorModel::DeviceIDRole).toString()].append(row);
    }

    QVariantList expected;
    for (auto it = stations.cbegin(); it != stations.cend(); ++it) {
        require(rowsOf(plugin.indexMap.rowsOfStation(it.key())) == it.value(),
                "the rows of a station are found, and no others");
        expected.append(QVariantMap{{u"stationID"_s, it.key()},
                                    {u"errorNumber"_s, static_cast<int>(it.value().size())}});
    }
    for (auto it = devices.cbegin(); it != devices.cend(); ++it)
        require(rowsOf(plugin.indexMap.rowsOfDevice(it.key())) == it.value(),
                "the rows of a device are found, and no others");
    require(plugin.indexMap.rowsOfStationsStartingWith(QString()).size() == errors.rowCount(),
            "every row is filed under a station");

    plugin.invoke("updateStationErrorNumber");
    require(plugin.stationErrorList() == expected, "the counts are those of the rows");
}

bool isListed(const QAbstractItemModel &errors, const QString &key)
{
    return !errors
                .match(errors.index(0, 0), SystemErrorModel::UniqueIDRole, key, 1,
                       Qt::MatchFixedString | Qt::MatchCaseSensitive)
                .isEmpty();
}

void requireView(TestedPlugin &plugin)
{
    const std::unique_ptr<QObject> view(plugin.getSystemErrorSortFilterModel(nullptr));
    require(qobject_cast<QAbstractItemModel *>(view.get())->rowCount()
                == plugin.errorModel->rowCount(),
            "a view shows every row");
}

void requireResources(const QAbstractItemModel &resources)
{
    require(resources.rowCount() >= 3, "there are three base rows");
    for (int row = 0; row < resources.rowCount(); ++row) {
        const QModelIndex resource = resources.index(row, 0);
        require(resource.data(SystemResourceModelItem::TypeRole).toInt() == qMin(row, 2),
                "CPU, memory and networks stand in this order");
        require(resource.data(SystemResourceModelItem::UsageListRole).toList().size()
                    == SystemResourceModelItem::HistoryLength,
                "a history is full");
    }
}

} // namespace

void requireConsistency(TestedPlugin &plugin)
{
    requireErrors(plugin);
    requireView(plugin);
    requireResources(*plugin.resourceModelControl->model());
}

void RegularConsistency::afterStep()
{
    if (++m_steps % StepsForEachCheck == 0)
        requireConsistency(m_plugin);
}

LeftKeys::LeftKeys(TestedPlugin &plugin)
    : m_plugin(plugin)
{
    const QAbstractItemModel *const errors = plugin.errorModel;
    const auto remember = [this, errors](const QModelIndex &parent, int first, int last) {
        for (int row = first; row <= last; ++row) {
            const QModelIndex error = errors->index(row, 0, parent);
            m_keys.insert(error.data(SystemErrorModel::UniqueIDRole).toString());
        }
    };
    QObject::connect(errors, &QAbstractItemModel::rowsAboutToBeRemoved, &m_receiver, remember);
}

void LeftKeys::requireForgotten() const
{
    for (const QString &key : m_keys) {
        const QModelIndex found = m_plugin.indexMap.find(key);
        require(!found.isValid() || found.data(SystemErrorModel::UniqueIDRole) == key,
                "a key finds its own row or none");
        require(found.isValid() == isListed(*m_plugin.errorModel, key),
                "a key that has left finds nothing");
    }
}
