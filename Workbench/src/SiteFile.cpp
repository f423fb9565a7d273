#include "SiteFile.h"

#include "JsonObject.h"
#include "SiteJson.h"

Site readSiteFile(const QString &fileName)
{
    JsonObject file = JsonObject::fromFile(fileName);
    return readSite(file);
}
