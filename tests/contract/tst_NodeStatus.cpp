#include "ModelRoles.h"
#include "TestHost.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

/// Cameras and stations that come and go: reported one by one, and found by the walk of the tree.
class tst_NodeStatus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void lostCameraIsListedOnce();
    void connectedCameraIsTakenOff();
    void connectedCameraThatIsNotListedChangesNothing();
    void lostStationTakesTheErrorsOfItsCameras();
    void lostStationIsListedOnceAndAnew();
    void connectedStationIsTakenOffAlone();
    void otherTypesAreIgnored_data();
    void otherTypesAreIgnored();
    void startUpKeepsTheErrorsOfAListedStation();
    void startUpClearsAStationBeforeItIsListed();
    void startUpShowsTheGivenName();
    void startUpLooksUpAnEmptyName();
    void startUpTakesConnectedNodesOff();
    void walkListsLostStationsAndCameras();
    void walkReconcilesWithoutClearing();
    void walkNamesStationsAndCameras();
    void walkReadsItsOwnRoles();
    void walkReachesStationsWithinStations();
    void walkPassesByNodesOfOtherTypes();
    void walkLeavesTheTopLevelNodeOut();
    void walkLeavesFurtherTopLevelNodesOut();
    void walkOfAnEmptyTreeDoesNothing_data();
    void walkOfAnEmptyTreeDoesNothing();
    void walkWithoutTopologyDoesNothing();
    void walkTakesANodeWithoutRolesForALostCamera();
    void walkReloadsTheStorageOfEachStation();
    void walkGoesOnWithoutRecordingPlugin();
    void walkVisitsNodesThatAppearDuringIt();
    void walkClearsNeighboursWithLongerIds();
    void walkSparesSnoozedNodes();
    void burstOfRetrievalsYieldsOneWalkFiveSecondsAfterTheLast();
};

namespace {

void report(TestHost &host, int type, const QString &id, bool connected)
{
    Q_EMIT host.topology.nodeStatusChanged(type, id, connected);
}

void walk(TestHost &host)
{
    host.invoke("initNodeStatusError");
}

QStringList reloads(TestHost &host)
{
    QStringList calls;
    for (const QString &line : host.log.take()) {
        if (line.startsWith("reloadStorageUsageInfo"_L1))
            calls.append(line.section(u' ', 1));
    }
    return calls;
}

QString origin(TestHost &host, int row)
{
    return host.error(row, ErrorRole::TriggerDeviceName).toString();
}

} // namespace

void tst_NodeStatus::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_NodeStatus::lostCameraIsListedOnce()
{
    TestHost host;
    report(host, 0, u"st1/cam1"_s, false);
    const QVariant time = host.error(0, ErrorRole::Timestamp);
    report(host, 0, u"st1/cam1"_s, false);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s}));
    QCOMPARE(host.error(0, ErrorRole::Timestamp), time);
}

void tst_NodeStatus::connectedCameraIsTakenOff()
{
    TestHost host;
    report(host, 0, u"st1/cam1"_s, false);
    report(host, 0, u"st1/cam2"_s, false);
    report(host, 0, u"st1/cam1"_s, true);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam2"_s}));
}

void tst_NodeStatus::connectedCameraThatIsNotListedChangesNothing()
{
    TestHost host;
    report(host, 1, u"st1/cam1"_s, false);
    report(host, 0, u"st1/cam1"_s, true);
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1/cam1"_s}));
}

void tst_NodeStatus::lostStationTakesTheErrorsOfItsCameras()
{
    TestHost host;
    const QAbstractItemModelTester tester(host.errors());
    report(host, 0, u"st1/cam1"_s, false);
    report(host, 0, u"st2/cam1"_s, false);
    host.invoke("monitorCPUUsage", u"st1"_s, 100);
    host.invoke("monitorVolumeStatus", u"st10"_s);
    report(host, 1, u"st1"_s, false);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st2/cam1"_s, u"4_st1"_s}));
}

void tst_NodeStatus::lostStationIsListedOnceAndAnew()
{
    TestHost host;
    report(host, 1, u"st1"_s, false);
    report(host, 0, u"st2/cam1"_s, false);
    report(host, 0, u"st1/cam1"_s, false);
    report(host, 1, u"st1"_s, false);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st2/cam1"_s, u"4_st1"_s}));
}

void tst_NodeStatus::connectedStationIsTakenOffAlone()
{
    TestHost host;
    report(host, 1, u"st1"_s, false);
    report(host, 0, u"st1/cam1"_s, false);
    report(host, 1, u"st1"_s, true);
    report(host, 1, u"st1"_s, true);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s}));
}

