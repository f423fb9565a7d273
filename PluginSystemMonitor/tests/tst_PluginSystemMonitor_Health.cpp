#include "CollectedTrace.h"
#include "HostedPlugin.h"
#include "PrintedValue.h"
#include "SystemErrorModel.h"

#include <QRegularExpression>
#include <QTest>
#include <QThread>

using namespace Qt::Literals::StringLiterals;

/// The rules that turn reports into errors.
class tst_PluginSystemMonitor_Health : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void disconnectedCameraIsListed();
    void disconnectedCameraIsListedOnce();
    void reconnectedCameraLeavesTheList();
    void connectedCameraThatIsNotListedChangesNothing();
    void camerasWriteNoTrace();
    void disconnectedStationIsListed();
    void disconnectedStationLosesItsOtherErrors();
    void stationReportedTwiceIsListedOnce();
    void disconnectedStationListedElsewhereIsTraced();
    void reconnectedStationLeavesTheList();
    void reconnectedStationKeepsItsOtherErrors();
    void connectedStationThatIsNotListedIsTraced();
    void otherNodeTypesAreIgnored_data();
    void otherNodeTypesAreIgnored();
    void statusTracesHaveTheirLevels();

    void startUpTakesTheGivenOrigin();
    void startUpKeepsAListedStationsErrors();
    void startUpClearsTheErrorsOfAStationBeforeItIsListed();
    void startUpLooksUpAMissingOrigin();
    void startUpClearsConnectedNodes();
    void startUpTracesConnectedStations();
    void startUpLeavesListedCamerasAlone();
    void startUpSuppressesSnoozedNodes();

    void walkIsScheduledInFiveSeconds_data();
    void walkIsScheduledInFiveSeconds();
    void burstOfReportsLeadsToOneWalk();
    void walkVisitsStationsAndTheirCameras();
    void walkReloadsTheStorageOfEveryStation();
    void storageIsReloadedInTheThreadOfTheRecordings();
    void walkDescendsIntoStationsOnly();
    void walkDoesNotExamineTheTopLevelNode();
    void walkVisitsTheFirstTopLevelNodeOnly();
    void walkFromAnInvalidNodeVisitsTheTopLevel();
    void walkReconcilesTheList();
    void walkTakesTheDisplayNameAndTheNodeId();
    void walkNamesACameraAfterItsStation_data();
    void walkNamesACameraAfterItsStation();
    void walkReadsMissingRolesAsADisconnectedCamera();
    void walkOfAnEmptyTopologyTracesOnly_data();
    void walkOfAnEmptyTopologyTracesOnly();
    void walkSeesNodesAddedMeanwhile();
    void walkWithoutATopologyIsSilent();
    void walkWithoutRecordingPluginGoesOn();
    void walkWithoutFrameworkGoesOn();
    void walkIsRepeatable();

    void volumeErrorIsListedOnce();
    void volumeErrorIsClearedByStation_data();
    void volumeErrorIsClearedByStation();
    void allVolumeErrorsOfAStationAreCleared();
    void volumeErrorsAreClearedFromTheFirstToTheLast();
    void insufficientDaysAreListedByGroup();
    void insufficientDaysReportedAgainRelabel();
    void insufficientDaysRelabelAfterTheStation();
    void sufficientGroupIsCleared();
    void sufficientGroupThatIsNotListedChangesNothing();
    void storageLabelTakesNamesLiterally();
    void storageRulesWriteNoTrace();

    void usageIsJudgedByItsThreshold_data();
    void usageIsJudgedByItsThreshold();
    void highUsageIsListedOnce();
    void highUsageIsNotRefreshed();
    void thresholdOfZeroListsEverythingFromZero();
    void thresholdTakesEffectAtTheNextReport();
    void interfacesAreJudgedOneByOne();
    void kindsOfUsageAreIndependent();
    void usageRulesWriteNoTrace();

    void errorsAreCountedByStation();
    void countsAreOrderedByStationId();
    void countsHaveTheirTypes();
    void errorsWithoutAStationAreCountedToo();
    void stationWithoutErrorsHasNoCount();
    void everyRecountIsAnnounced();
    void listIsCompleteWhenItIsAnnounced();
    void burstOfChangesLeadsToOneRecount();
    void countsAreAProperty();
};

namespace {

constexpr int Camera = 0;
constexpr int Station = 1;

QVariant dataOf(const HostedPlugin &hosted, int row, int role)
{
    return hosted.plugin.errorModel->index(row, 0).data(role);
}

QString originOf(const HostedPlugin &hosted, int row)
{
    return dataOf(hosted, row, SystemErrorModel::TriggerDeviceNameRole).toString();
}

QStringList originsOf(const HostedPlugin &hosted)
{
    QStringList origins;
    for (int row = 0; row < hosted.plugin.errorModel->rowCount(); ++row)
        origins.append(originOf(hosted, row));
    return origins;
}

// "st1: 3" for each element.
QStringList counts(const HostedPlugin &hosted)
{
    QStringList texts;
    const QVariantList list = hosted.plugin.stationErrorList();
    for (const QVariant &element : list) {
        const QVariantMap map = element.toMap();
        texts.append(map.value(u"stationID"_s).toString() + u": "_s
                     + map.value(u"errorNumber"_s).toString());
    }
    return texts;
}

} // namespace

void tst_PluginSystemMonitor_Health::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

// Node status, live

void tst_PluginSystemMonitor_Health::disconnectedCameraIsListed()
{
    HostedPlugin hosted;
    QStandardItem *station = hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    TopologyModel::addCamera(station, u"st1/cam7"_s, u"Door"_s);
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam7"_s, false);
    QCOMPARE(hosted.errorRows(),
             QStringList{u"\"3_st1/cam7\" station \"st1\" device \"st1/cam7\" type 3 category 2 "
                         "name \"Camera disconnected\" "
                         "from \"Station: Lobby / Camera: Door\""_s});
}

