#include "SiteServer.h"

#include "CallLog.h"
#include "FullDisk.h"
#include "PrintedValue.h"
#include "ServerNames.h"
#include "SnoozeStore.h"
#include "TestSite.h"
#include "VirtualClock.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

constexpr qint64 Second = 1000;
constexpr qint64 StartSeconds = VirtualClock::StartMs / Second;

QVariantMap snoozeRequest(const QString &nodeId, qint64 endSeconds, int type)
{
    return {{QStringLiteral("nodeID"), nodeId},
            {QStringLiteral("timestamp"), endSeconds},
            {QStringLiteral("type"), type}};
}

QString yesNo(bool value)
{
    return value ? QStringLiteral("up") : QStringLiteral("down");
}

} // namespace

class tst_SiteServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void changesOfNodesAreAnnounced();
    void changesOfUnknownNodesDoNothing();
    void stationThatComesBackTellsWhatIsDownBelowIt();
    void nodesBelowALostSubStationStayUntold();
    void storageOfAConnectedStationIsAnnounced();
    void storageOfADisconnectedStationIsAnnouncedOnItsReturn();

    void reportBecomesAnEventOfItsStation();
    void stationThatCannotReportDoesNot_data();
    void stationThatCannotReportDoesNot();
    void levelIsReportedAtOnceAndEverySecond();
    void realStationIsNotSimulated();
    void capacityWarningIsAnEventOfTheServer();

    void snoozeIsConfirmedAfterItsResponse();
    void refusesWrongSnoozes_data();
    void refusesWrongSnoozes();
    void snoozeListHoldsActiveSnoozes();
    void expiryTellsOfADeviceThatIsStillDown();
    void expiryReleasesADeviceThatIsBack();
    void longerSnoozeReplacesTheShorter();
    void snoozesExpireInTheirOrder();
    void manySnoozesExpireOnce();
    void removedNodesLoseTheirSnoozes();

    void supportDependsOnTheStation_data();
    void supportDependsOnTheStation();
    void reconnectsCamerasOfAStation();
    void reconnectsSubStationsOfAStation();
    void reconnectsStationsAtTheTop();
    void nothingIsReconnectedBehindALostStation();
    void unknownCommandIsRefused();

    void resetForgetsSnoozesAndPendingEvents();
    void resetKeepsOtherPendingCalls();

    void storedSnoozesOutliveTheServer();
    void storeForgetsWhatHasExpiredOrWasRemoved();
    void snoozesThatExpiredMeanwhileAreForgotten();
    void resetKeepsStoredSnoozes();
    void snoozeThatCannotBeStoredIsRefused();

private:
    CommandResult execute(const QString &command, const QVariant &data = {},
                          const QString &target = {});
    QString resultOfSnooze(const QString &nodeId, qint64 seconds, int type);
    QStringList takeEvents();
    void startWithStore();
    QStringList storedIds() const;

    const QTemporaryDir m_directory;
    std::unique_ptr<SnoozeStore> m_store;
    std::unique_ptr<VirtualClock> m_clock;
    std::unique_ptr<SiteServer> m_server;
    CallLog m_log;
};

void tst_SiteServer::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_log.take();
    m_clock = std::make_unique<VirtualClock>();
    m_server = std::make_unique<SiteServer>(testSite(), *m_clock);
    connect(m_server.get(), &SiteServer::nodeStatusChanged, this,
            [this](NodeType type, const QString &id, bool connected) {
                m_log.add(QStringLiteral("%1 %2 %3")
                              .arg(type == NodeType::Camera ? QStringLiteral("camera")
                                                            : QStringLiteral("station"),
                                   id, yesNo(connected)));
            });
    connect(m_server.get(), &SiteServer::cameraRemoved, this,
            [this](const QString &id) { m_log.add(QStringLiteral("camera removed %1").arg(id)); });
    connect(m_server.get(), &SiteServer::stationRemoved, this,
            [this](const QString &id) { m_log.add(QStringLiteral("station removed %1").arg(id)); });
    connect(m_server.get(), &SiteServer::storageChanged, this,
            [this](const QString &id) { m_log.add(QStringLiteral("storage %1").arg(id)); });
    connect(m_server.get(), &SiteServer::eventRaised, this,
            [this](const QString &name, const QVariant &data, const QString &source) {
                m_log.add(QStringLiteral("%1 %2 from '%3'").arg(name, printedValue(data), source));
            });
}

