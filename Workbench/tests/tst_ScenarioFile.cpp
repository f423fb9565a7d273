#include "ScenarioFile.h"

#include "InputFailure.h"
#include "LocalStation.h"
#include "ServerNames.h"
#include "SiteFile.h"
#include "TestSite.h"
#include "TextFile.h"

#include <QSet>
#include <QTest>

using namespace ScenarioAction;

namespace {

QByteArray withEvents(const QByteArray &events)
{
    return R"({"events": [)" + events + "]}";
}

template <typename Action> Action onlyAction(const QByteArray &event)
{
    const TextFile file(withEvents(event));
    return std::get<Action>(readScenarioFile(file.path(), testSite()).events.at(0).action);
}

QStringList stormChanges(const char *event, quint32 seed = DefaultScenarioSeed)
{
    const TextFile file(withEvents(event));
    QStringList changes;
    for (const ScenarioEvent &change : readScenarioFile(file.path(), testSite(), seed).events) {
        const auto &action = std::get<SetCameraConnected>(change.action);
        changes.append(QStringLiteral("%1 %2 %3")
                           .arg(change.atMs)
                           .arg(action.cameraId,
                                action.connected ? QStringLiteral("up") : QStringLiteral("down")));
    }
    return changes;
}

} // namespace

class tst_ScenarioFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTimes();
    void endsWithTheLastOfItsTimes_data();
    void endsWithTheLastOfItsTimes();
    void readsWhatHappensToNodes();
    void readsWhatHappensToStorage();
    void readsReports();
    void readsWhatTheClientAndItsUserDo();
    void snoozeTypeFollowsTheNode();
    void readsWhatIsWaitedFor();
    void stormTakesTheCamerasBelowAStation();
    void stormTakesAsManyCamerasAsGiven();
    void stormRateGivesItsDuration();
    void stormMixesWithTheEventsAfterIt();
    void seedDecidesOnStorms();
    void wrongEventsAreRefused_data();
    void wrongEventsAreRefused();
    void wrongTimesAreRefused_data();
    void wrongTimesAreRefused();
    void bundledScenariosFitTheBundledSite_data();
    void bundledScenariosFitTheBundledSite();
    void allOfTheLargeSiteFlapsForAMinute();
    void watchLearnsTheStatesOfAllNodes();
};

void tst_ScenarioFile::readsTimes()
{
    const TextFile file(withEvents(R"({"at": 0, "do": "reconnectCameras"},
                                      {"at": 1.5, "do": "reconnectCameras"},
                                      {"at": 1.5, "do": "reconnectSubstations"})"));
    const Scenario scenario = readScenarioFile(file.path(), testSite());
    QCOMPARE(scenario.events.size(), std::size_t(3));
    QCOMPARE(scenario.events.at(0).atMs, 0);
    QCOMPARE(scenario.events.at(1).atMs, 1500);
    QCOMPARE(scenario.events.at(2).atMs, 1500);
}

void tst_ScenarioFile::endsWithTheLastOfItsTimes_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("endMs");
    QTest::newRow("nothing") << QByteArray(R"({"events": []})") << qint64(0);
    QTest::newRow("last event") << withEvents(R"({"at": 7, "do": "reconnectCameras"})")
                                << qint64(7000);
    QTest::newRow("screenshot") << QByteArray(
        R"({"events": [{"at": 7, "do": "reconnectCameras"}], "screenshotAt": 8})")
                                << qint64(8000);
    QTest::newRow("given") << QByteArray(R"({"events": [], "screenshotAt": 8, "endAt": 9.5})")
                           << qint64(9500);
}

void tst_ScenarioFile::endsWithTheLastOfItsTimes()
{
    QFETCH(QByteArray, text);
    const TextFile file(text);
    QTEST(readScenarioFile(file.path(), testSite()).endMs, "endMs");
}

