#include "ICpuUsage.h"
#include "IMemoryUsage.h"
#include "INetworkUsage.h"
#include "Options.h"
#include "PlatformSamplers.h"
#include "Progress.h"
#include "SamplerTick.h"
#include "Sections.h"
#include "StopWatch.h"
#include "Table.h"

#include <algorithm>
#include <memory>

namespace {

constexpr int Ticks = 1000;

std::function<void()> ownTick()
{
    const SamplerFactory samplers = platformSamplers();
    return [cpu = samplers.createCpuUsage(), memory = samplers.createMemoryUsage()] {
        cpu->getPercentage();
        memory->getPercentage();
    };
}

double bestMicroseconds(const std::function<void()> &tick, int runs)
{
    double best = 0;
    for (int run = 0; run < runs; ++run) {
        const StopWatch watch;
        for (int i = 0; i < Ticks; ++i)
            tick();
        const double microseconds = watch.milliseconds() * 1000 / Ticks;
        best = run == 0 ? microseconds : std::min(best, microseconds);
    }
    return best;
}

} // namespace

QString measureSamplerTick(const Options &options)
{
    progress(QStringLiteral("sampler tick"));
    Table table({QString(), QStringLiteral("µs each tick")}, 1);
    const auto add = [&](const QString &name, const std::function<void()> &tick) {
        table.add(
            {name, tick ? formatted(bestMicroseconds(tick, options.runs)) : QStringLiteral("—")});
    };
    add(QStringLiteral("reading the two files"), readingTick());
    add(QStringLiteral("own samplers"), ownTick());
    add(QStringLiteral("libgtop2"), gtopTick());
    add(QStringLiteral("libproc2"), proc2Tick());

    QString text = QStringLiteral("## Sampler tick\n\n"
                                  "CPU and memory, best of %1 times %2 ticks. The samplers are "
                                  "those that the program was built with.\n\n%3")
                       .arg(options.runs)
                       .arg(formatted(Ticks), table.toMarkdown());
    if (!gtopTick() || !proc2Tick())
        text += QStringLiteral("\nA library is missing: install the packages of "
                               "cmake/packages-benchmarks.txt, and configure and build again.\n");
    return text;
}