void tst_SiteServer::cleanup()
{
    m_server.reset();
    m_store.reset();
    QFile::remove(m_directory.filePath(QStringLiteral("snoozes.sqlite")));
}

// A new server process, as it were, with the store of the one before.
void tst_SiteServer::startWithStore()
{
    m_server.reset();
    m_store.reset();
    m_store = std::make_unique<SnoozeStore>(m_directory.filePath(QStringLiteral("snoozes.sqlite")));
    m_server = std::make_unique<SiteServer>(testSite(), *m_clock, m_store.get());
    connect(m_server.get(), &SiteServer::eventRaised, this,
            [this](const QString &name, const QVariant &data) {
                m_log.add(QStringLiteral("%1 %2").arg(name, printedValue(data)));
            });
}

QStringList tst_SiteServer::storedIds() const
{
    QStringList ids;
    for (const Snooze &snooze : m_store->snoozes())
        ids.append(snooze.nodeId);
    return ids;
}

CommandResult tst_SiteServer::execute(const QString &command, const QVariant &data,
                                      const QString &target)
{
    return m_server->execute(command, data, target);
}

QString tst_SiteServer::resultOfSnooze(const QString &nodeId, qint64 seconds, int type)
{
    return execute(QStringLiteral("setSnooze"), snoozeRequest(nodeId, StartSeconds + seconds, type))
        .code;
}

QStringList tst_SiteServer::takeEvents()
{
    QCoreApplication::sendPostedEvents();
    return m_log.take();
}

void tst_SiteServer::changesOfNodesAreAnnounced()
{
    QVERIFY(m_server->setCameraConnected(QStringLiteral("north/c1"), false));
    QVERIFY(m_server->setCameraConnected(QStringLiteral("north/c1"), true));
    QVERIFY(m_server->setStationConnected(QStringLiteral("south"), false));
    QVERIFY(m_server->removeCamera(QStringLiteral("north/c1")));
    QVERIFY(m_server->removeStation(QStringLiteral("north")));
    QCOMPARE(m_log.take(),
             QStringList(
                 {QStringLiteral("camera north/c1 down"), QStringLiteral("camera north/c1 up"),
                  QStringLiteral("station south down"), QStringLiteral("camera removed north/c1"),
                  QStringLiteral("station removed north")}));
    QVERIFY(!m_server->site().findStation(QStringLiteral("south"))->connected);
    QCOMPARE(m_server->site().stationCount(), 1);
}

void tst_SiteServer::changesOfUnknownNodesDoNothing()
{
    const QString unknown = QStringLiteral("west");
    QVERIFY(!m_server->setCameraConnected(unknown, false));
    QVERIFY(!m_server->setStationConnected(unknown, false));
    QVERIFY(!m_server->removeCamera(unknown));
    QVERIFY(!m_server->removeStation(unknown));
    QVERIFY(!m_server->setVolumeConnected(unknown, QStringLiteral("v1"), false));
    QVERIFY(!m_server->setVolumeConnected(QStringLiteral("north"), unknown, false));
    QVERIFY(!m_server->setRecordedDays(unknown, QStringLiteral("g1"), 3));
    QVERIFY(!m_server->setRecordedDays(QStringLiteral("north"), unknown, 3));
    QVERIFY(!m_server->renameRecordingGroup(QStringLiteral("north"), unknown, unknown));
    QVERIFY(!m_server->setResources(unknown, {}));
    QVERIFY(!m_server->reportResources(unknown, {}));
    QCOMPARE(takeEvents(), QStringList());
}