void tst_ScenarioFile::readsWhatHappensToNodes()
{
    const auto cameraDown =
        onlyAction<SetCameraConnected>(R"({"at": 1, "do": "cameraDown", "camera": "north/c1"})");
    QCOMPARE(cameraDown.cameraId, QStringLiteral("north/c1"));
    QCOMPARE(cameraDown.connected, false);
    QCOMPARE(
        onlyAction<SetCameraConnected>(R"({"at": 1, "do": "cameraUp", "camera": "north/annex/c1"})")
            .connected,
        true);
    const auto stationDown = onlyAction<SetStationConnected>(
        R"({"at": 1, "do": "stationDown", "station": "north/annex"})");
    QCOMPARE(stationDown.stationId, QStringLiteral("north/annex"));
    QCOMPARE(stationDown.connected, false);
    QCOMPARE(onlyAction<SetStationConnected>(R"({"at": 1, "do": "stationUp", "station": "south"})")
                 .connected,
             true);
    QCOMPARE(onlyAction<RemoveCamera>(R"({"at": 1, "do": "cameraRemoved", "camera": "south/c1"})")
                 .cameraId,
             QStringLiteral("south/c1"));
    QCOMPARE(onlyAction<RemoveStation>(R"({"at": 1, "do": "stationRemoved", "station": "south"})")
                 .stationId,
             QStringLiteral("south"));
}

void tst_ScenarioFile::readsWhatHappensToStorage()
{
    const auto lost = onlyAction<SetVolumeConnected>(
        R"({"at": 1, "do": "volumeLost", "station": "north", "volume": "v2"})");
    QCOMPARE(lost.stationId, QStringLiteral("north"));
    QCOMPARE(lost.volumeId, QStringLiteral("v2"));
    QCOMPARE(lost.connected, false);
    QCOMPARE(onlyAction<SetVolumeConnected>(
                 R"({"at": 1, "do": "volumeBack", "station": "north", "volume": "v2"})")
                 .connected,
             true);
    const auto days = onlyAction<SetRecordedDays>(
        R"({"at": 1, "do": "recordingDays", "station": "north", "group": "g1", "days": 9})");
    QCOMPARE(days.stationId, QStringLiteral("north"));
    QCOMPARE(days.groupId, QStringLiteral("g1"));
    QCOMPARE(days.days, 9);
    const auto renamed = onlyAction<RenameRecordingGroup>(
        R"({"at": 1, "do": "recordingGroupRenamed", "station": "north", "group": "g1",
            "name": "Doors"})");
    QCOMPARE(renamed.stationId, QStringLiteral("north"));
    QCOMPARE(renamed.groupId, QStringLiteral("g1"));
    QCOMPARE(renamed.name, QStringLiteral("Doors"));
}

void tst_ScenarioFile::readsReports()
{
    const auto resources = onlyAction<SetResources>(
        R"({"at": 1, "do": "resources", "station": "north", "cpu": 97, "memory": 12,
            "networks": [{"interface": "eth0", "percentage": 70.5, "bandwidth": 100}]})");
    QCOMPARE(resources.stationId, QStringLiteral("north"));
    QCOMPARE(resources.level.cpuPercentage, 97);
    QCOMPARE(resources.level.memoryPercentage, 12);
    QCOMPARE(resources.level.networks.at(0).interfaceName, QStringLiteral("eth0"));
    const auto limit = onlyAction<ReportReachingLimit>(
        R"({"at": 1, "do": "serverReachingLimit", "server": "Main", "percentage": 87.5})");
    QCOMPARE(limit.serverName, QStringLiteral("Main"));
    QCOMPARE(limit.percentage, 87.5);
}

void tst_ScenarioFile::readsWhatTheClientAndItsUserDo()
{
    QCOMPARE(onlyAction<RetrieveStates>(R"({"at": 1, "do": "camStatusRetrieved"})").success, true);
    QCOMPARE(
        onlyAction<RetrieveStates>(R"({"at": 1, "do": "camStatusRetrieved", "success": false})")
            .success,
        false);
    QCOMPARE(onlyAction<SetServerConnected>(R"({"at": 1, "do": "serverDisconnect"})").connected,
             false);
    QCOMPARE(onlyAction<SetServerConnected>(R"({"at": 1, "do": "serverReconnect"})").connected,
             true);
    onlyAction<ReconnectCameras>(R"({"at": 1, "do": "reconnectCameras"})");
    onlyAction<ReconnectSubstations>(R"({"at": 1, "do": "reconnectSubstations"})");
    QCOMPARE(onlyAction<FocusStation>(R"({"at": 1, "do": "focusStation", "station": "south"})")
                 .stationId,
             QStringLiteral("south"));
    QCOMPARE(onlyAction<CheckSupport>(R"({"at": 1, "do": "checkSupport", "station": "south"})")
                 .stationId,
             QStringLiteral("south"));
}

