#include "CollectedTrace.h"
#include "HostedPlugin.h"
#include "PrintedValue.h"
#include "SystemErrorModel.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// How snoozes begin and end, and what the operational log hears of them. Local times are those of
/// Berlin.
class tst_PluginSystemMonitor_Snooze : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void snoozedErrorLeavesTheList_data();
    void snoozedErrorLeavesTheList();
    void snoozeIsRememberedOnce();
    void snoozeOfAnErrorThatIsNotListedIsRemembered();
    void snoozeRemovesTheErrorOfItsTypeOnly();
    void snoozeWithMissingKeysConcernsTheEmptyId();
    void snoozeIsRememberedBeforeItsRowLeaves();
    void snoozedStationIsNotAddedAgain();
    void snoozedCameraIsNotAddedAgain();

    void expiredSnoozeShowsTheErrorAgain_data();
    void expiredSnoozeShowsTheErrorAgain();
    void expiredSnoozeOfAListedErrorShowsNoSecond();
    void expiredSnoozeThatWasUnknownShowsTheError();
    void expiredSnoozeOfAnotherTypeShowsNothing_data();
    void expiredSnoozeOfAnotherTypeShowsNothing();
    void expiredSnoozeLooksTheOriginUp();

    void removedSnoozeShowsNoError();
    void removedSnoozeShowsTheErrorAtTheNextReport();
    void removedSnoozeDropsEveryCopy();
    void removedSnoozeThatIsUnknownIsIgnored_data();
    void removedSnoozeThatIsUnknownIsIgnored();

    void snoozesOutliveTheConnection();
    void listFromTheServerSuppressesAndReleases();

    void messageNamesErrorOriginAndTime();
    void messagePassesTheTextsOnAsTheyStand();
    void messageIsEmptyWithoutTheError_data();
    void messageIsEmptyWithoutTheError();
    void messageTimeIsLocal_data();
    void messageTimeIsLocal();

    void logEntryWrapsItsParameters_data();
    void logEntryWrapsItsParameters();
    void logEntryReturnsThePluginsAnswer();
    void logEntryWithoutThePluginIsRefused();
    void logEntryWithoutTheMethodIsRefused();

    void responseIsLoggedBehindItsSignal();
    void responseWithoutTheErrorIsTraced();
    void responseThatComesBehindTheEventIsTraced();
    void refusedLogEntryIsOfNoAccount();
};

namespace {

constexpr int Camera = 0;
constexpr int Station = 1;

QVariantMap snoozeOf(const QString &nodeID, int type)
{
    return {{u"nodeID"_s, nodeID}, {u"type"_s, type}};
}

QVariantMap requestOf(const QString &nodeID, int type, const QVariant &timestamp)
{
    return {{u"nodeID"_s, nodeID}, {u"type"_s, type}, {u"timestamp"_s, timestamp}};
}

const QString logFailure =
    u"2 CommandProcessor, Add operation log failed. Can't find snooze item in system error model"_s;

} // namespace

void tst_PluginSystemMonitor_Snooze::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

// A snooze begins

void tst_PluginSystemMonitor_Snooze::snoozedErrorLeavesTheList_data()
{
    QTest::addColumn<QString>("nodeID");
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("camera") << u"st1/cam1"_s << 3 << QStringList{u"4_st1"_s, u"4_st2"_s};
    QTest::newRow("station") << u"st2"_s << 4 << QStringList{u"4_st1"_s, u"3_st1/cam1"_s};
}

void tst_PluginSystemMonitor_Snooze::snoozedErrorLeavesTheList()
{
    QFETCH(const QString, nodeID);
    QFETCH(const int, type);
    QFETCH(const QStringList, left);
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam1"_s, false);
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st2"_s, false);
    const CollectedTrace trace;
    hosted.plugin.handleSnoozeError(snoozeOf(nodeID, type));
    QCOMPARE(hosted.errorKeys(), left);
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList{nodeID});
    QCOMPARE(hosted.log.take(), QStringList());
    QCOMPARE(trace.questions().size(), 0);
}

void tst_PluginSystemMonitor_Snooze::snoozeIsRememberedOnce()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam1"_s, false);
    hosted.plugin.handleSnoozeError(snoozeOf(u"st1/cam1"_s, 3));
    hosted.plugin.handleSnoozeError(snoozeOf(u"st1/cam1"_s, 3));
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList{u"st1/cam1"_s});
    // Ids are told apart by case.
    hosted.plugin.handleSnoozeError(snoozeOf(u"ST1/cam1"_s, 3));
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList({u"st1/cam1"_s, u"ST1/cam1"_s}));
}

