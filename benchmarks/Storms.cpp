#include "Storms.h"

#include "Options.h"
#include "Progress.h"
#include "Scenario.h"
#include "Series.h"
#include "Table.h"

#include <algorithm>
#include <array>

namespace {

// Repetitions end when they have taken this long.
constexpr double EnoughMilliseconds = 2000;

constexpr std::array AllScenarios = {
    &StartUpWalkConnected, &StartUpWalkDisconnected, &CamerasGoDown,
    &CamerasComeBack,      &ServerDisconnects,       &TextFilter,
    &StationsRemoved,      &ResourceReports,         &StationCounts,
    &FocusStationReports,  &TopologyFilled,          &FirstName,
};

const QString Missing = QStringLiteral("—");

double bestOf(Scenario::Run run, const Setting &setting, int runs)
{
    double best = run(setting);
    double total = best;
    for (int i = 1; i < runs && total < EnoughMilliseconds; ++i) {
        const double milliseconds = run(setting);
        best = std::min(best, milliseconds);
        total += milliseconds;
    }
    return best;
}

// Measures one size, and returns what its cell of the table says.
QString measure(Series &series, Scenario::Run run, const Setting &setting, const Options &options)
{
    const double expected = series.expected(setting.size);
    if (expected > options.budgetSeconds * 1000)
        return QStringLiteral("%1 (~%2 s)").arg(Missing, formatted(expected / 1000));
    const double milliseconds = bestOf(run, setting, options.runs);
    series.add(setting.size, milliseconds);
    return formatted(milliseconds);
}

QString factor(std::optional<double> number)
{
    return number ? formattedFactor(*number) : QString();
}

QString ratio(std::optional<double> plugin, std::optional<double> floor)
{
    return plugin && floor ? formattedFactor(*plugin / *floor) : Missing;
}

QStringList header(const QList<MeasuredPlugin> &plugins)
{
    QStringList cells{QString(), QStringLiteral("scenario"), QStringLiteral("N"),
                      QStringLiteral("floor ms"), QStringLiteral("growth")};
    for (const MeasuredPlugin &plugin : plugins)
        cells << plugin.label + QStringLiteral(" ms") << QStringLiteral("/ floor")
              << QStringLiteral("growth");
    return cells;
}

void measureScenario(const Scenario &scenario, const Options &options, Table &table)
{
    Series floors;
    QList<Series> plugins(options.plugins.size());
    const QList<int> sizes =
        scenario.fixedSize > 0 ? QList<int>{scenario.fixedSize} : options.sizes;
    for (const int size : sizes) {
        progress(QStringLiteral("%1, N = %2").arg(QLatin1String(scenario.name), formatted(size)));
        // The floor's set-up reads its rows from the list of the first plug-in.
        const QString cell =
            measure(floors, scenario.floor, {options.plugins.first().file, size}, options);
        QStringList cells{QLatin1String(scenario.name), QLatin1String(scenario.title),
                          formatted(size), cell, factor(floors.growth(size))};
        for (qsizetype i = 0; i < plugins.size(); ++i) {
            Series &series = plugins[i];
            cells << measure(series, scenario.plugin, {options.plugins.at(i).file, size}, options)
                  << ratio(series.at(size), floors.at(size)) << factor(series.growth(size));
        }
        table.add(cells);
    }
}

} // namespace

QString measureStorms(const Options &options)
{
    Table table(header(options.plugins), 2);
    bool isEmpty = true;
    for (const Scenario *scenario : AllScenarios) {
        if (!options.isWanted(QLatin1String(scenario->name)))
            continue;
        measureScenario(*scenario, options, table);
        isEmpty = false;
    }
    if (isEmpty)
        return QString();
    return QStringLiteral(
               "## Storms\n\n"
               "Best of up to %1 runs. \"/ floor\" is the ratio to the floor, \"growth\" "
               "that to the size before. \"— (~80 s)\" was left out: the sizes before "
               "let expect more than %2 s.\n\n%3")
        .arg(options.runs)
        .arg(options.budgetSeconds)
        .arg(table.toMarkdown());
}