void tst_ScenarioFile::snoozeTypeFollowsTheNode()
{
    const auto camera = onlyAction<ScenarioAction::Snooze>(
        R"({"at": 1, "do": "snooze", "node": "north/c1", "seconds": 30})");
    QCOMPARE(camera.nodeId, QStringLiteral("north/c1"));
    QCOMPARE(camera.errorType, ServerNames::CameraDisconnected);
    QCOMPARE(camera.durationMs, 30'000);
    const auto station = onlyAction<ScenarioAction::Snooze>(
        R"({"at": 1, "do": "snooze", "node": "north/annex", "seconds": 1.5})");
    QCOMPARE(station.errorType, ServerNames::StationDisconnected);
    QCOMPARE(station.durationMs, 1500);
}

void tst_ScenarioFile::readsWhatIsWaitedFor()
{
    QCOMPARE(onlyAction<AwaitError>(R"({"at": 1, "do": "until", "listed": "3_north/c1"})").key,
             QStringLiteral("3_north/c1"));
}

void tst_ScenarioFile::stormTakesTheCamerasBelowAStation()
{
    QStringList changes =
        stormChanges(R"({"at": 2, "do": "storm", "change": "down", "station": "north"})");
    changes.sort();
    QCOMPARE(changes, QStringList({QStringLiteral("2000 north/annex/c1 down"),
                                   QStringLiteral("2000 north/c1 down"),
                                   QStringLiteral("2000 north/c2 down")}));
}

void tst_ScenarioFile::stormTakesAsManyCamerasAsGiven()
{
    const char *const all = R"({"at": 2, "do": "storm", "change": "up", "seconds": 2})";
    const char *const two = R"({"at": 2, "do": "storm", "change": "up", "cameras": 2})";
    QCOMPARE(stormChanges(all).size(), 4);
    QCOMPARE(stormChanges(two).size(), 2);
}

void tst_ScenarioFile::stormRateGivesItsDuration()
{
    const QStringList changes =
        stormChanges(R"({"at": 2, "do": "storm", "change": "down", "rate": 4})");
    QStringList times;
    for (const QString &change : changes)
        times.append(change.section(u' ', 0, 0));
    QCOMPARE(times, QStringList({QStringLiteral("2000"), QStringLiteral("2250"),
                                 QStringLiteral("2500"), QStringLiteral("2750")}));
}

void tst_ScenarioFile::stormMixesWithTheEventsAfterIt()
{
    const TextFile file(withEvents(
        R"({"at": 0, "do": "storm", "change": "flap", "seconds": 4, "rate": 2},
           {"at": 1, "do": "reconnectCameras"})"));
    const Scenario scenario = readScenarioFile(file.path(), testSite());
    QCOMPARE(scenario.events.size(), std::size_t(9));
    QVERIFY(std::holds_alternative<ReconnectCameras>(scenario.events.at(3).action));
    QCOMPARE(scenario.endMs, 3500);
}

void tst_ScenarioFile::seedDecidesOnStorms()
{
    const char *const storm =
        R"({"at": 0, "do": "storm", "change": "flap", "seconds": 4, "rate": 10})";
    QCOMPARE(stormChanges(storm, 3), stormChanges(storm, 3));
    QVERIFY(stormChanges(storm, 3) != stormChanges(storm, 4));
}

void tst_ScenarioFile::wrongEventsAreRefused_data()
{
    QTest::addColumn<QByteArray>("events");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const char *events, const char *message) {
        QTest::newRow(name) << QByteArray(events)
                            << QStringLiteral("FILE: ") + QString::fromLatin1(message);
    };
    row("time missing", R"({"do": "reconnectCameras"})",
        "events[0].at: expected a number from 0 to 86400, found nothing");
    row("time before zero", R"({"at": -1, "do": "reconnectCameras"})",
        "events[0].at: expected a number from 0 to 86400, found the number -1");
    row("time before the last",
        R"({"at": 5, "do": "reconnectCameras"}, {"at": 4.5, "do": "reconnectCameras"})",
        "events[1].at: expected a number from 5 to 86400, found the number 4.5");
    row("nothing happens", R"({"at": 1})", "events[0].do: expected a text, found nothing");
    row("unknown happening", R"({"at": 1, "do": "cameradown"})",
        "events[0].do: expected one of camStatusRetrieved, cameraDown, cameraRemoved, cameraUp, "
        "checkSupport, focusStation, reconnectCameras, reconnectSubstations, recordingDays, "
        "recordingGroupRenamed, resources, serverDisconnect, serverReachingLimit, "
        "serverReconnect, snooze, stationDown, stationRemoved, stationUp, storm, until, "
        "volumeBack, volumeLost, found \"cameradown\"");
    row("unknown camera", R"({"at": 1, "do": "cameraDown", "camera": "north/c9"})",
        R"(events[0].camera: expected the id of a camera of the site, found "north/c9")");
    row("station as camera", R"({"at": 1, "do": "cameraUp", "camera": "north"})",
        R"(events[0].camera: expected the id of a camera of the site, found "north")");
    row("unknown station", R"({"at": 1, "do": "stationDown", "station": "west"})",
        R"(events[0].station: expected the id of a station of the site, found "west")");
    row("unknown volume", R"({"at": 1, "do": "volumeLost", "station": "north", "volume": "v9"})",
        R"(events[0].volume: expected the id of a volume of station "north", found "v9")");
    row("unknown group",
        R"({"at": 1, "do": "recordingDays", "station": "north", "group": "g9", "days": 1})",
        "events[0].group: expected the id of a recording group of station \"north\", "
        "found \"g9\"");
    row("unknown snoozed node", R"({"at": 1, "do": "snooze", "node": "west", "seconds": 9})",
        R"(events[0].node: expected the id of a camera or station of the site, found "west")");
    row("snooze too short", R"({"at": 1, "do": "snooze", "node": "north", "seconds": 0.5})",
        "events[0].seconds: expected a number from 1 to 86400, found the number 0.5");
    row("report of a station without monitoring",
        R"({"at": 1, "do": "resources", "station": "south", "cpu": 1, "memory": 1})",
        "events[0].station: expected a station that supports monitoring, other than this "
        "machine, found \"south\"");
    row("report of this machine",
        R"({"at": 1, "do": "resources", "station": "this-machine", "cpu": 1, "memory": 1})",
        "events[0].station: expected a station that supports monitoring, other than this "
        "machine, found \"this-machine\"");
    row("camera that was removed",
        R"({"at": 1, "do": "cameraRemoved", "camera": "north/c1"},
           {"at": 2, "do": "cameraDown", "camera": "north/c1"})",
        R"(events[1].camera: expected the id of a camera of the site, found "north/c1")");
    row("camera of a station that was removed",
        R"({"at": 1, "do": "stationRemoved", "station": "north"},
           {"at": 2, "do": "cameraDown", "camera": "north/annex/c1"})",
        R"(events[1].camera: expected the id of a camera of the site, found "north/annex/c1")");
    row("unknown key", R"({"at": 1, "do": "cameraDown", "camera": "north/c1", "why": "storm"})",
        "events[0].why: expected one of the keys at, camera, do, found an unknown key");
    row("unknown change", R"({"at": 1, "do": "storm", "change": "gone"})",
        "events[0].change: expected one of down, flap, up, found \"gone\"");
    row("storm of more cameras than there are",
        R"({"at": 1, "do": "storm", "change": "down", "station": "north", "cameras": 4})",
        "events[0].cameras: expected a whole number from 1 to 3, found the number 4");
    row("storm where there is no camera",
        R"({"at": 1, "do": "storm", "change": "down", "station": "this-machine"})",
        "events[0].station: expected a station with cameras, found one without");
    row("flapping without a rate", R"({"at": 1, "do": "storm", "change": "flap", "seconds": 4})",
        "events[0].rate: expected a number from 0.01 to 100000, found nothing");
    row("flapping without an end", R"({"at": 1, "do": "storm", "change": "flap", "rate": 4})",
        "events[0].seconds: expected a number from 0.1 to 86400, found nothing");
    row("storm too long for its rate",
        R"({"at": 1, "do": "storm", "change": "flap", "rate": 100000, "seconds": 101})",
        "events[0].rate: expected at most 10000000 changes in all, found 10100000");
    row("storm with two paces",
        R"({"at": 1, "do": "storm", "change": "up", "rate": 4, "seconds": 4})",
        "events[0].seconds: expected nothing beside \"rate\", found a duration");
    row("waiting for nothing", R"({"at": 1, "do": "until"})",
        "events[0].listed: expected a text, found nothing");
    row("key of another happening", R"({"at": 1, "do": "reconnectCameras", "camera": "north/c1"})",
        "events[0].camera: expected one of the keys at, do, found an unknown key");
}

