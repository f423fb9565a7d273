#include "Options.h"
#include "Progress.h"
#include "Sections.h"
#include "SilentHost.h"
#include "Table.h"

#include <QEventLoop>
#include <QTimer>

#include <sys/resource.h>

namespace {

double milliseconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

double usedCpuMilliseconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

// The CPU time that the process takes for each second that it does nothing of its own accord.
double cpuMillisecondsPerSecond(double seconds)
{
    QEventLoop loop;
    QTimer::singleShot(static_cast<int>(seconds * 1000), &loop, &QEventLoop::quit);
    const double before = usedCpuMilliseconds();
    loop.exec();
    return (usedCpuMilliseconds() - before) / seconds;
}

} // namespace

QString measureIdle(const Options &options)
{
    progress(QStringLiteral("idle"));
    Table table({QString(), QStringLiteral("CPU ms each second")}, 1);
    table.add({QStringLiteral("event loop alone"),
               formatted(cpuMillisecondsPerSecond(options.idleSeconds))});
    for (const MeasuredPlugin &plugin : options.plugins) {
        const SilentHost host(plugin.file);
        table.add({plugin.label, formatted(cpuMillisecondsPerSecond(options.idleSeconds))});
    }
    return QStringLiteral("## Idle\n\n"
                          "CPU time over %1 s in which the plug-in only samples the machine, once "
                          "a second.\n\n%2")
        .arg(options.idleSeconds)
        .arg(table.toMarkdown());
}