void tst_PluginSystemMonitor_Snooze::snoozeOfAnErrorThatIsNotListedIsRemembered()
{
    HostedPlugin hosted;
    hosted.plugin.handleSnoozeError(snoozeOf(u"st1"_s, 4));
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList{u"st1"_s});
}

void tst_PluginSystemMonitor_Snooze::snoozeRemovesTheErrorOfItsTypeOnly()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    hosted.plugin.invoke("monitorNetworkUsage", u"st1"_s, 99, u"en0"_s);
    hosted.plugin.handleSnoozeError(snoozeOf(u"st1"_s, 4));
    hosted.plugin.handleSnoozeError(snoozeOf(u"st1"_s, 2));
    QCOMPARE(hosted.errorKeys(), QStringList({u"5_st1"_s, u"2_st1_en0"_s}));
    // The type is read as it comes.
    hosted.plugin.handleSnoozeError(snoozeOf(u"st1"_s, 5));
    QCOMPARE(hosted.errorKeys(), QStringList{u"2_st1_en0"_s});
}

void tst_PluginSystemMonitor_Snooze::snoozeWithMissingKeysConcernsTheEmptyId()
{
    HostedPlugin hosted;
    hosted.plugin.addSystemError(QString(), HighCpuUsage, QString(), QString());
    hosted.plugin.addSystemError(u"st1"_s, HighCpuUsage, QString(), QString());
    hosted.plugin.handleSnoozeError(u"no map"_s);
    QCOMPARE(hosted.errorKeys(), QStringList{u"0_st1"_s});
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList{QString()});
}

void tst_PluginSystemMonitor_Snooze::snoozeIsRememberedBeforeItsRowLeaves()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    QStringList seen;
    connect(hosted.plugin.errorModel, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [&] { seen = hosted.plugin.snoozedDeviceList; });
    hosted.plugin.handleSnoozeError(snoozeOf(u"st1"_s, 4));
    QCOMPARE(seen, QStringList{u"st1"_s});
}

void tst_PluginSystemMonitor_Snooze::snoozedStationIsNotAddedAgain()
{
    HostedPlugin hosted;
    hosted.plugin.handleSnoozeError(snoozeOf(u"st1"_s, 4));
    const CollectedTrace trace;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList());
    QCOMPARE(trace.lines(), QStringList({u"3 Station disconnect remove all error on [st1]"_s,
                                         u"3 Snooze station disconnection error st1"_s}));
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam1"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList({u"5_st1"_s, u"3_st1/cam1"_s}));
}

void tst_PluginSystemMonitor_Snooze::snoozedCameraIsNotAddedAgain()
{
    HostedPlugin hosted;
    hosted.plugin.handleSnoozeError(snoozeOf(u"st1/cam1"_s, 3));
    const CollectedTrace trace;
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam1"_s, false);
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam2"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList{u"3_st1/cam2"_s});
    QCOMPARE(trace.lines(), QStringList{u"3 Snooze camera disconnection error st1/cam1"_s});
}

// A snooze expires

void tst_PluginSystemMonitor_Snooze::expiredSnoozeShowsTheErrorAgain_data()
{
    QTest::addColumn<QString>("nodeID");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("key");
    QTest::newRow("camera") << u"st1/cam1"_s << 3 << u"3_st1/cam1"_s;
    QTest::newRow("station") << u"st1"_s << 4 << u"4_st1"_s;
}

void tst_PluginSystemMonitor_Snooze::expiredSnoozeShowsTheErrorAgain()
{
    QFETCH(const QString, nodeID);
    QFETCH(const int, type);
    QFETCH(const QString, key);
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"a"_s, nodeID, u"b"_s};
    const CollectedTrace trace;
    hosted.plugin.snoozeExpiredAndShowError(snoozeOf(nodeID, type));
    QCOMPARE(hosted.errorKeys(), QStringList{key});
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(trace.lines(),
             QStringList{u"3 Delete this Snooze and it wll show up next time "_s + nodeID});
}

void tst_PluginSystemMonitor_Snooze::expiredSnoozeOfAListedErrorShowsNoSecond()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    hosted.plugin.snoozedDeviceList = QStringList{u"st1"_s};
    hosted.plugin.snoozeExpiredAndShowError(snoozeOf(u"st1"_s, 4));
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st1"_s});
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList());
}

void tst_PluginSystemMonitor_Snooze::expiredSnoozeThatWasUnknownShowsTheError()
{
    HostedPlugin hosted;
    const CollectedTrace trace;
    hosted.plugin.snoozeExpiredAndShowError(snoozeOf(u"st1"_s, 4));
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st1"_s});
    QCOMPARE(trace.questions().size(), 0);
}

