#include "ModelRoles.h"
#include "TestHost.h"

#include <QAbstractItemModelTester>
#include <QDateTime>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The rows of the error list: what they hold, how they are named, and how they leave.
class tst_ErrorList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void modelNamesEightRolesAndNoOther();
    void rowShowsNothingBesidesItsRoles();
    void rowHoldsTheErrorOfItsKind_data();
    void rowHoldsTheErrorOfItsKind();
    void rowHoldsTheTimeOfItsRaising();
    void errorNameHoldsTheThreshold();
    void stationOfACameraIsWhatStandsBeforeTheLastSlash_data();
    void stationOfACameraIsWhatStandsBeforeTheLastSlash();
    void unknownCameraIsNotAvailable();
    void unknownStationHasNoName();
    void namesAreEmptyWithoutTopology();
    void nodeWithoutNameIsUnknown();
    void nameIsLookedUpInTheWholeTree();
    void nameOfTheFirstNodeWithTheIdCounts();
    void nameLookupIsCaseSensitive();
    void nameLookupReadsItsOwnRoles();
    void namesWithMarkersAreShownAsTheyAre();
    void rowsAreAppendedAndKeepTheirOrder();
    void errorsAreFoundByKeyAfterEarlierRowsLeft();
    void equalKeysAreTheSameError();
    void keyIsFilledOnePieceAfterTheOther_data();
    void keyIsFilledOnePieceAfterTheOther();
    void removingACameraTakesAllErrorsOfThatDevice();
    void removingACameraComparesTheWholeId_data();
    void removingACameraComparesTheWholeId();
    void removingACameraWithoutIdTakesErrorsWithoutDevice();
    void removingAStationTakesItsCamerasAndLongerIds();
    void removingAStationIsCaseSensitive();
    void removingAStationWithoutIdTakesEverything_data();
    void removingAStationWithoutIdTakesEverything();
    void cameraWithoutStationIsReachedByNoStation();
    void removingFromAnEmptyListDoesNothing();
    void removedErrorMayBeRaisedAgain();
    void snoozedStationIsOnlySparedItsDisconnection();
    void snoozedCameraIsNotAdded();
    void snoozeComparesTheWholeIdWithCase();
};

namespace {

void addLobby(TestHost &host)
{
    QStandardItem *const station = host.topologyModel.addStation(u"st1"_s, u"Lobby NVR"_s);
    TopologyModel::addCamera(station, u"st1/cam7"_s, u"Door 2"_s);
}

void loseCamera(TestHost &host, const QString &id)
{
    Q_EMIT host.topology.nodeStatusChanged(TopologyModel::Camera, id, false);
}

void loseStation(TestHost &host, const QString &id)
{
    Q_EMIT host.topology.nodeStatusChanged(TopologyModel::Station, id, false);
}

QString origin(TestHost &host, int row = 0)
{
    return host.error(row, ErrorRole::TriggerDeviceName).toString();
}

} // namespace

void tst_ErrorList::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_ErrorList::modelNamesEightRolesAndNoOther()
{
    TestHost host;
    const QHash<int, QByteArray> roles{
        {257, "stationIDRole"},         {258, "deviceIDRole"},  {259, "errorTypeRole"},
        {260, "errorCategoryRole"},     {261, "timestampRole"}, {262, "errorNameRole"},
        {263, "triggerDeviceNameRole"}, {264, "uniqueIDRole"},
    };
    QCOMPARE(host.errors()->roleNames(), roles);
}

void tst_ErrorList::rowShowsNothingBesidesItsRoles()
{
    TestHost host;
    loseCamera(host, u"st1/cam7"_s);
    const QModelIndex row = host.errors()->index(0, 0);
    QCOMPARE(host.errors()->columnCount(), 1);
    QCOMPARE(host.errors()->rowCount(row), 0);
    QCOMPARE(row.data(Qt::DisplayRole), QVariant());
    QCOMPARE(row.data(256), QVariant());
    QCOMPARE(row.data(265), QVariant());
}

