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

// A list that doubles while a large storm is appended needs three times the room for a moment. For
// small storms, one after another, doubling is right.
void makeRoom(const Storm &storm, std::vector<ScenarioEvent> &events)
{
    const auto count = static_cast<std::size_t>(storm.changeCount)
                       + static_cast<std::size_t>(storm.cameraIds.size());
    if (count > events.size())
        events.reserve(events.size() + count);
}

void appendOneChangeEach(const Storm &storm, qint64 startMs, std::vector<ScenarioEvent> &events)
{
    const bool connected = storm.change == StormChange::Up;
    int number = 0;
    for (const QString &id : storm.cameraIds)
        events.push_back(
            {timeOf(number++, storm, startMs), ScenarioAction::SetCameraConnected{id, connected}});
}

void appendManyChanges(const Storm &storm, qint64 startMs, QRandomGenerator &chance,
                       std::vector<ScenarioEvent> &events)
{
    const int cameraCount = static_cast<int>(storm.cameraIds.size());
    QStringList turn = storm.cameraIds;
    QSet<QString> down;
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
}

} // namespace

QStringList chooseCameras(QStringList cameraIds, qsizetype count, QRandomGenerator &chance)
{
    shuffle(cameraIds, chance);
    return cameraIds.mid(0, count);
}

void appendStorm(const Storm &storm, qint64 startMs, QRandomGenerator &chance,
                 std::vector<ScenarioEvent> &events)
{
    makeRoom(storm, events);
    if (storm.change == StormChange::Flap)
        appendManyChanges(storm, startMs, chance, events);
    else
        appendOneChangeEach(storm, startMs, events);
}