void tst_PluginSystemMonitor_Snooze::expiredSnoozeOfAnotherTypeShowsNothing_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {0, 1, 2, 5, 6, 7, 8, -1})
        QTest::addRow("%d", type) << type;
}

void tst_PluginSystemMonitor_Snooze::expiredSnoozeOfAnotherTypeShowsNothing()
{
    QFETCH(const int, type);
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"st1"_s};
    hosted.plugin.snoozeExpiredAndShowError(snoozeOf(u"st1"_s, type));
    QCOMPARE(hosted.errorKeys(), QStringList());
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList());
}

void tst_PluginSystemMonitor_Snooze::expiredSnoozeLooksTheOriginUp()
{
    HostedPlugin hosted;
    QStandardItem *station = hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door"_s);
    hosted.plugin.snoozeExpiredAndShowError(snoozeOf(u"st1"_s, 4));
    hosted.plugin.snoozeExpiredAndShowError(snoozeOf(u"st1/cam1"_s, 3));
    QCOMPARE(hosted.errorRows(),
             QStringList({u"\"4_st1\" station \"st1\" device \"\" type 4 category 1 "
                          "name \"Station disconnected\" from \"Station: Lobby\""_s,
                          u"\"3_st1/cam1\" station \"st1\" device \"st1/cam1\" type 3 category 2 "
                          "name \"Camera disconnected\" "
                          "from \"Station: Lobby / Camera: Door\""_s}));
}

// A snooze is removed

void tst_PluginSystemMonitor_Snooze::removedSnoozeShowsNoError()
{
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"st1"_s, u"st2"_s};
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st3"_s, false);
    const CollectedTrace trace;
    hosted.plugin.deleteSnooze(u"st1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st3"_s});
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList{u"st2"_s});
    QCOMPARE(trace.lines(),
             QStringList{u"3 Delete this Snooze and it wll show up next time st1"_s});
}

void tst_PluginSystemMonitor_Snooze::removedSnoozeShowsTheErrorAtTheNextReport()
{
    HostedPlugin hosted;
    hosted.plugin.handleSnoozeError(snoozeOf(u"st1"_s, 4));
    hosted.plugin.deleteSnooze(u"st1"_s);
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st1"_s});
}

void tst_PluginSystemMonitor_Snooze::removedSnoozeDropsEveryCopy()
{
    HostedPlugin hosted;
    hosted.respond(u"getSnoozeList"_s, QStringList{u"st1"_s, u"st2"_s, u"st1"_s});
    hosted.plugin.deleteSnooze(u"st1"_s);
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList{u"st2"_s});
}

void tst_PluginSystemMonitor_Snooze::removedSnoozeThatIsUnknownIsIgnored_data()
{
    QTest::addColumn<QString>("nodeID");
    QTest::newRow("other") << u"st2"_s;
    QTest::newRow("other case") << u"ST1"_s;
    QTest::newRow("longer") << u"st10"_s;
    QTest::newRow("none") << QString();
}

void tst_PluginSystemMonitor_Snooze::removedSnoozeThatIsUnknownIsIgnored()
{
    QFETCH(const QString, nodeID);
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"st1"_s};
    const CollectedTrace trace;
    hosted.plugin.deleteSnooze(nodeID);
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList{u"st1"_s});
    QCOMPARE(trace.questions().size(), 0);
}

// The server's list

void tst_PluginSystemMonitor_Snooze::snoozesOutliveTheConnection()
{
    HostedPlugin hosted;
    hosted.plugin.handleSnoozeError(snoozeOf(u"st1"_s, 4));
    hosted.plugin.PluginServerDisconnected();
    hosted.plugin.PluginServerConnected();
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList());
}

void tst_PluginSystemMonitor_Snooze::listFromTheServerSuppressesAndReleases()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st0"_s, false);
    hosted.respond(u"getSnoozeList"_s, QStringList{u"st0"_s, u"st1"_s});
    // What is listed stays.
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st0"_s});
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st0"_s});
    hosted.respond(u"getSnoozeList"_s, QStringList());
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList({u"4_st0"_s, u"4_st1"_s}));
}

// The operational log's message