void tst_ScenarioFile::wrongEventsAreRefused()
{
    QFETCH(QByteArray, events);
    const TextFile file(withEvents(events));
    Site site = testSite();
    site.stations.push_back(LocalStation::station());
    QTEST(inputFailure(file.path(), [&file, &site] { readScenarioFile(file.path(), site); }),
          "message");
}

void tst_ScenarioFile::wrongTimesAreRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    QTest::newRow("no events") << QByteArray(
        "{}") << QStringLiteral("FILE: events: expected a list of objects, found nothing");
    QTest::newRow("screenshot before the start")
        << QByteArray(R"({"events": [], "screenshotAt": -1})")
        << QStringLiteral("FILE: screenshotAt: expected a number from 0 to 86400, "
                          "found the number -1");
    QTest::newRow("end before the last event")
        << QByteArray(R"({"events": [{"at": 7, "do": "reconnectCameras"}], "endAt": 6})")
        << QStringLiteral("FILE: endAt: expected a number from 7 to 86400, found the number 6");
    QTest::newRow("unknown key")
        << QByteArray(R"({"events": [], "end": 6})")
        << QStringLiteral("FILE: end: expected one of the keys endAt, events, screenshotAt, "
                          "found an unknown key");
}

void tst_ScenarioFile::wrongTimesAreRefused()
{
    QFETCH(QByteArray, text);
    const TextFile file(text);
    QTEST(inputFailure(file.path(), [&file] { readScenarioFile(file.path(), testSite()); }),
          "message");
}