void tst_SiteServer::stationThatComesBackTellsWhatIsDownBelowIt()
{
    m_server->setCameraConnected(QStringLiteral("north/c2"), false);
    m_server->setCameraConnected(QStringLiteral("north/annex/c1"), false);
    m_server->setStationConnected(QStringLiteral("north"), false);
    m_log.take();
    m_server->setStationConnected(QStringLiteral("north"), true);
    QCOMPARE(
        m_log.take(),
        QStringList({QStringLiteral("station north up"), QStringLiteral("camera north/c2 down"),
                     QStringLiteral("camera north/annex/c1 down"), QStringLiteral("storage north"),
                     QStringLiteral("storage north/annex")}));
}

void tst_SiteServer::nodesBelowALostSubStationStayUntold()
{
    m_server->setCameraConnected(QStringLiteral("north/annex/c1"), false);
    m_server->setStationConnected(QStringLiteral("north/annex"), false);
    m_log.take();
    m_server->setStationConnected(QStringLiteral("north"), true);
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("station north up"),
                                        QStringLiteral("station north/annex down"),
                                        QStringLiteral("storage north")}));
}

void tst_SiteServer::storageOfAConnectedStationIsAnnounced()
{
    QVERIFY(m_server->setVolumeConnected(QStringLiteral("north"), QStringLiteral("v1"), false));
    QVERIFY(m_server->setRecordedDays(QStringLiteral("north"), QStringLiteral("g1"), 12));
    QVERIFY(m_server->renameRecordingGroup(QStringLiteral("north"), QStringLiteral("g1"),
                                           QStringLiteral("Doors")));
    QCOMPARE(m_log.take(), QStringList(3, QStringLiteral("storage north")));
    Site site = m_server->site();
    Station &north = *site.findStation(QStringLiteral("north"));
    QVERIFY(north.hasLostVolume());
    QCOMPARE(north.findRecordingGroup(QStringLiteral("g1"))->recordedDays, 12);
    QCOMPARE(north.findRecordingGroup(QStringLiteral("g1"))->name, QStringLiteral("Doors"));
}

void tst_SiteServer::storageOfADisconnectedStationIsAnnouncedOnItsReturn()
{
    m_server->setStationConnected(QStringLiteral("south"), false);
    m_server->setStationConnected(QStringLiteral("north"), false);
    m_log.take();
    m_server->setVolumeConnected(QStringLiteral("north"), QStringLiteral("v1"), false);
    m_server->setRecordedDays(QStringLiteral("north"), QStringLiteral("g1"), 12);
    m_server->renameRecordingGroup(QStringLiteral("north"), QStringLiteral("g1"),
                                   QStringLiteral("Doors"));
    QCOMPARE(m_log.take(), QStringList());
    m_server->setStationConnected(QStringLiteral("north"), true);
    QVERIFY(m_log.take().contains(QStringLiteral("storage north")));
}

void tst_SiteServer::reportBecomesAnEventOfItsStation()
{
    QVERIFY(m_server->reportResources(QStringLiteral("north"), {12, 34, {}}));
    QCOMPARE(m_log.take(), QStringList());
    QCOMPARE(takeEvents(), QStringList{QStringLiteral(
                               R"(SystemResChanged {"cpuPercentage": 12, "memPercentage": 34, )"
                               R"("networkUsageList": []} from 'north')")});
}

void tst_SiteServer::stationThatCannotReportDoesNot_data()
{
    QTest::addColumn<QString>("stationId");
    QTest::newRow("disconnected") << QStringLiteral("north");
    QTest::newRow("without monitoring") << QStringLiteral("south");
    QTest::newRow("unknown") << QStringLiteral("west");
}

void tst_SiteServer::stationThatCannotReportDoesNot()
{
    QFETCH(QString, stationId);
    m_server->setStationConnected(QStringLiteral("north"), false);
    m_log.take();
    QVERIFY(!m_server->reportResources(stationId, {12, 34, {}}));
    QVERIFY(!m_server->setResources(stationId, {12, 34, {}}));
    m_clock->advance(3 * Second);
    QCOMPARE(takeEvents(), QStringList());
}