void tst_PluginSystemMonitor_Snooze::messageNamesErrorOriginAndTime()
{
    HostedPlugin hosted;
    QStandardItem *station = hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    TopologyModel::addCamera(station, u"st1/cam7"_s, u"Door"_s);
    hosted.plugin.invoke("monitorNodeStatus", Camera, u"st1/cam7"_s, false);
    QCOMPARE(printedValue(hosted.plugin.composeOperationMessage(
                 requestOf(u"st1/cam7"_s, 3, qint64(1700000000)))),
             u"[\"Camera disconnected\", \"Station: Lobby / Camera: Door\", "
             "\"2023/11/14 23:13:20\"]"_s);
}

void tst_PluginSystemMonitor_Snooze::messagePassesTheTextsOnAsTheyStand()
{
    HostedPlugin hosted;
    auto *item = new QStandardItem;
    item->setData(u"4_st1"_s, SystemErrorModel::UniqueIDRole);
    item->setData(42, SystemErrorModel::ErrorNameRole);
    hosted.plugin.appendSystemErrorModel(u"4_st1"_s, item);
    QCOMPARE(printedValue(hosted.plugin.composeOperationMessage(requestOf(u"st1"_s, 4, 0))),
             u"[42, invalid, \"1970/01/01 01:00:00\"]"_s);
}

void tst_PluginSystemMonitor_Snooze::messageIsEmptyWithoutTheError_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::newRow("unknown node") << QVariant(requestOf(u"st2"_s, 4, 0));
    QTest::newRow("other type") << QVariant(requestOf(u"st1"_s, 3, 0));
    QTest::newRow("empty map") << QVariant(QVariantMap());
    QTest::newRow("no map") << QVariant(u"st1"_s);
    QTest::newRow("nothing") << QVariant();
}

void tst_PluginSystemMonitor_Snooze::messageIsEmptyWithoutTheError()
{
    QFETCH(const QVariant, data);
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    QCOMPARE(hosted.plugin.composeOperationMessage(data), QVariantList());
}

void tst_PluginSystemMonitor_Snooze::messageTimeIsLocal_data()
{
    QTest::addColumn<QVariant>("timestamp");
    QTest::addColumn<QString>("time");
    const auto row = [](const char *name, const QVariant &timestamp, const QString &time) {
        QTest::newRow(name) << timestamp << time;
    };
    row("epoch", qint64(0), u"1970/01/01 01:00:00"_s);
    row("missing", QVariant(), u"1970/01/01 01:00:00"_s);
    row("no number", u"soon"_s, u"1970/01/01 01:00:00"_s);
    row("text", u"1705323845"_s, u"2024/01/15 14:04:05"_s);
    row("int", 1705323845, u"2024/01/15 14:04:05"_s);
    row("unsigned", quint64(1705323845), u"2024/01/15 14:04:05"_s);
    row("winter afternoon", qint64(1705323845), u"2024/01/15 14:04:05"_s);
    row("summer afternoon", qint64(1721048645), u"2024/07/15 15:04:05"_s);
    row("last second of the day", qint64(1705359599), u"2024/01/15 23:59:59"_s);
    row("midnight", qint64(1705359600), u"2024/01/16 00:00:00"_s);
    row("before summer time", qint64(1711846799), u"2024/03/31 01:59:59"_s);
    row("at summer time", qint64(1711846800), u"2024/03/31 03:00:00"_s);
    row("before winter time", qint64(1729987200), u"2024/10/27 02:00:00"_s);
    row("at winter time", qint64(1729990800), u"2024/10/27 02:00:00"_s);
    row("beyond 32 bits", qint64(4102444800), u"2100/01/01 01:00:00"_s);
}

void tst_PluginSystemMonitor_Snooze::messageTimeIsLocal()
{
    QFETCH(const QVariant, timestamp);
    QFETCH(const QString, time);
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    const QVariantList message =
        hosted.plugin.composeOperationMessage(requestOf(u"st1"_s, 4, timestamp));
    QCOMPARE(message.size(), 3);
    QCOMPARE(printedValue(message.at(2)), printedValue(time));
}

// The operational log's entry

void tst_PluginSystemMonitor_Snooze::logEntryWrapsItsParameters_data()
{
    QTest::addColumn<QVariantList>("params");
    QTest::addColumn<QString>("wrapped");
    QTest::newRow("none") << QVariantList() << u"[]"_s;
    QTest::newRow("three") << QVariantList{u"b"_s, u"a"_s, u"c"_s}
                           << u"[{\"param\": \"b\"}, {\"param\": \"a\"}, {\"param\": \"c\"}]"_s;
    QTest::newRow("any type") << QVariantList{7, QVariant(), QVariantList{1}}
                              << u"[{\"param\": 7}, {\"param\": invalid}, {\"param\": [1]}]"_s;
}

