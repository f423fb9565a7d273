#include "MemoryUsage_Linux.h"

#include "ProcFile_Linux.h"

#include <initializer_list>

namespace {

using Bytes = std::optional<unsigned long long>;

Bytes bytesIn(const QByteArrayList &words)
{
    if (words.size() != 2 || words[1] != "kB")
        return std::nullopt;
    const auto kibibytes = ProcFile::number(words[0]);
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

class MemInfo
{
public:
    explicit MemInfo(const QString &procRoot)
        : m_file(procRoot + QStringLiteral("/meminfo"))
    { }

    // What the line of a name says, or the given figure when there is no such line.
    Bytes bytes(QByteArrayView name, Bytes otherwise = std::nullopt) const
    {
        const auto words = m_file.wordsAfter(name);
        return words ? bytesIn(*words) : otherwise;
    }

private:
    ProcFile m_file;
};

} // namespace

MemoryUsage_Linux::MemoryUsage_Linux(const QString &procRoot)
    : m_procRoot(procRoot)
{ }

double MemoryUsage_Linux::getPercentage()
{
    // Older kernels do not tell of the memory of single processors and of compressed memory.
    const MemInfo info(m_procRoot);
    const Bytes physical = info.bytes("MemTotal:");
    const Bytes application = sum({info.bytes("AnonPages:"), info.bytes("Shmem:")});
    const Bytes wired = sum({info.bytes("SUnreclaim:"), info.bytes("KernelStack:"),
                             info.bytes("PageTables:"), info.bytes("Percpu:", 0)});
    const Bytes compressed = info.bytes("Zswap:", 0);
    if (!physical || *physical == 0 || !application || !wired || !compressed)
        return 0.0;

    const float used = static_cast<float>(*application) + static_cast<float>(*wired)
                       + static_cast<float>(*compressed);
    return used / static_cast<float>(*physical) * 100.0F;
}