void tst_ErrorList::rowHoldsTheErrorOfItsKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("row");
    QTest::newRow("CPU") << 0
                         << uR"("0_st1" station "st1" device "" type 0 category 1 )"
                            R"(name "CPU utilization over 90%" from "Station: Lobby NVR")"_s;
    QTest::newRow("memory") << 1
                            << uR"("1_st1" station "st1" device "" type 1 category 1 )"
                               R"(name "Memory usage over 90%" from "Station: Lobby NVR")"_s;
    QTest::newRow("network") << 2
                             << uR"("2_st1_en0" station "st1" device "en0" type 2 category 1 )"
                                R"(name "Network usage over 50%" from "Station: Lobby NVR")"_s;
    QTest::newRow("camera") << 3
                            << uR"("3_st1/cam7" station "st1" device "st1/cam7" type 3 category 2 )"
                               R"(name "Camera disconnected" )"
                               R"(from "Station: Lobby NVR / Camera: Door 2")"_s;
    QTest::newRow("station") << 4
                             << uR"("4_st1" station "st1" device "" type 4 category 1 )"
                                R"(name "Station disconnected" from "Station: Lobby NVR")"_s;
    QTest::newRow("volume") << 5
                            << uR"("5_st1" station "st1" device "" type 5 category 1 )"
                               R"(name "Volume disconnected" from "Station: Lobby NVR")"_s;
    QTest::newRow("recording days")
        << 7
        << uR"("7_st1_g1" station "st1" device "st1" type 7 category 1 )"
           R"(name "Insufficient recording days" from "Station: Lobby NVR / Archive: Vault")"_s;
}

void tst_ErrorList::rowHoldsTheErrorOfItsKind()
{
    QFETCH(const int, kind);
    QFETCH(const QString, row);
    TestHost host;
    addLobby(host);
    switch (kind) {
    case 0:
        host.invoke("monitorCPUUsage", u"st1"_s, 90);
        break;
    case 1:
        host.invoke("monitorMemoryUsage", u"st1"_s, 90);
        break;
    case 2:
        host.invoke("monitorNetworkUsage", u"st1"_s, 50, u"en0"_s);
        break;
    case 3:
        loseCamera(host, u"st1/cam7"_s);
        break;
    case 4:
        loseStation(host, u"st1"_s);
        break;
    case 5:
        host.invoke("monitorVolumeStatus", u"st1"_s);
        break;
    default:
        host.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"Vault"_s, u"g1"_s);
    }
    QCOMPARE(host.errorRows(), QStringList{row});
}

void tst_ErrorList::rowHoldsTheTimeOfItsRaising()
{
    TestHost host;
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    loseCamera(host, u"st1/cam7"_s);
    loseStation(host, u"st2"_s);
    host.invoke("monitorInsufficientRecordingDays", u"st3"_s, u"Vault"_s, u"g1"_s);
    const qint64 after = QDateTime::currentMSecsSinceEpoch();
    for (int row = 0; row < 3; ++row) {
        const QVariant time = host.error(row, ErrorRole::Timestamp);
        QCOMPARE(time.metaType(), QMetaType::fromType<qint64>());
        QVERIFY(before <= time.toLongLong() && time.toLongLong() <= after);
    }
}

void tst_ErrorList::errorNameHoldsTheThreshold()
{
    TestHost host(TestHost::Paired, {"85", "7", "123456"});
    host.invoke("monitorCPUUsage", u"st1"_s, 1000000);
    host.invoke("monitorMemoryUsage", u"st1"_s, 1000000);
    host.invoke("monitorNetworkUsage", u"st1"_s, 1000000, u"en0"_s);
    QCOMPARE(host.error(0, ErrorRole::Name).toString(), u"CPU utilization over 85%"_s);
    QCOMPARE(host.error(1, ErrorRole::Name).toString(), u"Memory usage over 7%"_s);
    QCOMPARE(host.error(2, ErrorRole::Name).toString(), u"Network usage over 123456%"_s);
}