void tst_PluginSystemMonitor_Health::disconnectedCameraIsListedOnce()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam7"_s, false);
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam7"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList{u"3_st1/cam7"_s});
}

void tst_PluginSystemMonitor_Health::reconnectedCameraLeavesTheList()
{
    HostedPlugin hosted;
    for (const QString &id : {u"st1/cam1"_s, u"st1/cam2"_s, u"st1/cam3"_s})
        hosted.plugin.invoke("monitorNodeStatus", Camera, id, false);
    hosted.plugin.addCameraError(u"st1/cam2"_s, HighCpuUsage, QString());
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam2"_s, true);
    // Its disconnection alone.
    QCOMPARE(hosted.errorKeys(), QStringList({u"3_st1/cam1"_s, u"3_st1/cam3"_s, u"0_st1/cam2"_s}));
}

void tst_PluginSystemMonitor_Health::connectedCameraThatIsNotListedChangesNothing()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam1"_s, true);
    QCOMPARE(hosted.errorKeys(), QStringList());
    QVERIFY(!hosted.plugin.stationErrorNumberTimer.isActive());
}

void tst_PluginSystemMonitor_Health::camerasWriteNoTrace()
{
    HostedPlugin hosted;
    const CollectedTrace trace;
    for (const bool connected : {true, false, false, true, true})
        hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam1"_s, connected);
    for (const bool connected : {true, false, false, true, true})
        hosted.plugin.invoke("monitorNodeStatusForInit", Camera, u"st1/cam1"_s, connected, u""_s);
    QCOMPARE(trace.questions().size(), 0);
}

void tst_PluginSystemMonitor_Health::disconnectedStationIsListed()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    const CollectedTrace trace;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    QCOMPARE(hosted.errorRows(),
             QStringList{u"\"4_st1\" station \"st1\" device \"\" type 4 category 1 "
                         "name \"Station disconnected\" from \"Station: Lobby\""_s});
    QCOMPARE(trace.lines(), QStringList{u"3 Station disconnect remove all error on [st1]"_s});
}

void tst_PluginSystemMonitor_Health::disconnectedStationLosesItsOtherErrors()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam1"_s, false);
    hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, 100);
    hosted.plugin.invoke("monitorVolumeStatus", u"st10"_s);
    hosted.plugin.invoke("monitorVolumeStatus", u"st2"_s);
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList({u"5_st2"_s, u"4_st1"_s}));
}

void tst_PluginSystemMonitor_Health::stationReportedTwiceIsListedOnce()
{
    HostedPlugin hosted;
    const CollectedTrace trace;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st1"_s});
    // The second report removes the row as well, and then finds nothing listed.
    QCOMPARE(trace.lines(), QStringList(2, u"3 Station disconnect remove all error on [st1]"_s));
}

void tst_PluginSystemMonitor_Health::disconnectedStationListedElsewhereIsTraced()
{
    HostedPlugin hosted;
    auto *item = new QStandardItem;
    item->setData(u"4_st1"_s, SystemErrorModel::UniqueIDRole);
    item->setData(u"elsewhere"_s, SystemErrorModel::StationIDRole);
    hosted.plugin.appendSystemErrorModel(u"4_st1"_s, item);
    const CollectedTrace trace;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st1"_s});
    QCOMPARE(trace.lines(),
             QStringList({u"3 Station disconnect remove all error on [st1]"_s,
                          u"2 Station disconnect but error is already existed [st1]"_s}));
}

void tst_PluginSystemMonitor_Health::reconnectedStationLeavesTheList()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    const CollectedTrace trace;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, true);
    QCOMPARE(hosted.errorKeys(), QStringList());
    QCOMPARE(trace.lines(), QStringList());
}

void tst_PluginSystemMonitor_Health::reconnectedStationKeepsItsOtherErrors()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st10"_s, false);
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, true);
    QCOMPARE(hosted.errorKeys(), QStringList({u"4_st10"_s, u"5_st1"_s}));
}

void tst_PluginSystemMonitor_Health::connectedStationThatIsNotListedIsTraced()
{
    HostedPlugin hosted;
    const CollectedTrace trace;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, true);
    QCOMPARE(hosted.errorKeys(), QStringList());
    QCOMPARE(trace.lines(), QStringList{u"2 Station connect but error is not existed [st1]"_s});
}

void tst_PluginSystemMonitor_Health::otherNodeTypesAreIgnored_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {2, 3, -1, 4, 256, 1000000})
        QTest::addRow("%d", type) << type;
}

void tst_PluginSystemMonitor_Health::otherNodeTypesAreIgnored()
{
    QFETCH(const int, type);
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st2/cam1"_s, false);
    const CollectedTrace trace;
    for (const bool connected : {true, false}) {
        for (const QString &id : {u"st1"_s, u"st2/cam1"_s, u"st3"_s}) {
            hosted.plugin.invoke("monitorNodeStatus", type, id, connected);
            hosted.plugin.invoke("monitorNodeStatusForInit", type, id, connected, u"Name"_s);
        }
    }
    QCOMPARE(hosted.errorKeys(), QStringList({u"4_st1"_s, u"3_st2/cam1"_s}));
    QCOMPARE(trace.questions().size(), 0);
}

void tst_PluginSystemMonitor_Health::statusTracesHaveTheirLevels()
{
    HostedPlugin hosted;
    const CollectedTrace trace(TraceLog::ErrorLevel);
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    hosted.plugin.invoke("initNodeStatusErrorTimer", true);
    hosted.plugin.invoke("initNodeStatusError");
    QCOMPARE(trace.lines(), QStringList());
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st2"_s, true);
    QCOMPARE(trace.lines().size(), 1);
    QCOMPARE(trace.questions().last().file, u"PluginSystemMonitor_Health.cpp"_s);
}