void tst_PluginSystemMonitor_Snooze::logEntryWrapsItsParameters()
{
    QFETCH(const QVariantList, params);
    QFETCH(const QString, wrapped);
    HostedPlugin hosted;
    QVariantList passed = params;
    QVERIFY(hosted.plugin.addOperationLog(u"AnyLog"_s, passed));
    QCOMPARE(hosted.log.take(), QStringList({u"find D8C607070A81469B8CA4FF2E107DB6AB"_s,
                                             u"addOperationalLog \"AnyLog\" "_s + wrapped}));
    QCOMPARE(passed, params);
}

void tst_PluginSystemMonitor_Snooze::logEntryReturnsThePluginsAnswer()
{
    HostedPlugin hosted;
    QVariantList params{1};
    hosted.operationalLog.accepts = false;
    QVERIFY(!hosted.plugin.addOperationLog(u"AnyLog"_s, params));
    hosted.operationalLog.accepts = true;
    QVERIFY(hosted.plugin.addOperationLog(u"AnyLog"_s, params));
}

void tst_PluginSystemMonitor_Snooze::logEntryWithoutThePluginIsRefused()
{
    HostedPlugin hosted;
    hosted.host.forgetPlugin(u"D8C607070A81469B8CA4FF2E107DB6AB"_s);
    QVariantList params{1};
    const CollectedTrace trace;
    QVERIFY(!hosted.plugin.addOperationLog(u"AnyLog"_s, params));
    QCOMPARE(trace.questions().size(), 0);
}

void tst_PluginSystemMonitor_Snooze::logEntryWithoutTheMethodIsRefused()
{
    HostedPlugin hosted;
    hosted.host.registerPlugin(u"D8C607070A81469B8CA4FF2E107DB6AB"_s, &hosted.recording);
    QVariantList params{1};
    QTest::ignoreMessage(QtWarningMsg,
                         "QMetaObject::invokeMethod: No such method "
                         "FakeRecordingPlugin::addOperationalLog(QString,QVariantList)");
    QVERIFY(!hosted.plugin.addOperationLog(u"AnyLog"_s, params));
}

// The response to a request

void tst_PluginSystemMonitor_Snooze::responseIsLoggedBehindItsSignal()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    QVERIFY(hosted.plugin.setSnooze(u"st1"_s, 1721048645, StationDisconnected));
    hosted.log.take();
    const CollectedTrace trace;
    // The response brings the request's data.
    hosted.respond(u"setSnooze"_s, hosted.host.commands().last().data);
    QCOMPARE(hosted.log.take(),
             QStringList({u"setSnoozeResponse(true)"_s, u"find D8C607070A81469B8CA4FF2E107DB6AB"_s,
                          u"addOperationalLog \"AddDashboardSnooze\" "
                          "[{\"param\": \"Station disconnected\"}, {\"param\": \"Station: \"}, "
                          "{\"param\": \"2024/07/15 15:04:05\"}]"_s}));
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st1"_s});
    QCOMPARE(trace.lines(), QStringList());
}

void tst_PluginSystemMonitor_Snooze::responseWithoutTheErrorIsTraced()
{
    HostedPlugin hosted;
    const CollectedTrace trace;
    hosted.respond(u"setSnooze"_s, requestOf(u"st1"_s, 4, 0), u"1"_s);
    QCOMPARE(hosted.log.take(), QStringList{u"setSnoozeResponse(false)"_s});
    QCOMPARE(trace.lines(), QStringList{logFailure});
}

void tst_PluginSystemMonitor_Snooze::responseThatComesBehindTheEventIsTraced()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    hosted.event(u"SnoozeError"_s, snoozeOf(u"st1"_s, 4));
    const CollectedTrace trace;
    hosted.respond(u"setSnooze"_s, requestOf(u"st1"_s, 4, 0));
    QCOMPARE(hosted.log.take(), QStringList{u"setSnoozeResponse(true)"_s});
    QCOMPARE(trace.lines(), QStringList{logFailure});
}

void tst_PluginSystemMonitor_Snooze::refusedLogEntryIsOfNoAccount()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", Station, u"st1"_s, false);
    hosted.operationalLog.accepts = false;
    const CollectedTrace trace;
    hosted.respond(u"setSnooze"_s, requestOf(u"st1"_s, 4, 0));
    QCOMPARE(hosted.log.take().constFirst(), u"setSnoozeResponse(true)"_s);
    QCOMPARE(trace.lines(), QStringList());
}

QTEST_GUILESS_MAIN(tst_PluginSystemMonitor_Snooze)
#include "tst_PluginSystemMonitor_Snooze.moc"