void tst_ErrorList::stationOfACameraIsWhatStandsBeforeTheLastSlash_data()
{
    QTest::addColumn<QString>("cameraID");
    QTest::addColumn<QString>("stationID");
    QTest::newRow("one slash") << u"st1/cam7"_s << u"st1"_s;
    QTest::newRow("two slashes") << u"a/b/c"_s << u"a/b"_s;
    QTest::newRow("no slash") << u"abc"_s << QString();
    QTest::newRow("slash in front") << u"/x"_s << QString();
    QTest::newRow("slash at the end") << u"st1/"_s << u"st1"_s;
    QTest::newRow("two slashes in a row") << u"st1//x"_s << u"st1/"_s;
    QTest::newRow("only a slash") << u"/"_s << QString();
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("other script") << u"駅/カメラ"_s << u"駅"_s;
}

void tst_ErrorList::stationOfACameraIsWhatStandsBeforeTheLastSlash()
{
    QFETCH(const QString, cameraID);
    QFETCH(const QString, stationID);
    TestHost host;
    loseCamera(host, cameraID);
    QCOMPARE(host.errors()->rowCount(), 1);
    QCOMPARE(host.error(0, ErrorRole::StationID).toString(), stationID);
    QCOMPARE(host.error(0, ErrorRole::DeviceID).toString(), cameraID);
    QCOMPARE(host.error(0, ErrorRole::UniqueID).toString(), u"3_"_s + cameraID);
}

void tst_ErrorList::unknownCameraIsNotAvailable()
{
    TestHost host;
    addLobby(host);
    loseCamera(host, u"st1/cam8"_s);
    QCOMPARE(origin(host), u"Station: Lobby NVR / Camera: N/A"_s);
}

void tst_ErrorList::unknownStationHasNoName()
{
    TestHost host;
    addLobby(host);
    loseStation(host, u"st2"_s);
    loseCamera(host, u"st2/cam1"_s);
    host.invoke("monitorInsufficientRecordingDays", u"st2"_s, u"Vault"_s, u"g1"_s);
    QCOMPARE(origin(host, 0), u"Station: "_s);
    QCOMPARE(origin(host, 1), u"Station:  / Camera: N/A"_s);
    QCOMPARE(origin(host, 2), u"Station:  / Archive: Vault"_s);
}

void tst_ErrorList::namesAreEmptyWithoutTopology()
{
    TestHost host(TestHost::Initialised);
    addLobby(host);
    host.invoke("monitorNodeStatus", 0, u"st1/cam7"_s, false);
    host.invoke("monitorVolumeStatus", u"st1"_s);
    QCOMPARE(origin(host, 0), u"Station:  / Camera: N/A"_s);
    QCOMPARE(origin(host, 1), u"Station: "_s);
}

void tst_ErrorList::nodeWithoutNameIsUnknown()
{
    TestHost host;
    QStandardItem *const station = host.topologyModel.addStation(u"st1"_s, u"Lobby NVR"_s);
    station->setData(QVariantMap{{u"name"_s, u"Lobby NVR"_s}}, TopologyRole::LookupNames);
    QStandardItem *const camera = TopologyModel::addCamera(station, u"st1/cam7"_s, u"Door 2"_s);
    camera->setData(QVariant(), TopologyRole::LookupNames);
    loseCamera(host, u"st1/cam7"_s);
    QCOMPARE(origin(host), u"Station:  / Camera: N/A"_s);
}

void tst_ErrorList::nameIsLookedUpInTheWholeTree()
{
    TestHost host;
    QStandardItem *const top = host.topologyModel.top();
    top->setData(u"main"_s, TopologyRole::LookupID);
    top->setData(QVariantMap{{u"nameRole"_s, u"Main server"_s}}, TopologyRole::LookupNames);
    QStandardItem *const outer = host.topologyModel.addStation(u"a"_s, u"Outer"_s);
    QStandardItem *const inner = host.topologyModel.addStation(u"a/b"_s, u"Inner"_s, true, outer);
    TopologyModel::addCamera(inner, u"a/b/c"_s, u"Deep"_s);
    loseStation(host, u"main"_s);
    loseCamera(host, u"a/b/c"_s);
    QCOMPARE(origin(host, 0), u"Station: Main server"_s);
    QCOMPARE(origin(host, 1), u"Station: Inner / Camera: Deep"_s);
}