// Node status at start-up

void tst_PluginSystemMonitor_Health::startUpTakesTheGivenOrigin()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    hosted.plugin.invoke("monitorNodeStatusForInit", Station, u"st1"_s, false, u"The lobby"_s);
    hosted.plugin.invoke("monitorNodeStatusForInit", Camera, u"st2/cam1"_s, false,
                         u"Gate - Door"_s);
    QCOMPARE(hosted.errorKeys(), QStringList({u"4_st1"_s, u"3_st2/cam1"_s}));
    QCOMPARE(originsOf(hosted), QStringList({u"The lobby"_s, u"Gate - Door"_s}));
}

void tst_PluginSystemMonitor_Health::startUpKeepsAListedStationsErrors()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    const QStringList before = hosted.errorRows();
    const CollectedTrace trace;
    hosted.plugin.invoke("monitorNodeStatusForInit", Station, u"st1"_s, false, u"Renamed"_s);
    QCOMPARE(hosted.errorRows(), before);
    QCOMPARE(trace.lines(),
             QStringList{u"2 Station disconnect but error is already existed [st1]"_s});
}

void tst_PluginSystemMonitor_Health::startUpClearsTheErrorsOfAStationBeforeItIsListed()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam1"_s, false);
    hosted.plugin.invoke("monitorVolumeStatus", u"st2"_s);
    const CollectedTrace trace;
    hosted.plugin.invoke("monitorNodeStatusForInit", Station, u"st1"_s, false, u"Lobby"_s);
    QCOMPARE(hosted.errorKeys(), QStringList({u"5_st2"_s, u"4_st1"_s}));
    QCOMPARE(trace.lines(), QStringList());
}

void tst_PluginSystemMonitor_Health::startUpLooksUpAMissingOrigin()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    hosted.plugin.invoke("monitorNodeStatusForInit", Station, u"st1"_s, false, u""_s);
    QCOMPARE(originsOf(hosted), QStringList{u"Station: Lobby"_s});
}

void tst_PluginSystemMonitor_Health::startUpClearsConnectedNodes()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st2/cam1"_s, false);
    const CollectedTrace trace;
    hosted.plugin.invoke("monitorNodeStatusForInit", Station, u"st1"_s, true, u"Lobby"_s);
    hosted.plugin.invoke("monitorNodeStatusForInit", Camera, u"st2/cam1"_s, true, u"Door"_s);
    QCOMPARE(hosted.errorKeys(), QStringList());
    QCOMPARE(trace.lines(), QStringList());
}

void tst_PluginSystemMonitor_Health::startUpTracesConnectedStations()
{
    HostedPlugin hosted;
    const CollectedTrace trace;
    hosted.plugin.invoke("monitorNodeStatusForInit", Station, u"st1"_s, true, u"Lobby"_s);
    QCOMPARE(trace.lines(), QStringList{u"2 Station connect but error is not existed [st1]"_s});
}

void tst_PluginSystemMonitor_Health::startUpLeavesListedCamerasAlone()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam1"_s, false);
    const QStringList before = hosted.errorRows();
    hosted.plugin.invoke("monitorNodeStatusForInit", Camera, u"st1/cam1"_s, false, u"Renamed"_s);
    QCOMPARE(hosted.errorRows(), before);
}

void tst_PluginSystemMonitor_Health::startUpSuppressesSnoozedNodes()
{
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"st1"_s, u"st2/cam1"_s};
    const CollectedTrace trace;
    hosted.plugin.invoke("monitorNodeStatusForInit", Station, u"st1"_s, false, u"Lobby"_s);
    hosted.plugin.invoke("monitorNodeStatusForInit", Camera, u"st2/cam1"_s, false, u"Door"_s);
    QCOMPARE(hosted.errorKeys(), QStringList());
    QCOMPARE(trace.lines(), QStringList({u"3 Snooze station disconnection error st1"_s,
                                         u"3 Snooze camera disconnection error st2/cam1"_s}));
}

// The walk

void tst_PluginSystemMonitor_Health::walkIsScheduledInFiveSeconds_data()
{
    QTest::addColumn<bool>("success");
    QTest::newRow("states retrieved") << true;
    QTest::newRow("states not retrieved") << false;
}

void tst_PluginSystemMonitor_Health::walkIsScheduledInFiveSeconds()
{
    QFETCH(const bool, success);
    HostedPlugin hosted;
    const CollectedTrace trace;
    hosted.plugin.invoke("initNodeStatusErrorTimer", success);
    QVERIFY(hosted.plugin.initNodeStatusTimer.isActive());
    QCOMPARE(hosted.plugin.initNodeStatusTimer.interval(), 5000);
    QCOMPARE(trace.lines(), QStringList{u"3 === Start initial node status ==="_s});
}

void tst_PluginSystemMonitor_Health::burstOfReportsLeadsToOneWalk()
{
    HostedPlugin hosted;
    QTimer &timer = hosted.plugin.initNodeStatusTimer;
    Q_EMIT hosted.topology.camStatusRetrievedChanged(true);
    // Had it run longer already, the next report would start it anew.
    timer.start(1000000);
    Q_EMIT hosted.topology.camStatusRetrievedChanged(true);
    QCOMPARE(timer.interval(), 5000);

    CollectedTrace trace;
    expire(timer);
    QCOMPARE(trace.take(), QStringList({u"3 === Init node status start ==="_s,
                                        u"3 === Init node status finish ==="_s}));
    QVERIFY(!timer.isActive());
}

