#ifndef TESTSITE_H
#define TESTSITE_H

#include "Site.h"

/// A small site: station "north" with two cameras, a volume, a recording group and the sub-station
/// "north/annex" with one camera; station "south" with one camera, which does not support
/// monitoring.
inline Site testSite()
{
    Station annex;
    annex.id = QStringLiteral("north/annex");
    annex.name = QStringLiteral("Annex");
    annex.cameras = {{QStringLiteral("north/annex/c1"), QStringLiteral("Stairs"), true}};

    Station north;
    north.id = QStringLiteral("north");
    north.name = QStringLiteral("North");
    north.cameras = {{QStringLiteral("north/c1"), QStringLiteral("Door"), true},
                     {QStringLiteral("north/c2"), QStringLiteral("Yard"), true}};
    north.volumes = {{QStringLiteral("v1"), QStringLiteral("Archive A"), true},
                     {QStringLiteral("v2"), QStringLiteral("Archive B"), true}};
    north.recordingGroups = {{QStringLiteral("g1"), QStringLiteral("Entrances"), 30, 30}};
    north.stations = {annex};

    Station south;
    south.id = QStringLiteral("south");
    south.name = QStringLiteral("South");
    south.supportsMonitoring = false;
    south.cameras = {{QStringLiteral("south/c1"), QStringLiteral("Gate"), true}};

    Site site;
    site.name = QStringLiteral("Test site");
    site.stations = {north, south};
    return site;
}

#endif