void tst_ErrorList::nameOfTheFirstNodeWithTheIdCounts()
{
    TestHost host;
    QStandardItem *const first = host.topologyModel.addStation(u"a"_s, u"A"_s);
    TopologyModel::addCamera(first, u"twice"_s, u"Nested first"_s);
    host.topologyModel.addStation(u"twice"_s, u"Later"_s);
    loseStation(host, u"twice"_s);
    QCOMPARE(origin(host), u"Station: Nested first"_s);
}

void tst_ErrorList::nameLookupIsCaseSensitive()
{
    TestHost host;
    addLobby(host);
    loseStation(host, u"ST1"_s);
    QCOMPARE(origin(host), u"Station: "_s);
}

// The tree names a node twice: once to be looked up, once to be shown by the walk.
void tst_ErrorList::nameLookupReadsItsOwnRoles()
{
    TestHost host;
    QStandardItem *const station = host.topologyModel.addStation(u"shown"_s, u"Shown"_s);
    station->setData(u"looked-up"_s, TopologyRole::LookupID);
    station->setData(QVariantMap{{u"nameRole"_s, u"Looked up"_s}}, TopologyRole::LookupNames);
    loseStation(host, u"looked-up"_s);
    loseStation(host, u"shown"_s);
    QCOMPARE(origin(host, 0), u"Station: Looked up"_s);
    QCOMPARE(origin(host, 1), u"Station: "_s);
}

void tst_ErrorList::namesWithMarkersAreShownAsTheyAre()
{
    TestHost host;
    QStandardItem *const station = host.topologyModel.addStation(u"st1"_s, u"%3 %4 %1"_s);
    TopologyModel::addCamera(station, u"st1/cam7"_s, u"%2 %%"_s);
    loseCamera(host, u"st1/cam7"_s);
    host.invoke("monitorVolumeStatus", u"st1"_s);
    host.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"%1%2"_s, u"g1"_s);
    QCOMPARE(origin(host, 0), u"Station: %3 %4 %1 / Camera: %2 %%"_s);
    QCOMPARE(origin(host, 1), u"Station: %3 %4 %1"_s);
    QCOMPARE(origin(host, 2), u"Station: %3 %4 %1 / Archive: %1%2"_s);
}

void tst_ErrorList::rowsAreAppendedAndKeepTheirOrder()
{
    TestHost host;
    const QAbstractItemModelTester tester(host.errors());
    loseCamera(host, u"z/1"_s);
    loseCamera(host, u"a/1"_s);
    loseCamera(host, u"m/1"_s);
    loseCamera(host, u"a/1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"3_z/1"_s, u"3_a/1"_s, u"3_m/1"_s}));
}

void tst_ErrorList::errorsAreFoundByKeyAfterEarlierRowsLeft()
{
    TestHost host;
    for (const QString &id : {u"a/1"_s, u"b/1"_s, u"c/1"_s})
        loseCamera(host, id);
    Q_EMIT host.topology.nodeStatusChanged(0, u"a/1"_s, true);
    Q_EMIT host.topology.nodeStatusChanged(0, u"c/1"_s, true);
    QCOMPARE(host.errorKeys(), QStringList({u"3_b/1"_s}));
    Q_EMIT host.topology.nodeStatusChanged(0, u"b/1"_s, true);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_ErrorList::equalKeysAreTheSameError()
{
    TestHost host;
    host.invoke("monitorNetworkUsage", u"a_b"_s, 60, u"c"_s);
    host.invoke("monitorNetworkUsage", u"a"_s, 60, u"b_c"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"2_a_b_c"_s}));
    QCOMPARE(host.error(0, ErrorRole::StationID).toString(), u"a_b"_s);
    host.invoke("monitorNetworkUsage", u"a"_s, 40, u"b_c"_s);
    QCOMPARE(host.errorKeys(), QStringList());
}