void tst_PluginSystemMonitor_Health::walkVisitsStationsAndTheirCameras()
{
    HostedPlugin hosted;
    QStandardItem *lobby = hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    TopologyModel::addCamera(lobby, u"st1/cam1"_s, u"Door 1"_s, false);
    TopologyModel::addCamera(lobby, u"st1/cam2"_s, u"Door 2"_s, true);
    QStandardItem *gate = hosted.topologyModel.addStation(u"st1/sub"_s, u"Gate"_s, true, lobby);
    TopologyModel::addCamera(gate, u"st1/sub/cam1"_s, u"Barrier"_s, false);
    QStandardItem *hall = hosted.topologyModel.addStation(u"st2"_s, u"Hall"_s, false);
    TopologyModel::addCamera(hall, u"st2/cam1"_s, u"Stairs"_s, false);
    TopologyModel::addCamera(hosted.topologyModel.top(), u"loose"_s, u"Loose"_s, false);
    const CollectedTrace trace;
    hosted.plugin.initNodeStatusError();
    QCOMPARE(hosted.errorKeys(), QStringList({u"3_st1/cam1"_s, u"3_st1/sub/cam1"_s, u"4_st2"_s,
                                              u"3_st2/cam1"_s, u"3_loose"_s}));
    QCOMPARE(originsOf(hosted), QStringList({u"Lobby - Door 1"_s, u"Gate - Barrier"_s, u"Hall"_s,
                                             u"Hall - Stairs"_s, u" - Loose"_s}));
    QCOMPARE(trace.lines(), QStringList({u"3 === Init node status start ==="_s,
                                         u"2 Station connect but error is not existed [st1]"_s,
                                         u"2 Station connect but error is not existed [st1/sub]"_s,
                                         u"3 === Init node status finish ==="_s}));
}

void tst_PluginSystemMonitor_Health::walkReloadsTheStorageOfEveryStation()
{
    HostedPlugin hosted;
    QStandardItem *lobby = hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    TopologyModel::addCamera(lobby, u"st1/cam1"_s, u"Door 1"_s);
    hosted.topologyModel.addStation(u"st1/sub"_s, u"Gate"_s, true, lobby);
    hosted.topologyModel.addStation(u"st2"_s, u"Hall"_s, false);
    hosted.plugin.initNodeStatusError();
    QStringList expected;
    for (const QString &station : {u"st1"_s, u"st1/sub"_s, u"st2"_s}) {
        expected.append(u"find 8F33495A224D49ABB8F9E875984A1443"_s);
        expected.append(u"reloadStorageUsageInfo "_s + printedValue(station));
    }
    QCOMPARE(hosted.log.take(), expected);
    QVERIFY(hosted.host.allCallsHadTheHandle());
}

void tst_PluginSystemMonitor_Health::storageIsReloadedInTheThreadOfTheRecordings()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    const QString reload = u"reloadStorageUsageInfo \"st1\""_s;
    QThread thread;
    const QThread *reloadThread = nullptr;
    hosted.recording.onReload = [&thread, &reloadThread] {
        reloadThread = QThread::currentThread();
        thread.quit();
    };
    hosted.recording.moveToThread(&thread);
    hosted.plugin.initNodeStatusError();
    QVERIFY(!hosted.log.take().contains(reload));
    thread.start();
    QVERIFY(thread.wait());
    QCOMPARE(hosted.log.take(), QStringList{reload});
    QCOMPARE(reloadThread, &thread);
}

void tst_PluginSystemMonitor_Health::walkDescendsIntoStationsOnly()
{
    HostedPlugin hosted;
    QStandardItem *group =
        TopologyModel::addNode(hosted.topologyModel.top(), 2, u"group"_s, u"Group"_s, false);
    TopologyModel::addCamera(group, u"group/cam1"_s, u"Hidden"_s, false);
    TopologyModel::addNode(group, 1, u"group/st"_s, u"Hidden"_s, false);
    QStandardItem *camera =
        TopologyModel::addCamera(hosted.topologyModel.top(), u"st1/cam1"_s, u"Door"_s, false);
    TopologyModel::addCamera(camera, u"st1/cam1/lens"_s, u"Lens"_s, false);
    hosted.plugin.initNodeStatusError();
    QCOMPARE(hosted.errorKeys(), QStringList{u"3_st1/cam1"_s});
}

void tst_PluginSystemMonitor_Health::walkDoesNotExamineTheTopLevelNode()
{
    HostedPlugin hosted;
    QStandardItem *top = hosted.topologyModel.top();
    top->setData(1, Qt::UserRole + 6);
    top->setData(u"top"_s, Qt::UserRole + 4);
    top->setData(false, Qt::UserRole + 28);
    hosted.plugin.initNodeStatusError();
    QCOMPARE(hosted.errorKeys(), QStringList());
    QCOMPARE(hosted.log.take(), QStringList());
}

void tst_PluginSystemMonitor_Health::walkVisitsTheFirstTopLevelNodeOnly()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    auto *second = new QStandardItem;
    hosted.topologyModel.appendRow(second);
    TopologyModel::addNode(second, 1, u"st2"_s, u"Hall"_s, false);
    hosted.plugin.initNodeStatusError();
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st1"_s});
}

void tst_PluginSystemMonitor_Health::walkFromAnInvalidNodeVisitsTheTopLevel()
{
    HostedPlugin hosted;
    hosted.topologyModel.clear();
    TopologyModel::addNode(hosted.topologyModel.invisibleRootItem(), 1, u"st1"_s, u"Lobby"_s,
                           false);
    hosted.plugin.recursiveAppendStatusError(QModelIndex());
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st1"_s});
}

void tst_PluginSystemMonitor_Health::walkReconcilesTheList()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorVolumeStatus", u"st3"_s);
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st2/cam1"_s, false);
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st2/cam2"_s, false);
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"unknown/cam"_s, false);
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s, true);
    QStandardItem *hall = hosted.topologyModel.addStation(u"st2"_s, u"Hall"_s, true);
    TopologyModel::addCamera(hall, u"st2/cam1"_s, u"Door"_s, true);
    TopologyModel::addCamera(hall, u"st2/cam2"_s, u"Stairs"_s, false);
    hosted.plugin.initNodeStatusError();
    // What is not in the topology stays, what is listed already is not listed again.
    QCOMPARE(hosted.errorKeys(), QStringList({u"5_st3"_s, u"3_st2/cam2"_s, u"3_unknown/cam"_s}));
}