void tst_NodeStatus::otherTypesAreIgnored_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {2, 3, 4, 5, -1, 256, 257})
        QTest::addRow("%d", type) << type;
}

void tst_NodeStatus::otherTypesAreIgnored()
{
    QFETCH(const int, type);
    TestHost host;
    report(host, 1, u"st1"_s, false);
    report(host, 0, u"st1/cam1"_s, false);
    const QStringList rows = host.errorRows();
    for (const QString &id : {u"st1"_s, u"st1/cam1"_s, u"st2"_s}) {
        for (const bool connected : {false, true}) {
            report(host, type, id, connected);
            host.invoke("monitorNodeStatusForInit", type, id, connected, u"Name"_s);
        }
    }
    QCOMPARE(host.errorRows(), rows);
}

void tst_NodeStatus::startUpKeepsTheErrorsOfAListedStation()
{
    TestHost host;
    report(host, 1, u"st1"_s, false);
    report(host, 0, u"st1/cam1"_s, false);
    const QStringList rows = host.errorRows();
    host.invoke("monitorNodeStatusForInit", 1, u"st1"_s, false, u"Lobby"_s);
    QCOMPARE(host.errorRows(), rows);
}

void tst_NodeStatus::startUpClearsAStationBeforeItIsListed()
{
    TestHost host;
    report(host, 0, u"st1/cam1"_s, false);
    report(host, 0, u"st2/cam1"_s, false);
    host.invoke("monitorNodeStatusForInit", 1, u"st1"_s, false, u"Lobby"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st2/cam1"_s, u"4_st1"_s}));
}

void tst_NodeStatus::startUpShowsTheGivenName()
{
    TestHost host;
    host.topologyModel.addStation(u"st1"_s, u"Looked up"_s);
    host.invoke("monitorNodeStatusForInit", 1, u"st1"_s, false, u"Lobby"_s);
    host.invoke("monitorNodeStatusForInit", 0, u"st1/cam1"_s, false, u"Lobby - Door"_s);
    QCOMPARE(origin(host, 0), u"Lobby"_s);
    QCOMPARE(origin(host, 1), u"Lobby - Door"_s);
}

void tst_NodeStatus::startUpLooksUpAnEmptyName()
{
    TestHost host;
    host.topologyModel.addStation(u"st1"_s, u"Looked up"_s);
    host.invoke("monitorNodeStatusForInit", 1, u"st1"_s, false, QString());
    host.invoke("monitorNodeStatusForInit", 0, u"st1/cam1"_s, false, QString());
    QCOMPARE(origin(host, 0), u"Station: Looked up"_s);
    QCOMPARE(origin(host, 1), u"Station: Looked up / Camera: N/A"_s);
}

void tst_NodeStatus::startUpTakesConnectedNodesOff()
{
    TestHost host;
    report(host, 1, u"st1"_s, false);
    report(host, 0, u"st1/cam1"_s, false);
    report(host, 0, u"st1/cam2"_s, false);
    host.invoke("monitorNodeStatusForInit", 1, u"st1"_s, true, u"Lobby"_s);
    host.invoke("monitorNodeStatusForInit", 0, u"st1/cam1"_s, true, u"Door"_s);
    host.invoke("monitorNodeStatusForInit", 0, u"st1/cam9"_s, true, u"Door"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam2"_s}));
}

void tst_NodeStatus::walkListsLostStationsAndCameras()
{
    TestHost host;
    QStandardItem *const first = host.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    TopologyModel::addCamera(first, u"st1/cam1"_s, u"Door"_s, false);
    TopologyModel::addCamera(first, u"st1/cam2"_s, u"Hall"_s, true);
    QStandardItem *const second = host.topologyModel.addStation(u"st2"_s, u"Yard"_s);
    TopologyModel::addCamera(second, u"st2/cam1"_s, u"Gate"_s, false);
    TopologyModel::addCamera(host.topologyModel.top(), u"stray"_s, u"Stray"_s, false);
    walk(host);
    QCOMPARE(host.errorKeys(),
             QStringList({u"4_st1"_s, u"3_st1/cam1"_s, u"3_st2/cam1"_s, u"3_stray"_s}));
}

void tst_NodeStatus::walkReconcilesWithoutClearing()
{
    TestHost host;
    report(host, 0, u"st1/cam1"_s, false);
    report(host, 0, u"st1/cam2"_s, false);
    report(host, 0, u"unknown/cam1"_s, false);
    host.invoke("monitorCPUUsage", u"st1"_s, 100);
    QStandardItem *const station = host.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door"_s, true);
    TopologyModel::addCamera(station, u"st1/cam2"_s, u"Hall"_s, false);
    TopologyModel::addCamera(station, u"st1/cam3"_s, u"Roof"_s, false);
    walk(host);
    QCOMPARE(host.errorKeys(),
             QStringList({u"3_st1/cam2"_s, u"3_unknown/cam1"_s, u"0_st1"_s, u"3_st1/cam3"_s}));
    walk(host);
    QCOMPARE(host.errors()->rowCount(), 4);
}

void tst_NodeStatus::walkNamesStationsAndCameras()
{
    TestHost host;
    QStandardItem *const station = host.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door"_s, false);
    TopologyModel::addCamera(station, u"st9/cam2"_s, u"Hall"_s, false);
    host.topologyModel.addStation(u"st2"_s, QString(), false);
    walk(host);
    QCOMPARE(origin(host, 0), u"Lobby"_s);
    QCOMPARE(origin(host, 1), u"Lobby - Door"_s);
    QCOMPARE(origin(host, 2), u" - Hall"_s);
    QCOMPARE(origin(host, 3), u"Station: "_s);
}

// Id and name of a node stand in the tree twice; the walk reads the second pair.
void tst_NodeStatus::walkReadsItsOwnRoles()
{
    TestHost host;
    QStandardItem *const station = host.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    station->setData(u"other"_s, TopologyRole::LookupID);
    station->setData(QVariantMap{{u"nameRole"_s, u"Other"_s}}, TopologyRole::LookupNames);
    walk(host);
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s}));
    QCOMPARE(origin(host, 0), u"Lobby"_s);
}

