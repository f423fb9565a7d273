#include "CpuMeter.h"

#include <QtMath>

#include <utility>

std::optional<int> CpuMeter::measure(const QHash<QString, CpuCounter> &readings)
{
    const QHash<QString, CpuCounter> previous = std::exchange(m_previous, readings);
    if (readings.size() != previous.size())
        return {};
    double idle = 0;
    double total = 0;
    for (auto now = readings.cbegin(); now != readings.cend(); ++now) {
        const auto before = previous.constFind(now.key());
        if (before == previous.cend() || now->seconds < before->seconds)
            return {};
        const double spent = now->seconds - before->seconds;
        total += spent;
        if (now->isIdle)
            idle += spent;
    }
    if (total <= 0)
        return {};
    return qRound(100.0 * (total - idle) / total);
}
