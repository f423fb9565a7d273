#ifndef SCENARIO_H
#define SCENARIO_H

#include <QString>

/// What a run is given.
struct Setting
{
    QString pluginFile;
    int size; ///< N
};

/// One kind of storm, and what bare Qt needs for the same visible changes.
///
/// Both functions set up what they need, check that the storm did what it should, and return the
/// milliseconds of the part between, so that nothing else is timed.
struct Scenario
{
    using Run = double (*)(const Setting &setting);

    const char *name = nullptr; ///< one letter
    const char *title = nullptr;
    Run plugin = nullptr;
    Run floor = nullptr;
    int fixedSize = 0; ///< the only size it is run at; 0 for all sizes
};

extern const Scenario StartUpWalkConnected;
extern const Scenario StartUpWalkDisconnected;
extern const Scenario CamerasGoDown;
extern const Scenario CamerasComeBack;
extern const Scenario ServerDisconnects;
extern const Scenario TextFilter;
extern const Scenario StationsRemoved;
extern const Scenario ResourceReports;
extern const Scenario StationCounts;
extern const Scenario FocusStationReports;
extern const Scenario TopologyFilled;
extern const Scenario FirstName;

#endif
