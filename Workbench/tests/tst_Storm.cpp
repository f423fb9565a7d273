#include "Storm.h"

#include <QHash>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <algorithm>

using ScenarioAction::SetCameraConnected;

namespace {

constexpr qint64 StartMs = 5000;

QStringList cameras(int count)
{
    QStringList ids;
    for (int i = 0; i < count; ++i)
        ids.append(QStringLiteral("st/c%1").arg(i));
    return ids;
}

std::vector<ScenarioEvent> eventsOf(const Storm &storm, quint32 seed = 1)
{
    QRandomGenerator chance(seed);
    std::vector<ScenarioEvent> events;
    appendStorm(storm, StartMs, chance, events);
    return events;
}

QStringList asText(const std::vector<ScenarioEvent> &events)
{
    QStringList lines;
    for (const ScenarioEvent &event : events) {
        const auto &change = std::get<SetCameraConnected>(event.action);
        lines.append(QStringLiteral("%1 %2 %3")
                         .arg(event.atMs)
                         .arg(change.cameraId,
                              change.connected ? QStringLiteral("up") : QStringLiteral("down")));
    }
    return lines;
}

QStringList chosen(int count, quint32 seed)
{
    QRandomGenerator chance(seed);
    return chooseCameras(cameras(20), count, chance);
}

} // namespace

class tst_Storm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesAreSpreadEvenly();
    void withoutADurationAllChangeAtOnce();
    void flappingCamerasTakeTurns();
    void flappingCamerasAreAllBackInTheEnd();
    void seedDecides();
    void chosenCamerasAreOfTheGiven();
    void tenThousandCamerasFlapForAMinute();
};

void tst_Storm::changesAreSpreadEvenly()
{
    QCOMPARE(asText(eventsOf({StormChange::Down, cameras(3), 3, 1500})),
             QStringList({QStringLiteral("5000 st/c0 down"), QStringLiteral("5500 st/c1 down"),
                          QStringLiteral("6000 st/c2 down")}));
}

void tst_Storm::withoutADurationAllChangeAtOnce()
{
    QCOMPARE(asText(eventsOf({StormChange::Up, cameras(2), 2, 0})),
             QStringList({QStringLiteral("5000 st/c0 up"), QStringLiteral("5000 st/c1 up")}));
}

void tst_Storm::flappingCamerasTakeTurns()
{
    const auto events = eventsOf({StormChange::Flap, cameras(5), 20, 4000});
    QCOMPARE(events.size(), std::size_t(20));
    for (std::size_t round = 0; round < 4; ++round) {
        QSet<QString> seen;
        for (std::size_t turn = 0; turn < 5; ++turn) {
            const ScenarioEvent &event = events.at(round * 5 + turn);
            const auto &change = std::get<SetCameraConnected>(event.action);
            QCOMPARE(change.connected, round % 2 == 1);
            QCOMPARE(event.atMs, StartMs + 200 * static_cast<qint64>(round * 5 + turn));
            seen.insert(change.cameraId);
        }
        QCOMPARE(seen.size(), 5);
    }
}

void tst_Storm::flappingCamerasAreAllBackInTheEnd()
{
    QHash<QString, bool> isUp;
    const auto events = eventsOf({StormChange::Flap, cameras(5), 13, 1300});
    for (const ScenarioEvent &event : events) {
        const auto &change = std::get<SetCameraConnected>(event.action);
        isUp[change.cameraId] = change.connected;
    }
    QCOMPARE(isUp.size(), 5);
    QVERIFY(std::all_of(isUp.cbegin(), isUp.cend(), [](bool up) { return up; }));
    QCOMPARE(events.back().atMs, StartMs + 1300);
}

void tst_Storm::seedDecides()
{
    const Storm storm{StormChange::Flap, cameras(20), 100, 1000};
    QCOMPARE(asText(eventsOf(storm, 7)), asText(eventsOf(storm, 7)));
    QVERIFY(asText(eventsOf(storm, 7)) != asText(eventsOf(storm, 8)));
    QCOMPARE(chosen(5, 7), chosen(5, 7));
    QVERIFY(chosen(5, 7) != chosen(5, 8));
}

void tst_Storm::chosenCamerasAreOfTheGiven()
{
    const QStringList all = cameras(20);
    for (const int count : {0, 1, 7, 20}) {
        const QStringList ids = chosen(count, 3);
        QCOMPARE(ids.size(), count);
        QCOMPARE(QSet<QString>(ids.begin(), ids.end()).size(), count);
        for (const QString &id : ids)
            QVERIFY(all.contains(id));
    }
}

void tst_Storm::tenThousandCamerasFlapForAMinute()
{
    const auto events = eventsOf({StormChange::Flap, cameras(10'000), 60'000, 60'000});
    QCOMPARE(events.size(), std::size_t(60'000));
    QCOMPARE(events.back().atMs, StartMs + 59'999);
}

QTEST_APPLESS_MAIN(tst_Storm)
#include "tst_Storm.moc"