void tst_NodeStatus::walkReachesStationsWithinStations()
{
    TestHost host;
    QStandardItem *station = nullptr;
    QString id;
    for (int depth = 0; depth < 5; ++depth) {
        id += u"/s"_s;
        station = host.topologyModel.addStation(id, u"Level %1"_s.arg(depth), true, station);
    }
    TopologyModel::addCamera(station, id + u"/cam"_s, u"Deep"_s, false);
    walk(host);
    QCOMPARE(host.errorKeys(), QStringList({u"3_"_s + id + u"/cam"_s}));
    QCOMPARE(origin(host, 0), u"Level 4 - Deep"_s);
}

void tst_NodeStatus::walkPassesByNodesOfOtherTypes()
{
    TestHost host;
    QStandardItem *const group =
        TopologyModel::addNode(host.topologyModel.top(), 2, u"group"_s, u"Group"_s, false);
    TopologyModel::addCamera(group, u"group/cam"_s, u"Hidden"_s, false);
    QStandardItem *const camera =
        TopologyModel::addCamera(host.topologyModel.top(), u"cam"_s, u"Camera"_s, true);
    TopologyModel::addCamera(camera, u"cam/cam"_s, u"Hidden too"_s, false);
    TopologyModel::addCamera(host.topologyModel.top(), u"last"_s, u"Last"_s, false);
    walk(host);
    QCOMPARE(host.errorKeys(), QStringList({u"3_last"_s}));
    QCOMPARE(reloads(host), QStringList());
}

void tst_NodeStatus::walkLeavesTheTopLevelNodeOut()
{
    TestHost host;
    QStandardItem *const top = host.topologyModel.top();
    top->setData(u"main"_s, TopologyRole::NodeID);
    top->setData(1, TopologyRole::NodeType);
    top->setData(false, TopologyRole::Connected);
    walk(host);
    QCOMPARE(host.errorKeys(), QStringList());
    QCOMPARE(reloads(host), QStringList());
}

void tst_NodeStatus::walkLeavesFurtherTopLevelNodesOut()
{
    TestHost host;
    auto *const second = new QStandardItem;
    host.topologyModel.appendRow(second);
    TopologyModel::addCamera(second, u"st1/cam1"_s, u"Door"_s, false);
    walk(host);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_NodeStatus::walkOfAnEmptyTreeDoesNothing_data()
{
    QTest::addColumn<bool>("hasTop");
    QTest::newRow("no top-level row") << false;
    QTest::newRow("top-level row without children") << true;
}

void tst_NodeStatus::walkOfAnEmptyTreeDoesNothing()
{
    QFETCH(const bool, hasTop);
    TestHost host;
    if (!hasTop)
        host.topologyModel.clear();
    report(host, 0, u"st1/cam1"_s, false);
    walk(host);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s}));
    QCOMPARE(host.log.take(), QStringList());
}

