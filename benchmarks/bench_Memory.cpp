#include "BareErrorList.h"
#include "MemoryUse.h"
#include "Options.h"
#include "Outage.h"
#include "Progress.h"
#include "Sections.h"
#include "SilentHost.h"
#include "Table.h"
#include "Verify.h"

namespace {

constexpr int Errors = 20'000;

// What the program has allocated and not freed.
double bytesInUse()
{
    return static_cast<double>(MemoryUse::now().allocated);
}

double bytesPerError(const QString &pluginFile)
{
    const Site site(Errors);
    SilentHost host(pluginFile);

    const double before = bytesInUse();
    reportCamerasDown(host, site);
    const double after = bytesInUse();

    verify(host.errors()->rowCount() == Errors, "a row for each camera");
    return (after - before) / Errors;
}

double bytesPerBareRow(const QString &pluginFile)
{
    const QList<ErrorRow> rows = rowsOfCamerasDown(pluginFile, Site(Errors));
    BareErrorList errors;

    const double before = bytesInUse();
    errors.fill(rows);
    const double after = bytesInUse();

    return (after - before) / Errors;
}

} // namespace

QString measureMemory(const Options &options)
{
    if (!MemoryUse::isMeaningful())
        return QStringLiteral("## Memory\n\nThis system or build does not tell.\n");
    progress(QStringLiteral("memory"));
    Table table({QString(), QStringLiteral("bytes for each error")}, 1);
    table.add(
        {QStringLiteral("bare row"), formatted(bytesPerBareRow(options.plugins.first().file))});
    for (const MeasuredPlugin &plugin : options.plugins)
        table.add({plugin.label, formatted(bytesPerError(plugin.file))});
    return QStringLiteral("## Memory\n\n"
                          "Allocated for a list of %1 cameras that are down, without a proxy; the "
                          "bare row shares the texts that the row before has.\n\n%2")
        .arg(formatted(Errors), table.toMarkdown());
}