void tst_SiteServer::levelIsReportedAtOnceAndEverySecond()
{
    QVERIFY(m_server->setResources(QStringLiteral("north"), {50, 60, {}}));
    QCOMPARE(takeEvents().size(), 1);
    m_clock->advance(Second - 1);
    QCOMPARE(takeEvents().size(), 0);
    m_clock->advance(1);
    QCOMPARE(takeEvents().size(), 1);
    m_clock->advance(5 * Second);
    QCOMPARE(takeEvents().size(), 5);
}

void tst_SiteServer::realStationIsNotSimulated()
{
    Site site = testSite();
    site.stations.front().exporter = Exporter{};
    site.stations.front().resources = ResourceReport{12, 34, {}};
    m_server->reset(site);
    m_clock->advance(3 * Second);
    QCOMPARE(takeEvents(), QStringList());
}

void tst_SiteServer::capacityWarningIsAnEventOfTheServer()
{
    m_server->reportReachingLimit(QStringLiteral("Main"), 87.5);
    QCOMPARE(takeEvents(),
             QStringList{QStringLiteral(R"(ServerReachingLimited {"serverName": "Main", )"
                                        R"("virtualSizePercentage": 87.5} from '')")});
}

void tst_SiteServer::snoozeIsConfirmedAfterItsResponse()
{
    const QVariant request = snoozeRequest(QStringLiteral("north/c1"), StartSeconds + 60, 3);
    const CommandResult result = execute(QStringLiteral("setSnooze"), request);
    QCOMPARE(result.code, QStringLiteral("0"));
    QCOMPARE(result.data, request);
    QCOMPARE(m_log.take(), QStringList());
    QCOMPARE(takeEvents(), QStringList{QStringLiteral(
                               R"(SnoozeError {"nodeID": "north/c1", "type": 3} from '')")});
}

void tst_SiteServer::refusesWrongSnoozes_data()
{
    QTest::addColumn<QString>("nodeId");
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("code");
    const QString camera = QStringLiteral("north/c1");
    const QString station = QStringLiteral("north");
    const QString invalid = QStringLiteral("InvalidArgument");
    QTest::newRow("unknown node") << QStringLiteral("west") << qint64(60) << 3
                                  << QStringLiteral("UnknownNode");
    QTest::newRow("no node") << QString() << qint64(60) << 3 << QStringLiteral("UnknownNode");
    QTest::newRow("camera as station") << camera << qint64(60) << 4 << invalid;
    QTest::newRow("station as camera") << station << qint64(60) << 3 << invalid;
    QTest::newRow("other kind of error") << station << qint64(60) << 5 << invalid;
    QTest::newRow("ends now") << camera << qint64(0) << 3 << invalid;
    QTest::newRow("has ended") << camera << qint64(-1) << 3 << invalid;
    QTest::newRow("ends after all dates") << camera << qint64(300'000'000'000) << 3 << invalid;
}

void tst_SiteServer::refusesWrongSnoozes()
{
    QFETCH(QString, nodeId);
    QFETCH(qint64, seconds);
    QFETCH(int, type);
    QFETCH(QString, code);
    const QVariant request = snoozeRequest(nodeId, StartSeconds + seconds, type);
    const CommandResult result = execute(QStringLiteral("setSnooze"), request);
    QCOMPARE(result.code, code);
    QCOMPARE(result.data, request);
    QCOMPARE(takeEvents(), QStringList());
    QCOMPARE(execute(QStringLiteral("getSnoozeList")).data.toStringList(), QStringList());
}

void tst_SiteServer::snoozeListHoldsActiveSnoozes()
{
    QCOMPARE(resultOfSnooze(QStringLiteral("south"), 60, 4), QStringLiteral("0"));
    QCOMPARE(resultOfSnooze(QStringLiteral("north/c1"), 30, 3), QStringLiteral("0"));
    CommandResult result = execute(QStringLiteral("getSnoozeList"));
    QCOMPARE(result.code, QStringLiteral("0"));
    QCOMPARE(result.data,
             QVariant(QStringList({QStringLiteral("north/c1"), QStringLiteral("south")})));
    m_clock->advance(30 * Second);
    result = execute(QStringLiteral("getSnoozeList"));
    QCOMPARE(result.data, QVariant(QStringList{QStringLiteral("south")}));
}

void tst_SiteServer::expiryTellsOfADeviceThatIsStillDown()
{
    m_server->setCameraConnected(QStringLiteral("north/c1"), false);
    m_server->setStationConnected(QStringLiteral("south"), false);
    resultOfSnooze(QStringLiteral("north/c1"), 30, 3);
    resultOfSnooze(QStringLiteral("south"), 40, 4);
    takeEvents();
    m_clock->advance(30 * Second - 1);
    QCOMPARE(takeEvents(), QStringList());
    m_clock->advance(1);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral(
                               R"(DeviceStillError {"nodeID": "north/c1", "type": 3} from '')")});
    m_clock->advance(10 * Second);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral(
                               R"(DeviceStillError {"nodeID": "south", "type": 4} from '')")});
}

