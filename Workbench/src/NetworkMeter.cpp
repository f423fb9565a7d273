#include "NetworkMeter.h"

#include <algorithm>

namespace {

constexpr double AssumedSpeed = 1000.0; // Mbit/s
constexpr double BitsPerByte = 8.0;
constexpr double BitsPerMsToMbitPerSecond = 1e-3;

bool isSetBack(const InterfaceCounters &now, const InterfaceCounters &before)
{
    return now.receivedBytes < before.receivedBytes || now.sentBytes < before.sentBytes;
}

NetworkUsage usage(const InterfaceCounters &now, const InterfaceCounters &before, qint64 elapsedMs)
{
    const auto bytes = static_cast<double>(
        std::max(now.receivedBytes - before.receivedBytes, now.sentBytes - before.sentBytes));
    const double rate =
        bytes * BitsPerByte / static_cast<double>(elapsedMs) * BitsPerMsToMbitPerSecond;
    const double bandwidth = now.speed.value_or(AssumedSpeed);
    return {now.name, std::min(100.0, 100.0 * rate / bandwidth), bandwidth};
}

} // namespace

std::vector<NetworkUsage> NetworkMeter::measure(const std::vector<InterfaceCounters> &readings,
                                                qint64 nowMs)
{
    const qint64 elapsedMs = nowMs - m_previousMs;
    std::vector<NetworkUsage> usages;
    QHash<QString, InterfaceCounters> current;
    for (const InterfaceCounters &now : readings) {
        const auto before = m_previous.constFind(now.name);
        if (before != m_previous.cend() && elapsedMs > 0 && !isSetBack(now, *before))
            usages.push_back(usage(now, *before, elapsedMs));
        current.insert(now.name, now);
    }
    m_previous = current;
    m_previousMs = nowMs;
    return usages;
}