void tst_PluginSystemMonitor_Health::walkTakesTheDisplayNameAndTheNodeId()
{
    HostedPlugin hosted;
    QStandardItem *station = hosted.topologyModel.addStation(u"lookup"_s, u"Lobby"_s, false);
    station->setData(u"st1"_s, Qt::UserRole + 4);
    station->setData(u"Shown"_s, Qt::UserRole + 3);
    hosted.plugin.initNodeStatusError();
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st1"_s});
    QCOMPARE(originsOf(hosted), QStringList{u"Shown"_s});
    QVERIFY(hosted.log.take().contains(u"reloadStorageUsageInfo \"st1\""_s));
}

void tst_PluginSystemMonitor_Health::walkNamesACameraAfterItsStation_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("origin");
    QTest::newRow("known station") << u"st1/cam1"_s << u"Door"_s << u"Lobby - Door"_s;
    QTest::newRow("unknown station") << u"st9/cam1"_s << u"Door"_s << u" - Door"_s;
    QTest::newRow("no station") << u"cam1"_s << u"Door"_s << u" - Door"_s;
    QTest::newRow("no name") << u"st1/cam1"_s << QString() << u"Lobby - "_s;
    QTest::newRow("no name at all") << u"cam1"_s << QString() << u" - "_s;
}

void tst_PluginSystemMonitor_Health::walkNamesACameraAfterItsStation()
{
    QFETCH(const QString, id);
    QFETCH(const QString, name);
    QFETCH(const QString, origin);
    HostedPlugin hosted;
    hosted.topologyModel.top()->setData(u"no id"_s, Qt::UserRole + 1);
    QStandardItem *station = hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    TopologyModel::addCamera(station, id, name, false);
    hosted.plugin.initNodeStatusError();
    QCOMPARE(originsOf(hosted), QStringList{origin});
}

void tst_PluginSystemMonitor_Health::walkReadsMissingRolesAsADisconnectedCamera()
{
    HostedPlugin hosted;
    hosted.topologyModel.top()->appendRow(new QStandardItem);
    hosted.plugin.initNodeStatusError();
    QCOMPARE(hosted.errorKeys(), QStringList{u"3_"_s});
}

void tst_PluginSystemMonitor_Health::walkOfAnEmptyTopologyTracesOnly_data()
{
    QTest::addColumn<bool>("hasTopLevelRow");
    QTest::newRow("no top-level row") << false;
    QTest::newRow("no children") << true;
}

void tst_PluginSystemMonitor_Health::walkOfAnEmptyTopologyTracesOnly()
{
    QFETCH(const bool, hasTopLevelRow);
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    if (!hasTopLevelRow)
        hosted.topologyModel.clear();
    const CollectedTrace trace;
    hosted.plugin.initNodeStatusError();
    QCOMPARE(trace.lines(), QStringList({u"3 === Init node status start ==="_s,
                                         u"3 === Init node status finish ==="_s}));
    QCOMPARE(hosted.errorKeys(), QStringList{u"5_st1"_s});
    QCOMPARE(hosted.log.take(), QStringList());
}

void tst_PluginSystemMonitor_Health::walkSeesNodesAddedMeanwhile()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    const auto connection =
        connect(hosted.plugin.errorModel, &QAbstractItemModel::rowsInserted, this, [&] {
            if (hosted.errorKeys().size() == 1)
                hosted.topologyModel.addStation(u"st2"_s, u"Hall"_s, false);
        });
    hosted.plugin.initNodeStatusError();
    disconnect(connection);
    QCOMPARE(hosted.errorKeys(), QStringList({u"4_st1"_s, u"4_st2"_s}));
}

void tst_PluginSystemMonitor_Health::walkWithoutATopologyIsSilent()
{
    HostedPlugin unpaired(HostedPlugin::Initialised);
    HostedPlugin hosted;
    auto *model = new TopologyModel;
    hosted.plugin.topologyModel = model;
    delete model;
    const CollectedTrace trace;
    unpaired.plugin.initNodeStatusError();
    hosted.plugin.initNodeStatusError();
    QCOMPARE(trace.questions().size(), 0);
    QCOMPARE(hosted.log.take(), QStringList());
}

void tst_PluginSystemMonitor_Health::walkWithoutRecordingPluginGoesOn()
{
    HostedPlugin hosted;
    hosted.host.forgetPlugin(u"8F33495A224D49ABB8F9E875984A1443"_s);
    QStandardItem *station = hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door"_s, false);
    hosted.plugin.initNodeStatusError();
    QCOMPARE(hosted.errorKeys(), QStringList({u"4_st1"_s, u"3_st1/cam1"_s}));
}

void tst_PluginSystemMonitor_Health::walkWithoutFrameworkGoesOn()
{
    TestedPlugin plugin;
    QVERIFY(plugin.InitialPluginBase(nullptr, nullptr, nullptr));
    TopologyModel model;
    model.addStation(u"st1"_s, u"Lobby"_s, false);
    plugin.topologyModel = &model;
    plugin.initNodeStatusError();
    QVERIFY(plugin.lists(StationDisconnected, u"st1"_s));
}

void tst_PluginSystemMonitor_Health::walkIsRepeatable()
{
    HostedPlugin hosted;
    QStandardItem *station = hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door"_s, false);
    hosted.plugin.initNodeStatusError();
    const QStringList before = hosted.errorRows();
    hosted.plugin.initNodeStatusError();
    QCOMPARE(hosted.errorRows(), before);
}

// Storage and recording