void tst_SiteServer::expiryReleasesADeviceThatIsBack()
{
    m_server->setCameraConnected(QStringLiteral("north/c1"), false);
    resultOfSnooze(QStringLiteral("north/c1"), 30, 3);
    m_server->setCameraConnected(QStringLiteral("north/c1"), true);
    takeEvents();
    m_clock->advance(30 * Second);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral(R"(RemoveSnooze "north/c1" from '')")});
}

void tst_SiteServer::longerSnoozeReplacesTheShorter()
{
    resultOfSnooze(QStringLiteral("north/c1"), 30, 3);
    resultOfSnooze(QStringLiteral("north/c1"), 90, 3);
    takeEvents();
    m_clock->advance(89 * Second);
    QCOMPARE(takeEvents(), QStringList());
    m_clock->advance(Second);
    QCOMPARE(takeEvents().size(), 1);
}

void tst_SiteServer::snoozesExpireInTheirOrder()
{
    resultOfSnooze(QStringLiteral("north/c1"), 30, 3);
    resultOfSnooze(QStringLiteral("north/c2"), 20, 3);
    takeEvents();
    m_clock->advance(20 * Second);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral(R"(RemoveSnooze "north/c2" from '')")});
    m_clock->advance(60 * Second);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral(R"(RemoveSnooze "north/c1" from '')")});
}

void tst_SiteServer::manySnoozesExpireOnce()
{
    for (int i = 0; i < 100; ++i)
        resultOfSnooze(QStringLiteral("north/c1"), 30 - i % 7, 3);
    resultOfSnooze(QStringLiteral("north/c2"), 10, 3);
    takeEvents();
    m_clock->advance(60 * Second);
    QCOMPARE(takeEvents().size(), 2);
}

void tst_SiteServer::removedNodesLoseTheirSnoozes()
{
    resultOfSnooze(QStringLiteral("north/c1"), 30, 3);
    resultOfSnooze(QStringLiteral("north/annex"), 30, 4);
    resultOfSnooze(QStringLiteral("north/annex/c1"), 30, 3);
    resultOfSnooze(QStringLiteral("south/c1"), 30, 3);
    takeEvents();
    m_server->removeCamera(QStringLiteral("south/c1"));
    QCOMPARE(takeEvents(), QStringList({QStringLiteral("camera removed south/c1"),
                                        QStringLiteral(R"(RemoveSnooze "south/c1" from '')")}));
    m_server->removeStation(QStringLiteral("north"));
    QCOMPARE(takeEvents(),
             QStringList({QStringLiteral("station removed north"),
                          QStringLiteral(R"(RemoveSnooze "north/c1" from '')"),
                          QStringLiteral(R"(RemoveSnooze "north/annex" from '')"),
                          QStringLiteral(R"(RemoveSnooze "north/annex/c1" from '')")}));
    m_clock->advance(60 * Second);
    QCOMPARE(takeEvents(), QStringList());
}

