#include "Invariants.h"

#include "SystemErrorModel.h"
#include "SystemResourceModelControl.h"
#include "TestedPlugin.h"

#include <QSet>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

void requireErrors(TestedPlugin &plugin)
{
    const SystemErrorModel &errors = *plugin.errorModel;
    QSet<QString> keys;
    QMap<QString, int> counts;
    for (int row = 0; row < errors.rowCount(); ++row) {
        const QModelIndex error = errors.index(row, 0);
        const QString key = error.data(SystemErrorModel::UniqueIDRole).toString();
        require(!keys.contains(key), "no key is listed twice");
        require(plugin.indexMap.find(key) == error, "every row is found by its key");
        keys.insert(key);
        ++counts[error.data(SystemErrorModel::StationIDRole).toString()];
    }

    plugin.invoke("updateStationErrorNumber");
    QVariantList expected;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        expected.append(QVariantMap{{u"stationID"_s, it.key()}, {u"errorNumber"_s, it.value()}});
    require(plugin.stationErrorList() == expected, "the counts are those of the rows");
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