void tst_PluginSystemMonitor_Health::volumeErrorIsListedOnce()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    QCOMPARE(hosted.errorRows(),
             QStringList{u"\"5_st1\" station \"st1\" device \"\" type 5 category 1 "
                         "name \"Volume disconnected\" from \"Station: Lobby\""_s});
}

void tst_PluginSystemMonitor_Health::volumeErrorIsClearedByStation_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QStringList>("left");
    const QString cpu = u"0_st1"_s;
    const QString one = u"5_st1"_s;
    const QString ten = u"5_st10"_s;
    const QString upper = u"5_ST1"_s;
    QTest::newRow("station") << u"st1"_s << QStringList{cpu, ten, upper};
    QTest::newRow("longer id") << u"st10"_s << QStringList{cpu, one, upper};
    QTest::newRow("unknown") << u"st9"_s << QStringList{cpu, one, ten, upper};
    QTest::newRow("none") << QString() << QStringList{cpu, one, ten, upper};
}

void tst_PluginSystemMonitor_Health::volumeErrorIsClearedByStation()
{
    QFETCH(const QString, id);
    QFETCH(const QStringList, left);
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, 100);
    for (const QString &station : {u"st1"_s, u"st10"_s, u"ST1"_s})
        hosted.plugin.invoke("monitorVolumeStatus", station);
    hosted.plugin.invoke("removeVolumeError", id);
    QCOMPARE(hosted.errorKeys(), left);
    QCOMPARE(hosted.plugin.lists(VolumeDisconnected, u"st1"_s), left.contains(u"5_st1"_s));
}

void tst_PluginSystemMonitor_Health::allVolumeErrorsOfAStationAreCleared()
{
    HostedPlugin hosted;
    // One for the station, and two of volumes with ids of their own.
    hosted.plugin.addSystemError(u"st1"_s, VolumeDisconnected, u"v1"_s, QString());
    hosted.plugin.invoke("monitorVolumeStatus", u"st2"_s);
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    hosted.plugin.addSystemError(u"st1"_s, VolumeDisconnected, u"v2"_s, QString());
    hosted.plugin.invoke("monitorVolumeStatus", u"st3"_s);
    hosted.plugin.invoke("removeVolumeError", u"st1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList({u"5_st2"_s, u"5_st3"_s}));
}

void tst_PluginSystemMonitor_Health::volumeErrorsAreClearedFromTheFirstToTheLast()
{
    HostedPlugin hosted;
    for (const QString &volume : {u"v2"_s, u"v3"_s, u"v1"_s}) {
        hosted.plugin.addSystemError(u"st1"_s, VolumeDisconnected, volume, QString());
        hosted.plugin.addSystemError(u"st2"_s, VolumeDisconnected, volume, QString());
    }
    QStringList leaving;
    connect(hosted.plugin.errorModel, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [&](const QModelIndex &, int first) { leaving.append(hosted.errorKeys().at(first)); });
    hosted.plugin.invoke("removeVolumeError", u"st1"_s);
    QCOMPARE(leaving, QStringList({u"5_st1_v2"_s, u"5_st1_v3"_s, u"5_st1_v1"_s}));
}

void tst_PluginSystemMonitor_Health::insufficientDaysAreListedByGroup()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"Doors"_s, u"g1"_s);
    hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"Doors"_s, u"g2"_s);
    hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st9"_s, u"Gates"_s, u"g1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList({u"7_st1_g1"_s, u"7_st1_g2"_s, u"7_st9_g1"_s}));
    QCOMPARE(originsOf(hosted),
             QStringList({u"Station: Lobby / Archive: Doors"_s,
                          u"Station: Lobby / Archive: Doors"_s, u"Station:  / Archive: Gates"_s}));
}

void tst_PluginSystemMonitor_Health::insufficientDaysReportedAgainRelabel()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"Doors"_s, u"g1"_s);
    // A time that a new row could not have.
    const QModelIndex row = hosted.plugin.errorModel->index(0, 0);
    hosted.plugin.errorModel->setData(row, qint64(12345), SystemErrorModel::TimestampRole);
    hosted.plugin.stationErrorNumberTimer.stop();

    hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"All doors"_s, u"g1"_s);
    QCOMPARE(hosted.errorRows(),
             QStringList{u"\"7_st1_g1\" station \"st1\" device \"st1\" type 7 category 1 "
                         "name \"Insufficient recording days\" "
                         "from \"Station: Lobby / Archive: All doors\""_s});
    QCOMPARE(row.data(SystemErrorModel::TimestampRole), QVariant(qint64(12345)));
    QVERIFY(!hosted.plugin.stationErrorNumberTimer.isActive());
}

void tst_PluginSystemMonitor_Health::insufficientDaysRelabelAfterTheStation()
{
    HostedPlugin hosted;
    QStandardItem *station = hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"Doors"_s, u"g1"_s);
    station->setData(QVariantMap{{u"nameRole"_s, u"Hall"_s}}, Qt::UserRole + 2);
    hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"Doors"_s, u"g1"_s);
    QCOMPARE(originsOf(hosted), QStringList{u"Station: Hall / Archive: Doors"_s});
}

void tst_PluginSystemMonitor_Health::sufficientGroupIsCleared()
{
    HostedPlugin hosted;
    for (const QString &group : {u"g1"_s, u"g2"_s, u"g3"_s})
        hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"Doors"_s, group);
    hosted.plugin.invoke("monitorSufficientRecordingGroup", u"st1"_s, u"g2"_s);
    QCOMPARE(hosted.errorKeys(), QStringList({u"7_st1_g1"_s, u"7_st1_g3"_s}));
}