void tst_SiteServer::supportDependsOnTheStation_data()
{
    QTest::addColumn<QString>("stationId");
    QTest::addColumn<bool>("isSupported");
    QTest::newRow("supports it") << QStringLiteral("north/annex") << true;
    QTest::newRow("does not") << QStringLiteral("south") << false;
    QTest::newRow("disconnected") << QStringLiteral("north") << false;
    QTest::newRow("unknown") << QStringLiteral("west") << false;
    QTest::newRow("the server itself") << QString() << false;
}

void tst_SiteServer::supportDependsOnTheStation()
{
    QFETCH(QString, stationId);
    QFETCH(bool, isSupported);
    m_server->setStationConnected(QStringLiteral("north"), false);
    const QString code = execute(QStringLiteral("isSupportSystemMonitor"), {}, stationId).code;
    QCOMPARE(code, isSupported ? ServerNames::Success : ServerNames::FrameworkInternalError);
}

void tst_SiteServer::reconnectsCamerasOfAStation()
{
    m_server->setCameraConnected(QStringLiteral("north/c1"), false);
    m_server->setCameraConnected(QStringLiteral("north/c2"), false);
    m_log.take();
    // Camera ids come as a list of variants.
    const QVariant cameras = QVariantList{QStringLiteral("c2"), QStringLiteral("c9")};
    QCOMPARE(execute(QStringLiteral("reconnectCameras"), cameras, QStringLiteral("north")).code,
             QStringLiteral("0"));
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("camera north/c2 up")});
}

void tst_SiteServer::reconnectsSubStationsOfAStation()
{
    m_server->setStationConnected(QStringLiteral("north/annex"), false);
    m_log.take();
    // Station ids come as a list of strings.
    const QVariant stations = QStringList{QStringLiteral("annex"), QStringLiteral("shed")};
    QCOMPARE(
        execute(QStringLiteral("reconnectSubstations"), stations, QStringLiteral("north")).code,
        QStringLiteral("0"));
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("station north/annex up"),
                                        QStringLiteral("storage north/annex")}));
}

void tst_SiteServer::reconnectsStationsAtTheTop()
{
    m_server->setStationConnected(QStringLiteral("south"), false);
    m_log.take();
    execute(QStringLiteral("reconnectSubstations"), QStringList{QStringLiteral("south")});
    QCOMPARE(m_log.take(),
             QStringList({QStringLiteral("station south up"), QStringLiteral("storage south")}));
}

void tst_SiteServer::nothingIsReconnectedBehindALostStation()
{
    m_server->setCameraConnected(QStringLiteral("north/annex/c1"), false);
    m_server->setStationConnected(QStringLiteral("north/annex"), false);
    m_server->setStationConnected(QStringLiteral("north"), false);
    m_log.take();
    execute(QStringLiteral("reconnectSubstations"), QStringList{QStringLiteral("annex")},
            QStringLiteral("north"));
    execute(QStringLiteral("reconnectCameras"), QVariantList{QStringLiteral("c1")},
            QStringLiteral("north/annex"));
    execute(QStringLiteral("reconnectCameras"), QVariantList{QStringLiteral("north")});
    QCOMPARE(m_log.take(), QStringList());
}

void tst_SiteServer::unknownCommandIsRefused()
{
    QCOMPARE(execute(QStringLiteral("ReconnectSubstations")).code,
             QStringLiteral("UnknownCommand"));
}

// A clock's call that is due at once is posted as well.
void tst_SiteServer::resetKeepsOtherPendingCalls()
{
    bool isCalled = false;
    QMetaObject::invokeMethod(
        m_server.get(), [&isCalled] { isCalled = true; }, Qt::QueuedConnection);
    m_server->reset(testSite());
    QCoreApplication::sendPostedEvents();
    QVERIFY(isCalled);
}