// A marker in an id takes what was meant for a later place.
void tst_ErrorList::keyIsFilledOnePieceAfterTheOther_data()
{
    QTest::addColumn<QString>("stationID");
    QTest::addColumn<QString>("interfaceName");
    QTest::addColumn<QString>("key");
    QTest::newRow("no marker") << u"st1"_s << u"en0"_s << u"2_st1_en0"_s;
    QTest::newRow("third") << u"%3"_s << u"en0"_s << u"2_en0_en0"_s;
    QTest::newRow("second") << u"%2"_s << u"en0"_s << u"2_en0_%3"_s;
    QTest::newRow("first") << u"a%1b%1"_s << u"en0"_s << u"2_aen0ben0_%3"_s;
    QTest::newRow("localized") << u"%L1"_s << u"en0"_s << u"2_en0_%3"_s;
    QTest::newRow("two digits") << u"%10"_s << u"en0"_s << u"2_%10_en0"_s;
    QTest::newRow("no interface") << u"%1%2%3"_s << QString() << u"2_%1%2%3"_s;
    QTest::newRow("in the interface") << u"st1"_s << u"%1%3"_s << u"2_st1_%1%3"_s;
    QTest::newRow("percent sign alone") << u"50%"_s << u"%"_s << u"2_50%_%"_s;
}

void tst_ErrorList::keyIsFilledOnePieceAfterTheOther()
{
    QFETCH(const QString, stationID);
    QFETCH(const QString, interfaceName);
    QFETCH(const QString, key);
    TestHost host;
    host.invoke("monitorNetworkUsage", stationID, 100, interfaceName);
    QCOMPARE(host.errorKeys(), QStringList({key}));
    host.invoke("monitorNetworkUsage", stationID, 0, interfaceName);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_ErrorList::removingACameraTakesAllErrorsOfThatDevice()
{
    TestHost host;
    loseCamera(host, u"st1/cam1"_s);
    loseCamera(host, u"st1/cam2"_s);
    host.invoke("monitorNetworkUsage", u"st9"_s, 60, u"st1/cam1"_s);
    Q_EMIT host.topology.deviceRemoved(u"st1/cam1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam2"_s}));

    loseCamera(host, u"st1/cam1"_s);
    host.invoke("monitorNetworkUsage", u"st9"_s, 60, u"st1/cam1"_s);
    QCOMPARE(host.errorKeys(),
             QStringList({u"3_st1/cam2"_s, u"3_st1/cam1"_s, u"2_st9_st1/cam1"_s}));
}

void tst_ErrorList::removingACameraComparesTheWholeId_data()
{
    QTest::addColumn<QString>("id");
    for (const QString &id : {u"st1/cam"_s, u"st1/cam10"_s, u"ST1/CAM1"_s, u"cam1"_s, u"st1"_s,
                              u"st1/*"_s, u"st1/cam."_s})
        QTest::newRow(qPrintable(id)) << id;
}

void tst_ErrorList::removingACameraComparesTheWholeId()
{
    QFETCH(const QString, id);
    TestHost host;
    loseCamera(host, u"st1/cam1"_s);
    Q_EMIT host.topology.deviceRemoved(id);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s}));
}

void tst_ErrorList::removingACameraWithoutIdTakesErrorsWithoutDevice()
{
    TestHost host;
    loseCamera(host, u"st1/cam1"_s);
    loseStation(host, u"st2"_s);
    host.invoke("monitorCPUUsage", u"st3"_s, 100);
    host.invoke("monitorNetworkUsage", u"st3"_s, 100, u"en0"_s);
    Q_EMIT host.topology.deviceRemoved(QString());
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s, u"2_st3_en0"_s}));
}

