#ifndef ADDRESSREADER_H
#define ADDRESSREADER_H

#include "Site.h"

class JsonObject;

/// Reads the object at a key of a station: "url" and, if there, "networks" ("interface",
/// "bandwidth"). A station with "resources" must not have it. Throws InputError.
Exporter readExporter(JsonObject &station, const QString &key);

/// Reads the address at a key of a camera: "rtsp://host[:port]/path", or "host:port", which becomes
/// "tcp://host:port". Throws InputError.
QUrl readCameraAddress(JsonObject &camera, const QString &key);

#endif
