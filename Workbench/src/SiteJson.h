#ifndef SITEJSON_H
#define SITEJSON_H

#include "Site.h"

#include <QJsonObject>

class JsonObject;

/// Reads a site with all its nodes: "name" and "stations", as readSiteFile() describes them. Throws
/// InputError for what is missing, unknown or there twice.
Site readSite(JsonObject &object);

/// The site as readSite() takes it, apart from the loads that its stations report and from where
/// real ones are found.
QJsonObject toJson(const Site &site);

/// Reads "volumes" and "recordingGroups" into a station. Throws InputError.
void readStorage(JsonObject &object, Station &station);

/// Writes a station's volumes and recording groups as readStorage() takes them.
void writeStorage(const Station &station, QJsonObject &object);

#endif
