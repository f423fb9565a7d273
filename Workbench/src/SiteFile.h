#ifndef SITEFILE_H
#define SITEFILE_H

#include "Site.h"

/// Reads a site from a JSON file.
///
/// The outermost object has "name" and "stations". A station has "id" and "name" and may have
/// "connected" and "supportsMonitoring" (both true by default), "resources" ("cpu", "memory",
/// "networks") or instead an "exporter" ("url", "networks"), "volumes" ("id", "name", "connected"),
/// "recordingGroups" ("id", "name", "recordedDays", "requiredDays"), "cameras" ("id", "name",
/// "connected", "address") and further "stations".
/// The ids of cameras and sub-stations are their own parts and contain no "/".
///
/// Throws InputError when the file cannot be read, lacks a key, has an unknown one or an id twice.
Site readSiteFile(const QString &fileName);

#endif
