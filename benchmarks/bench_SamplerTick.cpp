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
#include <functional>
#include <memory>
#include <utility>

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

struct Subject
{
    QString name;
    std::function<void()> tick; ///< null where the library is missing
    double best = 0;            ///< in microseconds
};

double microsecondsPerTick(const std::function<void()> &tick)
{
    const StopWatch watch;
    for (int i = 0; i < Ticks; ++i)
        tick();
    return watch.milliseconds() * 1000 / Ticks;
}

// All in turn, so that a minute in which the machine is busy falls on each of them.
void measureRounds(QList<Subject> &subjects, int runs)
{
    for (int run = 0; run < runs; ++run) {
        for (Subject &subject : subjects) {
            if (!subject.tick)
                continue;
            const double microseconds = microsecondsPerTick(subject.tick);
            subject.best = run == 0 ? microseconds : std::min(subject.best, microseconds);
        }
    }
}

} // namespace

QString measureSamplerTick(const Options &options)
{
    progress(QStringLiteral("sampler tick"));
    Table table({QString(), QStringLiteral("µs each tick")}, 1);
    QList<Subject> subjects{
        {QStringLiteral("reading the two files"), readingTick()},
        {QStringLiteral("own samplers"), ownTick()},
        {QStringLiteral("libgtop2"), gtopTick()},
        {QStringLiteral("libproc2"), proc2Tick()},
    };
    measureRounds(subjects, options.runs);
    for (const Subject &subject : std::as_const(subjects))
        table.add({subject.name, subject.tick ? formatted(subject.best) : QStringLiteral("—")});

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
