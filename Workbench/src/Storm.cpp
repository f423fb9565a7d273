#include "Storm.h"

#include <QRandomGenerator>
#include <QSet>

namespace {

// Fisher and Yates; std::shuffle() gives another order with another standard library.
void shuffle(QStringList &ids, QRandomGenerator &chance)
{
    for (qsizetype last = ids.size() - 1; last > 0; --last)
        ids.swapItemsAt(last, static_cast<qsizetype>(chance.bounded(static_cast<int>(last) + 1)));
}

// Spreads the changes so that the first is at the start and none at the end.
qint64 timeOf(int change, const Storm &storm, qint64 startMs)
{
    return startMs + change * storm.durationMs / storm.changeCount;
}

std::vector<ScenarioEvent> oneChangeEach(const Storm &storm, qint64 startMs)
{
    const bool connected = storm.change == StormChange::Up;
    std::vector<ScenarioEvent> events;
    for (const QString &id : storm.cameraIds) {
        const auto number = static_cast<int>(events.size());
        events.push_back(
            {timeOf(number, storm, startMs), ScenarioAction::SetCameraConnected{id, connected}});
    }
    return events;
}

std::vector<ScenarioEvent> manyChanges(const Storm &storm, qint64 startMs, QRandomGenerator &chance)
{
    const int cameraCount = static_cast<int>(storm.cameraIds.size());
    QStringList turn = storm.cameraIds;
    QSet<QString> down;
    std::vector<ScenarioEvent> events;
    for (int number = 0; number < storm.changeCount; ++number) {
        const int position = number % cameraCount;
        if (position == 0)
            shuffle(turn, chance);
        const QString &id = turn.at(position);
        const bool connected = down.remove(id);
        if (!connected)
            down.insert(id);
        events.push_back(
            {timeOf(number, storm, startMs), ScenarioAction::SetCameraConnected{id, connected}});
    }
    for (const QString &id : storm.cameraIds) {
        if (down.contains(id))
            events.push_back(
                {startMs + storm.durationMs, ScenarioAction::SetCameraConnected{id, true}});
    }
    return events;
}

} // namespace

QStringList chooseCameras(QStringList cameraIds, qsizetype count, QRandomGenerator &chance)
{
    shuffle(cameraIds, chance);
    return cameraIds.mid(0, count);
}

std::vector<ScenarioEvent> stormEvents(const Storm &storm, qint64 startMs, QRandomGenerator &chance)
{
    return storm.change == StormChange::Flap ? manyChanges(storm, startMs, chance)
                                             : oneChangeEach(storm, startMs);
}
