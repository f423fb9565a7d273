#ifndef STORM_H
#define STORM_H

#include "Scenario.h"

#include <QStringList>

class QRandomGenerator;

/// What the cameras of a storm do.
enum class StormChange {
    Down, ///< each is lost once
    Up,   ///< each comes back once
    Flap, ///< each is lost and comes back, again and again; in the end all are back
};

/// Many changes of many cameras, as a switch that fails or a bad uplink would cause them.
struct Storm
{
    StormChange change = StormChange::Down;
    QStringList cameraIds; ///< which cameras, at least one
    int changeCount = 0;   ///< how many changes; one for each camera unless they flap
    qint64 durationMs = 0; ///< the changes are spread evenly over this
};

/// Chooses cameras by chance.
///
/// @param count how many, from 0 to all of them
/// @return the chosen ones, in an order by chance
QStringList chooseCameras(QStringList cameraIds, qsizetype count, QRandomGenerator &chance);

/// Appends the changes of a storm that starts at a time, in the order of their times.
///
/// Without flapping, the cameras change in the order given. Flapping ones take turns: in a first
/// round each is lost, in a second one each comes back, and so on, every round in an order by
/// chance; those that are down when the changes are used up come back at the storm's end.
void appendStorm(const Storm &storm, qint64 startMs, QRandomGenerator &chance,
                 std::vector<ScenarioEvent> &events);

#endif
