#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "HostedPlugin.h"
#include "Invariants.h"
#include "SystemErrorModel.h"

#include <QSortFilterProxyModel>

#include <memory>

// What a user types into the filter of a view, in every mode.

using namespace Qt::Literals::StringLiterals;

namespace {

/// One error of each kind, with names in several scripts. The same for every input.
HostedPlugin &site()
{
    static HostedPlugin hosted;
    static const bool isFilled = [] {
        QStandardItem *const station = hosted.topologyModel.addStation(u"st1"_s, u"Lobby (1)"_s);
        TopologyModel::addCamera(station, u"st1/cam1"_s, u"Tür 駅 \\d+"_s);
        hosted.plugin.addCameraError(u"st1/cam1"_s, CameraDisconnected, QString());
        hosted.plugin.addCameraError(u"stray"_s, CameraDisconnected, QString());
        hosted.plugin.addSystemError(u"st1"_s, StationDisconnected, QString(), QString());
        hosted.plugin.addSystemError(u"st10"_s, HighCpuUsage, QString(), u"aaaaaaaa!"_s);
        hosted.plugin.addSystemError(QString(), VolumeDisconnected, QString(), u"x"_s);
        return true;
    }();
    Q_UNUSED(isFilled)
    return hosted;
}

int expectedRows(const QString &pattern, Qt::CaseSensitivity sensitivity, int mask,
                 const QString &station)
{
    const QRegularExpression expression(pattern, sensitivity == Qt::CaseInsensitive
                                                     ? QRegularExpression::CaseInsensitiveOption
                                                     : QRegularExpression::NoPatternOption);
    const SystemErrorModel &errors = *site().plugin.errorModel;
    int rows = 0;
    for (int row = 0; row < errors.rowCount(); ++row) {
        const QModelIndex error = errors.index(row, 0);
        const auto text = [&error](int role) { return error.data(role).toString(); };
        const bool hasText =
            pattern.isEmpty()
            || (expression.isValid()
                && (expression.match(text(SystemErrorModel::ErrorNameRole)).hasMatch()
                    || expression.match(text(SystemErrorModel::TriggerDeviceNameRole)).hasMatch()));
        const bool hasCategory =
            (mask & error.data(SystemErrorModel::ErrorCategoryRole).toInt()) > 0;
        if (hasText && hasCategory && text(SystemErrorModel::StationIDRole).contains(station))
            ++rows;
    }
    return rows;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const std::unique_ptr<QObject> owner(site().plugin.getSystemErrorSortFilterModel(nullptr));
    auto *const view = qobject_cast<QSortFilterProxyModel *>(owner.get());
    int mask = 3;
    QString station;
    while (!input.isEmpty()) {
        switch (input.below(8)) {
        case 0:
            mask = static_cast<int>(input.number());
            QMetaObject::invokeMethod(view, "setErrorCategory", Q_ARG(int, mask));
            break;
        case 1:
            station = input.id();
            QMetaObject::invokeMethod(view, "setFilterParentStationID", Q_ARG(QString, station));
            break;
        case 2:
            view->setFilterCaseSensitivity(input.flag() ? Qt::CaseSensitive : Qt::CaseInsensitive);
            break;
        case 3:
            view->setFilterFixedString(input.text(48));
            break;
        case 4:
            view->setFilterWildcard(input.text(48));
            break;
        default:
            view->setFilterRegularExpression(input.text(48));
        }
        require(view->rowCount()
                    == expectedRows(view->filterRegularExpression().pattern(),
                                    view->filterCaseSensitivity(), mask, station),
                "a view shows the rows that its filters let through");
    }
    return 0;
}
