#include "CpuUsage_Linux.h"

#include "CpuLoad.h"
#include "ProcFile_Linux.h"

#include <array>
#include <numeric>

namespace {

// The columns of the aggregate line that make up all CPU time. The columns behind them tell what
// share of the first two went to guest systems.
enum Column { User, Nice, System, Idle, IoWait, Irq, SoftIrq, Steal, ColumnCount };

using Ticks = std::array<unsigned long long, ColumnCount>;

std::optional<Ticks> readTicks(const QString &procRoot)
{
    const ProcFile file(procRoot + QStringLiteral("/stat"));
    const auto words = file.wordsAfter("cpu");
    if (!words || words->size() < ColumnCount)
        return std::nullopt;

    Ticks ticks;
    for (int column = 0; column < ColumnCount; ++column) {
        const auto number = ProcFile::number(words->at(column));
        if (!number)
            return std::nullopt;
        ticks[static_cast<std::size_t>(column)] = *number;
    }
    return ticks;
}

} // namespace

float GetCPULoad(const QString &procRoot)
{
    const auto ticks = readTicks(procRoot);
    if (!ticks)
        return -1.0F;

    const unsigned long long idle = (*ticks)[Idle] + (*ticks)[IoWait];
    const unsigned long long total = std::accumulate(ticks->begin(), ticks->end(), 0ULL);
    return CalculateCPULoad(idle, total);
}

CpuUsage_Linux::CpuUsage_Linux(const QString &procRoot)
    : m_procRoot(procRoot)
{ }

double CpuUsage_Linux::getPercentage()
{
    // The -1 of a failure becomes the -100 that tells of it.
    return GetCPULoad(m_procRoot) * 100.0F;
}
