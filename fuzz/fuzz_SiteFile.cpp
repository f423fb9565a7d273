#include "FuzzTarget.h"
#include "InputError.h"
#include "InputFile.h"
#include "Invariants.h"
#include "SiteFile.h"
#include "SiteInvariants.h"

#include <optional>

// Sites that a user wrote. A wrong one is refused with a message that names the file.

namespace {

std::optional<Site> read(const QByteArray &text)
{
    static const InputFile file(QStringLiteral("site.json"));
    file.write(text);
    try {
        return readSiteFile(file.path());
    } catch (const InputError &error) {
        require(error.message().contains(QLatin1String("site.json")), "a message names the file");
        return std::nullopt;
    }
}

bool isPercentage(double value)
{
    return value >= 0 && value <= 100;
}

void requireReports(const Station &station)
{
    require(station.id != ThisMachineId, "no station stands for this machine");
    require(!station.resources || !station.exporter, "a station tells its load in one way");
    if (!station.resources)
        return;
    require(isPercentage(station.resources->cpuPercentage)
                && isPercentage(station.resources->memoryPercentage),
            "a load is a percentage");
    for (const NetworkUsage &network : station.resources->networks)
        require(isPercentage(network.percentage) && network.bandwidth >= 0,
                "the load of a network is a percentage");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const std::optional<Site> site = read(text);
    if (!site)
        return 0;
    requireTree(*site);
    requireRewritable(*site);
    site->forEachStation(requireReports);
    return 0;
}
