#include "ModelRoles.h"
#include "ReportMaker.h"
#include "Scenario.h"
#include "SilentHost.h"
#include "StopWatch.h"
#include "Verify.h"

#include <memory>

namespace {

constexpr int Reports = 10'000;
// The reports repeat themselves with this period, and so do the histories of 60 entries.
constexpr int Period = 60;

const QString FocusStation = QStringLiteral("st000000");

QVariantList makePeriod()
{
    QVariantList reports;
    for (int i = 0; i < Period; ++i) {
        const double network = i % 45;
        reports.append(
            makeReport({10 + i, 80 - i, {network, network + 0.25, network + 0.5, network + 0.75}}));
    }
    return reports;
}

void send(const SilentHost &host, const QVariantList &reports)
{
    for (const QVariant &report : reports)
        host.report(report, FocusStation);
}

// Puts the station into focus and fills its histories, so that the next period leaves every value
// as it finds it.
void fillHistories(const SilentHost &host, const QVariantList &reports)
{
    verify(host.object()->setProperty("focusStationResource", FocusStation), "the focus");
    send(host, reports);
    verify(host.resources()->rowCount() == 2 + static_cast<int>(Usage::Interfaces),
           "a row for each resource");
}

double report(const Setting &setting)
{
    const QVariantList reports = makePeriod();
    SilentHost host(setting.pluginFile);
    fillHistories(host, reports);

    const StopWatch watch;
    for (int i = 0; i < setting.size; ++i)
        host.report(reports.at(i % Period), FocusStation);
    const double milliseconds = watch.milliseconds();

    const QVariantList history = host.resources()->item(0)->data(ResourceRole::UsageList).toList();
    verify(history.last()
               == reports.at((setting.size - 1) % Period)
                      .toMap()
                      .value(QStringLiteral("cpuPercentage")),
           "the last report is in the history");
    return milliseconds;
}

// A value that a report changed.
struct ValueChange
{
    int row;
    int role;
    QVariant value;
};

// The changes that the plug-in makes to its model in the course of each report of a period.
QList<QList<ValueChange>> recordChanges(const SilentHost &host, const QVariantList &reports)
{
    const QStandardItemModel &model = *host.resources();
    QList<QList<ValueChange>> changes;
    const auto connection = QObject::connect(
        &model, &QAbstractItemModel::dataChanged, &model,
        [&](const QModelIndex &index, const QModelIndex &, const QList<int> &roles) {
            changes.last().append({index.row(), roles.first(), index.data(roles.first())});
        });
    for (const QVariant &report : reports) {
        changes.append(QList<ValueChange>());
        host.report(report, FocusStation);
    }
    QObject::disconnect(connection);
    return changes;
}

// A history that changed is a list of its own.
QVariant detached(const QVariant &value)
{
    if (value.typeId() != QMetaType::QVariantList)
        return value;
    QVariantList list = value.toList();
    list.detach();
    return list;
}

double bareReport(const Setting &setting)
{
    const QVariantList reports = makePeriod();
    SilentHost host(setting.pluginFile);
    fillHistories(host, reports);
    const QList<QList<ValueChange>> changes = recordChanges(host, reports);

    QStandardItemModel model;
    for (int row = 0; row < host.resources()->rowCount(); ++row)
        model.appendRow(host.resources()->item(row)->clone());
    QList<QStandardItem *> items;
    for (int row = 0; row < model.rowCount(); ++row)
        items.append(model.item(row));

    const StopWatch watch;
    for (int i = 0; i < setting.size; ++i) {
        for (const ValueChange &change : changes.at(i % Period))
            items.at(change.row)->setData(detached(change.value), change.role);
    }
    const double milliseconds = watch.milliseconds();

    verify(items.first()->data(ResourceRole::UsageList)
               == changes.at((setting.size - 1) % Period).first().value,
           "the last change was repeated");
    return milliseconds;
}

} // namespace

const Scenario FocusStationReports{"j", "reports of the focused station", report, bareReport,
                                   Reports};