void tst_SiteServer::resetForgetsSnoozesAndPendingEvents()
{
    m_server->setCameraConnected(QStringLiteral("north/c1"), false);
    resultOfSnooze(QStringLiteral("north/c1"), 30, 3);
    m_log.take();
    m_server->reset(testSite());
    QCOMPARE(execute(QStringLiteral("getSnoozeList")).data.toStringList(), QStringList());
    QVERIFY(m_server->site().findCamera(QStringLiteral("north/c1"))->connected);
    m_clock->advance(60 * Second);
    QCOMPARE(takeEvents(), QStringList());
    // The clock call of the forgotten snooze does not keep new ones from expiring.
    resultOfSnooze(QStringLiteral("north/c1"), 70, 3);
    takeEvents();
    m_clock->advance(10 * Second);
    QCOMPARE(takeEvents().size(), 1);
}

void tst_SiteServer::storedSnoozesOutliveTheServer()
{
    startWithStore();
    resultOfSnooze(QStringLiteral("north/c1"), 30, 3);
    startWithStore();
    QCOMPARE(execute(QStringLiteral("getSnoozeList")).data.toStringList(),
             QStringList{QStringLiteral("north/c1")});
    m_server->setCameraConnected(QStringLiteral("north/c1"), false);
    m_clock->advance(30 * Second);
    QCOMPARE(takeEvents(),
             QStringList{QStringLiteral(R"(DeviceStillError {"nodeID": "north/c1", "type": 3})")});
}

void tst_SiteServer::storeForgetsWhatHasExpiredOrWasRemoved()
{
    startWithStore();
    resultOfSnooze(QStringLiteral("north/c1"), 30, 3);
    resultOfSnooze(QStringLiteral("north/annex"), 50, 4);
    resultOfSnooze(QStringLiteral("south"), 50, 4);
    QCOMPARE(storedIds().size(), 3);
    m_clock->advance(30 * Second);
    QCOMPARE(storedIds(), QStringList({QStringLiteral("north/annex"), QStringLiteral("south")}));
    m_server->removeStation(QStringLiteral("north"));
    QCOMPARE(storedIds(), QStringList{QStringLiteral("south")});
}

void tst_SiteServer::snoozesThatExpiredMeanwhileAreForgotten()
{
    startWithStore();
    resultOfSnooze(QStringLiteral("north/c1"), 30, 3);
    resultOfSnooze(QStringLiteral("south"), 50, 4);
    takeEvents();
    m_server.reset();
    m_clock->leap(40 * Second);
    startWithStore();
    QCOMPARE(storedIds(), QStringList{QStringLiteral("south")});
    QCOMPARE(takeEvents(), QStringList());
}

void tst_SiteServer::resetKeepsStoredSnoozes()
{
    startWithStore();
    resultOfSnooze(QStringLiteral("north/c1"), 30, 3);
    m_server->reset(testSite());
    QCOMPARE(execute(QStringLiteral("getSnoozeList")).data.toStringList(),
             QStringList{QStringLiteral("north/c1")});
}

void tst_SiteServer::snoozeThatCannotBeStoredIsRefused()
{
    startWithStore();
    {
        const FullDisk disk(512);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral(": cannot be written: ")));
        QCOMPARE(resultOfSnooze(QStringLiteral("north/c1"), 30, 3), QStringLiteral("StoreFailed"));
    }
    QCOMPARE(takeEvents(), QStringList());
    QCOMPARE(execute(QStringLiteral("getSnoozeList")).data.toStringList(), QStringList());
    QCOMPARE(resultOfSnooze(QStringLiteral("north/c1"), 30, 3), QStringLiteral("0"));
}

QTEST_GUILESS_MAIN(tst_SiteServer)
#include "tst_SiteServer.moc"
