#include "MemoryUsage_Linux.h"

#include "ProcFile_Linux.h"

#include <initializer_list>

namespace {

using Bytes = std::optional<unsigned long long>;

// What the line of a name says, or the given figure when there is no such line.
Bytes bytesOf(const ProcFile &info, std::string_view name, Bytes otherwise = std::nullopt)
{
    const auto words = info.wordsAfter(name);
    if (!words)
        return otherwise;
    if (words->size() != 2 || words->at(1) != "kB")
        return std::nullopt;
    const auto kibibytes = ProcFile::number(words->at(0));
    return kibibytes ? Bytes(*kibibytes * 1024) : std::nullopt;
}

Bytes sum(std::initializer_list<Bytes> terms)
{
    unsigned long long total = 0;
    for (const Bytes &term : terms) {
        if (!term)
            return std::nullopt;
        total += *term;
    }
    return total;
}

} // namespace

MemoryUsage_Linux::MemoryUsage_Linux(const QString &procRoot)
    : m_procRoot(procRoot)
{ }

double MemoryUsage_Linux::getPercentage()
{
    const ProcFile info(m_procRoot + QStringLiteral("/meminfo"));
    const Bytes physical = bytesOf(info, "MemTotal:");
    const Bytes application = sum({bytesOf(info, "AnonPages:"), bytesOf(info, "Shmem:")});
    // Older kernels tell neither what single processors hold nor what is kept compressed.
    const Bytes wired = sum({bytesOf(info, "SUnreclaim:"), bytesOf(info, "KernelStack:"),
                             bytesOf(info, "PageTables:"), bytesOf(info, "Percpu:", 0)});
    const Bytes compressed = bytesOf(info, "Zswap:", 0);
    if (!physical || *physical == 0 || !application || !wired || !compressed)
        return 0.0;

    const float used = static_cast<float>(*application) + static_cast<float>(*wired)
                       + static_cast<float>(*compressed);
    return used / static_cast<float>(*physical) * 100.0F;
}
