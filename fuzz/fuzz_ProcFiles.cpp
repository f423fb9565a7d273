#include "CpuUsage_Linux.h"
#include "FuzzTarget.h"
#include "InputFile.h"
#include "Invariants.h"
#include "MemoryUsage_Linux.h"

#include <cmath>

// What the kernel tells of processors and memory, well formed or not.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    static const InputFile stat(QStringLiteral("stat"));
    static const InputFile meminfo(QStringLiteral("meminfo"));
    stat.write(content);
    meminfo.write(content);

    CpuUsage_Linux cpu(stat.directory());
    require(std::isfinite(cpu.getPercentage()), "a processor's load is a number");
    // Nothing has passed since: that counts as full load, or the file tells nothing.
    const double load = cpu.getPercentage();
    require(qFuzzyCompare(load, 100.0) || qFuzzyCompare(load, -100.0),
            "the same figures again are full load");

    MemoryUsage_Linux memory(meminfo.directory());
    const double used = memory.getPercentage();
    require(std::isfinite(used) && used >= 0.0, "the memory in use is a number");
    return 0;
}