void tst_ErrorList::removingAStationTakesItsCamerasAndLongerIds()
{
    TestHost host;
    const QAbstractItemModelTester tester(host.errors());
    loseCamera(host, u"st1/cam1"_s);
    loseCamera(host, u"xst1/cam1"_s);
    loseStation(host, u"st10"_s);
    host.invoke("monitorCPUUsage", u"st1"_s, 100);
    loseCamera(host, u"st2/cam1"_s);
    host.invoke("monitorInsufficientRecordingDays", u"st1/sub"_s, u"Vault"_s, u"g1"_s);
    Q_EMIT host.topology.stationRemoved(u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"3_xst1/cam1"_s, u"3_st2/cam1"_s}));
}

void tst_ErrorList::removingAStationIsCaseSensitive()
{
    TestHost host;
    loseStation(host, u"st1"_s);
    Q_EMIT host.topology.stationRemoved(u"ST1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s}));
}

void tst_ErrorList::removingAStationWithoutIdTakesEverything_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << u""_s;
}

void tst_ErrorList::removingAStationWithoutIdTakesEverything()
{
    QFETCH(const QString, id);
    TestHost host;
    loseStation(host, u"st1"_s);
    loseCamera(host, u"st2/cam1"_s);
    loseCamera(host, u"stray"_s);
    host.invoke("monitorCPUUsage", QString(), 100);
    host.invoke("monitorMemoryUsage", u""_s, 100);
    Q_EMIT host.topology.stationRemoved(id);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_ErrorList::cameraWithoutStationIsReachedByNoStation()
{
    TestHost host;
    loseCamera(host, u"stray"_s);
    Q_EMIT host.topology.stationRemoved(u"stray"_s);
    Q_EMIT host.topology.stationRemoved(u"s"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"3_stray"_s}));
}

void tst_ErrorList::removingFromAnEmptyListDoesNothing()
{
    TestHost host;
    Q_EMIT host.topology.deviceRemoved(u"st1/cam1"_s);
    Q_EMIT host.topology.deviceRemoved(QString());
    Q_EMIT host.topology.stationRemoved(u"st1"_s);
    Q_EMIT host.topology.stationRemoved(QString());
    QCOMPARE(host.errorKeys(), QStringList());
    QCOMPARE(host.log.take(), QStringList());
}

void tst_ErrorList::removedErrorMayBeRaisedAgain()
{
    TestHost host;
    loseCamera(host, u"st1/cam1"_s);
    Q_EMIT host.topology.stationRemoved(u"st1"_s);
    loseCamera(host, u"st1/cam1"_s);
    Q_EMIT host.topology.deviceRemoved(u"st1/cam1"_s);
    loseCamera(host, u"st1/cam1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s}));
}

void tst_ErrorList::snoozedStationIsOnlySparedItsDisconnection()
{
    TestHost host;
    host.respond(u"getSnoozeList"_s, QStringList{u"st1"_s});
    loseStation(host, u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList());
    host.invoke("monitorCPUUsage", u"st1"_s, 100);
    host.invoke("monitorMemoryUsage", u"st1"_s, 100);
    host.invoke("monitorNetworkUsage", u"st1"_s, 100, u"en0"_s);
    host.invoke("monitorVolumeStatus", u"st1"_s);
    host.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"Vault"_s, u"g1"_s);
    loseCamera(host, u"st1/cam1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"0_st1"_s, u"1_st1"_s, u"2_st1_en0"_s, u"5_st1"_s,
                                            u"7_st1_g1"_s, u"3_st1/cam1"_s}));
}

void tst_ErrorList::snoozedCameraIsNotAdded()
{
    TestHost host;
    host.respond(u"getSnoozeList"_s, QStringList{u"st1/cam1"_s});
    loseCamera(host, u"st1/cam1"_s);
    host.invoke("monitorNodeStatusForInit", 0, u"st1/cam1"_s, false, u"Door"_s);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_ErrorList::snoozeComparesTheWholeIdWithCase()
{
    TestHost host;
    host.respond(u"getSnoozeList"_s, QStringList{u"st1"_s});
    loseStation(host, u"ST1"_s);
    loseStation(host, u"st10"_s);
    loseStation(host, u"st"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"4_ST1"_s, u"4_st"_s}));
}

QTEST_GUILESS_MAIN(tst_ErrorList)
#include "tst_ErrorList.moc"
