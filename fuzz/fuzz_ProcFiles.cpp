#include "CpuUsage_Linux.h"
#include "FuzzTarget.h"
#include "InputFile.h"
#include "Invariants.h"
#include "MemoryUsage_Linux.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numeric>
#include <optional>

// What the kernel tells of processors and memory, well formed or not. A byte that no kernel writes
// parts an input into what is read first and what is read later.

namespace {

constexpr char Separator = '\0';

/// User, nice, system, idle, I/O wait, interrupts, soft interrupts, stolen.
using Ticks = std::array<quint64, 8>;

std::optional<quint64> digits(const QByteArray &word)
{
    const bool hasDigitsOnly =
        std::all_of(word.begin(), word.end(), [](char c) { return c >= '0' && c <= '9'; });
    bool fits = false;
    const quint64 number = word.toULongLong(&fits);
    return hasDigitsOnly && fits ? std::optional(number) : std::nullopt;
}

/// The ticks of a text that begins as the kernel's does; there are others that can be read.
std::optional<Ticks> ticksOf(const QByteArray &text)
{
    const QByteArrayList words = text.left(text.indexOf('\n')).split(' ');
    if (words.size() < 10 || words.at(0) != "cpu" || !words.at(1).isEmpty())
        return std::nullopt;
    Ticks ticks{};
    for (std::size_t column = 0; column < ticks.size(); ++column) {
        const auto number = digits(words.at(static_cast<qsizetype>(column) + 2));
        if (!number)
            return std::nullopt;
        ticks[column] = *number;
    }
    return ticks;
}

/// What passed between two texts; nothing when a counter stepped back or there are too many ticks
/// to add up.
std::optional<Ticks> ticksBetween(const Ticks &earlier, const Ticks &later)
{
    if (!std::equal(later.begin(), later.end(), earlier.begin(), std::greater_equal<>()))
        return std::nullopt;
    if (std::any_of(later.begin(), later.end(), [](quint64 count) { return count >> 60 != 0; }))
        return std::nullopt;
    Ticks passed{};
    std::transform(later.begin(), later.end(), earlier.begin(), passed.begin(), std::minus<>());
    return passed;
}

double expectedLoad(const Ticks &passed)
{
    const quint64 total = std::accumulate(passed.begin(), passed.end(), quint64{0});
    if (total == 0)
        return 100.0;
    return 100.0 - 100.0 * static_cast<double>(passed[3] + passed[4]) / static_cast<double>(total);
}

void requireLoad(const InputFile &stat, const QByteArray &earlier, const QByteArray &later)
{
    CpuUsage_Linux cpu(stat.directory());
    stat.write(earlier);
    // What passed since the last input is anybody's guess, counters that step back among it.
    const double first = cpu.getPercentage();
    require(std::isfinite(first) && first <= 100.0, "a processor's load is a number up to 100");

    stat.write(later);
    const double load = cpu.getPercentage();
    require(std::isfinite(load) && load <= 100.0, "a later load is a number up to 100");
    const auto earlierTicks = ticksOf(earlier);
    const auto laterTicks = ticksOf(later);
    const auto passed =
        earlierTicks && laterTicks ? ticksBetween(*earlierTicks, *laterTicks) : std::nullopt;
    if (passed) {
        require(load >= 0.0, "counters that step forward make a load from 0 to 100");
        require(std::abs(load - expectedLoad(*passed)) < 0.001,
                "a load is the share of the ticks that were not idle");
    }

    // Nothing has passed since: that counts as full load, or the file tells nothing.
    const double again = cpu.getPercentage();
    require(qFuzzyCompare(again, 100.0) || qFuzzyCompare(again, -100.0),
            "the same figures again are full load");
    require(!laterTicks || again > 0.0, "figures as the kernel writes them are understood");
}

void requireMemory(const InputFile &meminfo, const QByteArray &content)
{
    meminfo.write(content);
    MemoryUsage_Linux memory(meminfo.directory());
    const double used = memory.getPercentage();
    require(std::isfinite(used) && used >= 0.0, "the memory in use is a number");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    static const InputFile stat(QStringLiteral("stat"));
    static const InputFile meminfo(QStringLiteral("meminfo"));
    const qsizetype separator = content.indexOf(Separator);
    const QByteArray earlier = content.left(separator);
    const QByteArray later = separator < 0 ? content : content.mid(separator + 1);
    requireLoad(stat, earlier, later);
    requireMemory(meminfo, earlier);
    if (separator >= 0)
        requireMemory(meminfo, later);
    return 0;
}
