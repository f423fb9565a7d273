#include "FuzzTarget.h"
#include "InputError.h"
#include "InputFile.h"
#include "Invariants.h"
#include "ScenarioFile.h"
#include "SiteFile.h"

// Scenarios that a user wrote, for the site that comes with the Workbench. A wrong one is refused
// with a message that names the file.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const Site site = readSiteFile(QStringLiteral(DEFAULT_SITE));
    static const InputFile file(QStringLiteral("scenario.json"));
    file.write(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    try {
        readScenarioFile(file.path(), site);
    } catch (const InputError &error) {
        require(error.message().contains(QLatin1String("scenario.json")),
                "a message names the file");
    }
    return 0;
}
