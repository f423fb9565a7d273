#ifndef OUTAGE_H
#define OUTAGE_H

#include "BareErrorList.h"
#include "Site.h"

class SilentHost;

// Fill a plug-in's error list before a timed part, through its own rules.
//
// Names are looked up in a topology of one station at a time. A build that searches the topology
// for each name, or the list for each station, then takes no longer than one that does not.

/// Reports every camera of the site down, station by station.
void reportCamerasDown(SilentHost &host, const Site &site);

/// Reports every station of the site down.
void reportStationsDown(SilentHost &host, const Site &site);

// What the plug-in of a file lists after that, for a floor to show the same.

QList<ErrorRow> rowsOfCamerasDown(const QString &pluginFile, const Site &site);
QList<ErrorRow> rowsOfStationsDown(const QString &pluginFile, const Site &site);

#endif