void tst_NodeStatus::walkWithoutTopologyDoesNothing()
{
    TestHost host(TestHost::Initialised);
    host.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    walk(host);
    QCOMPARE(host.errorKeys(), QStringList());
    QCOMPARE(host.log.take(), QStringList());
}

// A node without roles reads as camera 0 without id that is not connected.
void tst_NodeStatus::walkTakesANodeWithoutRolesForALostCamera()
{
    TestHost host;
    host.topologyModel.top()->appendRow(new QStandardItem);
    walk(host);
    QCOMPARE(host.errorKeys(), QStringList({u"3_"_s}));
    QCOMPARE(origin(host, 0), u" - "_s);
}

void tst_NodeStatus::walkReloadsTheStorageOfEachStation()
{
    TestHost host;
    QStandardItem *const first = host.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    TopologyModel::addCamera(first, u"st1/cam1"_s, u"Door"_s, false);
    host.topologyModel.addStation(u"st1/sub"_s, u"Cellar"_s, true, first);
    host.topologyModel.addStation(u"st2"_s, u"Yard"_s);
    walk(host);
    const QString find = u"find 8F33495A224D49ABB8F9E875984A1443"_s;
    QCOMPARE(host.log.take(), QStringList({find, u"reloadStorageUsageInfo \"st1\""_s, find,
                                           u"reloadStorageUsageInfo \"st1/sub\""_s, find,
                                           u"reloadStorageUsageInfo \"st2\""_s}));
}

void tst_NodeStatus::walkGoesOnWithoutRecordingPlugin()
{
    TestHost host;
    host.framework.forgetPlugin(PluginID::RecordingManagement);
    QStandardItem *const first = host.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    TopologyModel::addCamera(first, u"st1/cam1"_s, u"Door"_s, false);
    host.topologyModel.addStation(u"st2"_s, u"Yard"_s, false);
    walk(host);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s, u"4_st2"_s}));
}

void tst_NodeStatus::walkVisitsNodesThatAppearDuringIt()
{
    TestHost host;
    host.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    host.recording.onReload = [&host] {
        if (host.topologyModel.top()->rowCount() < 3)
            host.topologyModel.addStation(u"late"_s, u"Late"_s, false);
    };
    walk(host);
    QCOMPARE(host.errorKeys(), QStringList({u"4_late"_s}));
    QCOMPARE(reloads(host), QStringList({u"\"st1\""_s, u"\"late\""_s, u"\"late\""_s}));
}

// Clearing a station goes by the beginning of the id.
void tst_NodeStatus::walkClearsNeighboursWithLongerIds()
{
    TestHost host;
    host.topologyModel.addStation(u"st10"_s, u"Ten"_s, false);
    host.topologyModel.addStation(u"st1"_s, u"One"_s, false);
    host.topologyModel.addStation(u"st11"_s, u"Eleven"_s, false);
    walk(host);
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s, u"4_st11"_s}));
    walk(host);
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s, u"4_st11"_s, u"4_st10"_s}));
}

void tst_NodeStatus::walkSparesSnoozedNodes()
{
    TestHost host;
    host.respond(u"getSnoozeList"_s, QStringList{u"st1"_s, u"st1/cam1"_s});
    QStandardItem *const station = host.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door"_s, false);
    TopologyModel::addCamera(station, u"st1/cam2"_s, u"Hall"_s, false);
    walk(host);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam2"_s}));
}

// A walk that were due five seconds after the first signal would be seen by the look at 5.5
// seconds. The timers run in the order in which they are due, however late the machine is.
void tst_NodeStatus::burstOfRetrievalsYieldsOneWalkFiveSecondsAfterTheLast()
{
    TestHost host;
    host.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    int walks = 0;
    host.recording.onReload = [&walks] { ++walks; };

    int walksAtFirst = -1;
    int walksAtTheEnd = -1;
    QTimer::singleShot(1000, Qt::PreciseTimer, this,
                       [&host] { Q_EMIT host.topology.camStatusRetrievedChanged(false); });
    QTimer::singleShot(5500, Qt::PreciseTimer, this, [&] { walksAtFirst = walks; });
    QTimer::singleShot(7000, Qt::PreciseTimer, this, [&] { walksAtTheEnd = walks; });
    Q_EMIT host.topology.camStatusRetrievedChanged(true);
    Q_EMIT host.topology.camStatusRetrievedChanged(true);

    QTRY_COMPARE_WITH_TIMEOUT(walksAtTheEnd, 1, 30000);
    QCOMPARE(walksAtFirst, 0);
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s}));
}

QTEST_GUILESS_MAIN(tst_NodeStatus)
#include "tst_NodeStatus.moc"
