#include "FuzzTarget.h"
#include "InputError.h"
#include "InputFile.h"
#include "Invariants.h"
#include "SiteFile.h"

// Sites that a user wrote. A wrong one is refused with a message that names the file.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const InputFile file(QStringLiteral("site.json"));
    file.write(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    try {
        readSiteFile(file.path());
    } catch (const InputError &error) {
        require(error.message().contains(QLatin1String("site.json")), "a message names the file");
    }
    return 0;
}
