#ifndef ADDRESSREADER_H
#define ADDRESSREADER_H

#include "Site.h"

class JsonObject;

/// Reads the object at a key of a station: "url" and, if there, "networks" ("interface",
/// "bandwidth"). A station with "resources" must not have it. Throws InputError.
Exporter readExporter(JsonObject &station, const QString &key);

#endif
