#include "Options.h"
#include "PluginBase.h"
#include "Progress.h"
#include "Sections.h"
#include "StopWatch.h"
#include "Table.h"
#include "Verify.h"

#include <QFile>
#include <QPluginLoader>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>

namespace {

struct LoadTime
{
    double load = 0;       ///< reading the metadata, mapping the file, its static objects
    double instance = 0;   ///< creating the plug-in object
    double initialise = 0; ///< InitialPluginBase()

    double total() const { return load + instance + initialise; }
};

LoadTime load(const QString &file)
{
    LoadTime time;
    const StopWatch loading;
    QPluginLoader loader(file);
    verify(loader.load(), qUtf8Printable(loader.errorString()));
    time.load = loading.milliseconds();

    const StopWatch creating;
    const std::unique_ptr<QObject> object(loader.instance());
    time.instance = creating.milliseconds();

    auto *plugin = qobject_cast<PluginBase *>(object.get());
    verify(plugin, "the plug-in's interface");
    const StopWatch initialising;
    verify(plugin->InitialPluginBase(nullptr, nullptr, nullptr), "InitialPluginBase");
    time.initialise = initialising.milliseconds();
    return time;
}

// A loaded file stays loaded, so each run loads a copy of its own.
LoadTime bestLoad(const QString &file, int runs)
{
    const QTemporaryDir directory;
    LoadTime best;
    for (int run = 0; run < runs; ++run) {
        const QString copy = directory.filePath(QString::number(run));
        verify(QFile::copy(file, copy), "a copy of the plug-in file");
        const LoadTime time = load(copy);
        if (run == 0 || time.total() < best.total())
            best = time;
    }
    return best;
}

} // namespace

QString measureLoadTime(const Options &options)
{
    progress(QStringLiteral("load time"));
    Table table({QString(), QStringLiteral("load ms"), QStringLiteral("instance ms"),
                 QStringLiteral("initialise ms"), QStringLiteral("total ms")},
                1);
    for (const MeasuredPlugin &plugin : options.plugins) {
        const LoadTime time = bestLoad(plugin.file, options.runs);
        table.add({plugin.label, formatted(time.load), formatted(time.instance),
                   formatted(time.initialise), formatted(time.total())});
    }
    return QStringLiteral("## Load time\n\n"
                          "Best of %1 loads in a process that uses Qt already.\n\n%2")
        .arg(options.runs)
        .arg(table.toMarkdown());
}
