#include "Storms.h"

#include "Options.h"
#include "Progress.h"
#include "Scenario.h"
#include "Series.h"
#include "Table.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr std::array AllScenarios = {
    &StartUpWalkConnected, &StartUpWalkDisconnected, &CamerasGoDown,
    &CamerasComeBack,      &ServerDisconnects,       &TextFilter,
    &StationsRemoved,      &ResourceReports,         &StationCounts,
    &FocusStationReports,  &TopologyFilled,          &FirstName,
};

const QString Missing = QStringLiteral("—");

// The floor, or the scenario with one of the plug-ins.
struct Subject
{
    Scenario::Run run;
    QString pluginFile; ///< the floor's set-up reads its rows from the list of the first plug-in
    Series series;

    QList<int> sizesLeftOut; ///< which would take too long
};

QList<Subject> subjectsOf(const Scenario &scenario, const QList<MeasuredPlugin> &plugins)
{
    QList<Subject> subjects{{scenario.floor, plugins.first().file, {}, {}}};
    for (const MeasuredPlugin &plugin : plugins)
        subjects.append({scenario.plugin, plugin.file, {}, {}});
    return subjects;
}

void leaveOutWhatTakesTooLong(QList<Subject> &subjects, int size, const Options &options)
{
    for (Subject &subject : subjects) {
        if (subject.series.expected(size) > options.budgetSeconds * 1000)
            subject.sizesLeftOut.append(size);
    }
}

void measureRound(QList<Subject> &subjects, int size, const Options &options)
{
    // All end together: the best of many runs would be compared with the best of few.
    const bool isEnough =
        std::any_of(subjects.cbegin(), subjects.cend(), [&](const Subject &subject) {
            return subject.series.spent(size) >= options.enoughSeconds * 1000;
        });
    if (isEnough)
        return;
    for (Subject &subject : subjects) {
        if (!subject.sizesLeftOut.contains(size))
            subject.series.add(size, subject.run({subject.pluginFile, size}));
    }
}

QString time(const Subject &subject, int size)
{
    if (const std::optional<double> milliseconds = subject.series.at(size))
        return formatted(*milliseconds);
    return QStringLiteral("%1 (~%2 s)")
        .arg(Missing, formatted(subject.series.expected(size) / 1000));
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

QStringList cells(const Scenario &scenario, const QList<Subject> &subjects, int size)
{
    const Subject &floor = subjects.first();
    QStringList cells{QLatin1String(scenario.name), QLatin1String(scenario.title), formatted(size),
                      time(floor, size), factor(floor.series.growth(size))};
    for (qsizetype i = 1; i < subjects.size(); ++i) {
        const Subject &plugin = subjects.at(i);
        cells << time(plugin, size) << ratio(plugin.series.at(size), floor.series.at(size))
              << factor(plugin.series.growth(size));
    }
    return cells;
}

// All sizes and subjects in turn, again and again: a minute in which the machine is busy with other
// things then falls on each of them, and so does a calm one.
void measureScenario(const Scenario &scenario, const Options &options, Table &table)
{
    QList<Subject> subjects = subjectsOf(scenario, options.plugins);
    const QList<int> sizes =
        scenario.fixedSize > 0 ? QList<int>{scenario.fixedSize} : options.sizes;
    for (int run = 0; run < options.runs; ++run) {
        progress(QStringLiteral("%1, run %2").arg(QLatin1String(scenario.name)).arg(run + 1));
        for (const int size : sizes) {
            if (run == 0)
                leaveOutWhatTakesTooLong(subjects, size, options);
            measureRound(subjects, size, options);
        }
    }
    for (const int size : sizes)
        table.add(cells(scenario, subjects, size));
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
               "Best of up to %1 runs in turn. \"/ floor\" is the ratio to the floor, \"growth\" "
               "that to the size before. \"— (~80 s)\" was left out: the sizes before "
               "let expect more than %2 s.\n\n%3")
        .arg(options.runs)
        .arg(options.budgetSeconds)
        .arg(table.toMarkdown());
}