void tst_PluginSystemMonitor_Health::sufficientGroupThatIsNotListedChangesNothing()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"Doors"_s, u"g1"_s);
    hosted.plugin.invoke("monitorSufficientRecordingGroup", u"st1"_s, u"g2"_s);
    hosted.plugin.invoke("monitorSufficientRecordingGroup", u"st2"_s, u"g1"_s);
    hosted.plugin.invoke("monitorSufficientRecordingGroup", u"st1"_s, QString());
    QCOMPARE(hosted.errorKeys(), QStringList{u"7_st1_g1"_s});
}

void tst_PluginSystemMonitor_Health::storageLabelTakesNamesLiterally()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"%4 %1"_s);
    hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"%2"_s, u"g1"_s);
    QCOMPARE(originsOf(hosted), QStringList{u"Station: %4 %1 / Archive: %2"_s});
}

void tst_PluginSystemMonitor_Health::storageRulesWriteNoTrace()
{
    HostedPlugin hosted;
    const CollectedTrace trace;
    for (int i = 0; i < 2; ++i) {
        hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
        hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"Doors"_s, u"g1"_s);
    }
    for (int i = 0; i < 2; ++i) {
        hosted.plugin.invoke("removeVolumeError", u"st1"_s);
        hosted.plugin.invoke("monitorSufficientRecordingGroup", u"st1"_s, u"g1"_s);
    }
    QCOMPARE(trace.questions().size(), 0);
}

// Resource thresholds

void tst_PluginSystemMonitor_Health::usageIsJudgedByItsThreshold_data()
{
    QTest::addColumn<int>("usage");
    QTest::addColumn<bool>("isHigh");
    QTest::newRow("far above") << 1000 << true;
    QTest::newRow("above") << 71 << true;
    QTest::newRow("equal") << 70 << true;
    QTest::newRow("below") << 69 << false;
    QTest::newRow("zero") << 0 << false;
    QTest::newRow("negative") << -1 << false;
    QTest::newRow("failed sample") << -100 << false;
}

void tst_PluginSystemMonitor_Health::usageIsJudgedByItsThreshold()
{
    QFETCH(const int, usage);
    QFETCH(const bool, isHigh);
    for (const bool listed : {false, true}) {
        HostedPlugin hosted;
        hosted.plugin.cpuThreshold = 70;
        hosted.plugin.memoryThreshold = 70;
        hosted.plugin.networkThreshold = 70;
        if (listed) {
            hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, 100);
            hosted.plugin.invoke("monitorMemoryUsage", u"st1"_s, 100);
            hosted.plugin.invoke("monitorNetworkUsage", u"st1"_s, 100, u"en0"_s);
        }
        hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, usage);
        hosted.plugin.invoke("monitorMemoryUsage", u"st1"_s, usage);
        hosted.plugin.invoke("monitorNetworkUsage", u"st1"_s, usage, u"en0"_s);
        QCOMPARE(hosted.errorKeys(),
                 isHigh ? QStringList({u"0_st1"_s, u"1_st1"_s, u"2_st1_en0"_s}) : QStringList());
    }
}

void tst_PluginSystemMonitor_Health::highUsageIsListedOnce()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    for (const int usage : {95, 96, 97}) {
        hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, usage);
        hosted.plugin.invoke("monitorMemoryUsage", u"st1"_s, usage);
        hosted.plugin.invoke("monitorNetworkUsage", u"st1"_s, usage, u"en0"_s);
    }
    QCOMPARE(hosted.errorRows(),
             QStringList({u"\"0_st1\" station \"st1\" device \"\" type 0 category 1 "
                          "name \"CPU utilization over 90%\" from \"Station: Lobby\""_s,
                          u"\"1_st1\" station \"st1\" device \"\" type 1 category 1 "
                          "name \"Memory usage over 90%\" from \"Station: Lobby\""_s,
                          u"\"2_st1_en0\" station \"st1\" device \"en0\" type 2 category 1 "
                          "name \"Network usage over 50%\" from \"Station: Lobby\""_s}));
}

void tst_PluginSystemMonitor_Health::highUsageIsNotRefreshed()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, 95);
    const QModelIndex row = hosted.plugin.errorModel->index(0, 0);
    hosted.plugin.errorModel->setData(row, qint64(12345), SystemErrorModel::TimestampRole);
    hosted.plugin.stationErrorNumberTimer.stop();
    hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, 99);
    QCOMPARE(row.data(SystemErrorModel::TimestampRole), QVariant(qint64(12345)));
    QVERIFY(!hosted.plugin.stationErrorNumberTimer.isActive());
}

void tst_PluginSystemMonitor_Health::thresholdOfZeroListsEverythingFromZero()
{
    HostedPlugin hosted;
    hosted.plugin.cpuThreshold = 0;
    hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, 0);
    QCOMPARE(hosted.errorKeys(), QStringList{u"0_st1"_s});
    hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, -1);
    QCOMPARE(hosted.errorKeys(), QStringList());
}

void tst_PluginSystemMonitor_Health::thresholdTakesEffectAtTheNextReport()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, 95);
    hosted.plugin.cpuThreshold = 99;
    QCOMPARE(hosted.errorKeys(), QStringList{u"0_st1"_s});
    hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, 95);
    QCOMPARE(hosted.errorKeys(), QStringList());
}

void tst_PluginSystemMonitor_Health::interfacesAreJudgedOneByOne()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNetworkUsage", u"st1"_s, 60, u"en0"_s);
    hosted.plugin.invoke("monitorNetworkUsage", u"st1"_s, 60, u"en1"_s);
    hosted.plugin.invoke("monitorNetworkUsage", u"st1"_s, 60, QString());
    QCOMPARE(hosted.errorKeys(), QStringList({u"2_st1_en0"_s, u"2_st1_en1"_s, u"2_st1"_s}));
    hosted.plugin.invoke("monitorNetworkUsage", u"st1"_s, 49, u"en0"_s);
    QCOMPARE(hosted.errorKeys(), QStringList({u"2_st1_en1"_s, u"2_st1"_s}));
}