void tst_ScenarioFile::bundledScenariosFitTheBundledSite_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("default") << QStringLiteral(":/workbench/scenarios/default.json");
    QTest::newRow("everything") << QStringLiteral(":/workbench/scenarios/everything.json");
    QTest::newRow("storm") << QStringLiteral(":/workbench/scenarios/storm.json");
}

void tst_ScenarioFile::bundledScenariosFitTheBundledSite()
{
    QFETCH(QString, name);
    try {
        const Site site = readSiteFile(QStringLiteral(":/workbench/sites/default.json"));
        QCOMPARE(site.stations.size(), std::size_t(3));
        QCOMPARE(site.stationCount(), 4);
        QCOMPARE(site.cameraCount(), 12);
        const Scenario scenario = readScenarioFile(name, site);
        QVERIFY(scenario.screenshotAtMs);
        QVERIFY(std::holds_alternative<RetrieveStates>(scenario.events.at(0).action));
        QVERIFY(scenario.endMs >= 40'000 && scenario.endMs <= 60'000);
    } catch (const InputError &error) {
        QFAIL(qPrintable(error.message()));
    }
}

void tst_ScenarioFile::allOfTheLargeSiteFlapsForAMinute()
{
    const Site site = readSiteFile(QStringLiteral(":/workbench/sites/large.json"));
    QCOMPARE(site.stationCount(), 100);
    QCOMPARE(site.cameraCount(), 10'000);
    const Scenario scenario =
        readScenarioFile(QStringLiteral(":/workbench/scenarios/flap.json"), site);
    const std::size_t flapping = 60'000;
    QCOMPARE(scenario.events.size(), 1 + flapping + 100);
    QVERIFY(std::holds_alternative<RetrieveStates>(scenario.events.front().action));
    QSet<QString> down;
    for (auto event = scenario.events.begin() + 1; event != scenario.events.end(); ++event) {
        const auto change = std::get<SetCameraConnected>(event->action);
        QCOMPARE(down.contains(change.cameraId), change.connected);
        if (!down.remove(change.cameraId))
            down.insert(change.cameraId);
    }
    QCOMPARE(down.size(), 100);
}

// Without them the plug-in lists nothing of what is down already.
void tst_ScenarioFile::watchLearnsTheStatesOfAllNodes()
{
    const Scenario scenario =
        readScenarioFile(QStringLiteral(":/workbench/scenarios/watch.json"), testSite());
    QCOMPARE(scenario.events.size(), std::size_t(1));
    QVERIFY(std::get<RetrieveStates>(scenario.events.at(0).action).success);
}

QTEST_GUILESS_MAIN(tst_ScenarioFile)
#include "tst_ScenarioFile.moc"