void tst_PluginSystemMonitor_Health::kindsOfUsageAreIndependent()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, 95);
    hosted.plugin.invoke("monitorMemoryUsage", u"st1"_s, 95);
    hosted.plugin.invoke("monitorCPUUsage", u"st2"_s, 95);
    hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, 0);
    QCOMPARE(hosted.errorKeys(), QStringList({u"1_st1"_s, u"0_st2"_s}));
}

void tst_PluginSystemMonitor_Health::usageRulesWriteNoTrace()
{
    HostedPlugin hosted;
    const CollectedTrace trace;
    for (const int usage : {0, 100, 100, 0}) {
        hosted.plugin.invoke("monitorCPUUsage", u"st1"_s, usage);
        hosted.plugin.invoke("monitorMemoryUsage", u"st1"_s, usage);
        hosted.plugin.invoke("monitorNetworkUsage", u"st1"_s, usage, u"en0"_s);
    }
    QCOMPARE(trace.questions().size(), 0);
}

// Counts

void tst_PluginSystemMonitor_Health::errorsAreCountedByStation()
{
    HostedPlugin hosted;
    QCOMPARE(hosted.plugin.stationErrorList(), QVariantList());
    hosted.plugin.invoke("monitorCPUUsage", u"A"_s, 100);
    hosted.plugin.invoke("monitorVolumeStatus", u"B"_s);
    hosted.plugin.invoke("monitorMemoryUsage", u"A"_s, 100);
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"A/cam1"_s, false);
    QCOMPARE(counts(hosted), QStringList());
    hosted.plugin.invoke("updateStationErrorNumber");
    QCOMPARE(counts(hosted), QStringList({u"A: 3"_s, u"B: 1"_s}));
}

void tst_PluginSystemMonitor_Health::countsAreOrderedByStationId()
{
    HostedPlugin hosted;
    for (const QString &station : {u"b"_s, u"a10"_s, u"B"_s, u"a2"_s, u"ä"_s, u"a/sub"_s, u"a"_s})
        hosted.plugin.invoke("monitorVolumeStatus", station);
    hosted.plugin.invoke("updateStationErrorNumber");
    QCOMPARE(counts(hosted), QStringList({u"B: 1"_s, u"a: 1"_s, u"a/sub: 1"_s, u"a10: 1"_s,
                                          u"a2: 1"_s, u"b: 1"_s, u"ä: 1"_s}));
}

void tst_PluginSystemMonitor_Health::countsHaveTheirTypes()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    hosted.plugin.invoke("updateStationErrorNumber");
    QCOMPARE(printedValue(hosted.plugin.stationErrorList()),
             u"[{\"errorNumber\": 1, \"stationID\": \"st1\"}]"_s);
}

void tst_PluginSystemMonitor_Health::errorsWithoutAStationAreCountedToo()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"cam1"_s, false);
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    hosted.plugin.errorModel->appendRow(new QStandardItem);
    hosted.plugin.invoke("updateStationErrorNumber");
    QCOMPARE(counts(hosted), QStringList({u": 2"_s, u"st1: 1"_s}));
}

void tst_PluginSystemMonitor_Health::stationWithoutErrorsHasNoCount()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    hosted.plugin.invoke("monitorVolumeStatus", u"st2"_s);
    hosted.plugin.invoke("updateStationErrorNumber");
    hosted.plugin.invoke("removeVolumeError", u"st1"_s);
    hosted.plugin.invoke("updateStationErrorNumber");
    QCOMPARE(counts(hosted), QStringList{u"st2: 1"_s});
    hosted.plugin.PluginServerDisconnected();
    hosted.plugin.invoke("updateStationErrorNumber");
    QCOMPARE(hosted.plugin.stationErrorList(), QVariantList());
}

void tst_PluginSystemMonitor_Health::everyRecountIsAnnounced()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("updateStationErrorNumber");
    hosted.plugin.invoke("updateStationErrorNumber");
    QCOMPARE(hosted.log.take(), QStringList(2, u"stationErrorListChanged()"_s));
    QCOMPARE(hosted.plugin.stationErrorList(), QVariantList());
}

void tst_PluginSystemMonitor_Health::listIsCompleteWhenItIsAnnounced()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    QStringList seen;
    connect(&hosted.plugin, &PluginSystemMonitor::stationErrorListChanged, this,
            [&] { seen = counts(hosted); });
    hosted.plugin.invoke("updateStationErrorNumber");
    QCOMPARE(seen, QStringList{u"st1: 1"_s});
}

void tst_PluginSystemMonitor_Health::burstOfChangesLeadsToOneRecount()
{
    HostedPlugin hosted;
    for (int i = 0; i < 10; ++i)
        hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam%1"_s.arg(i), false);
    for (int i = 0; i < 3; ++i)
        hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam%1"_s.arg(i), true);
    QCOMPARE(hosted.log.take(), QStringList());
    expire(hosted.plugin.stationErrorNumberTimer);
    QCOMPARE(hosted.log.take(), QStringList{u"stationErrorListChanged()"_s});
    QCOMPARE(counts(hosted), QStringList{u"st1: 7"_s});
    QVERIFY(!hosted.plugin.stationErrorNumberTimer.isActive());
}

void tst_PluginSystemMonitor_Health::countsAreAProperty()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    hosted.plugin.invoke("updateStationErrorNumber");
    QCOMPARE(hosted.plugin.property("stationErrorList"),
             QVariant(hosted.plugin.stationErrorList()));
    QVERIFY(!hosted.plugin.setProperty("stationErrorList", QVariantList()));
    QCOMPARE(counts(hosted), QStringList{u"st1: 1"_s});
}

QTEST_GUILESS_MAIN(tst_PluginSystemMonitor_Health)
#include "tst_PluginSystemMonitor_Health.moc"
