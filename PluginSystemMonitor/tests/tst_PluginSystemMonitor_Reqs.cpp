#include "CollectedTrace.h"
#include "HostedPlugin.h"
#include "PrintedValue.h"

#include <QRegularExpression>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// What the plug-in asks of the server.
class tst_PluginSystemMonitor_Reqs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void supportQuestionGoesToTheStation();
    void supportQuestionReturnsTheHostsAnswer_data();
    void supportQuestionReturnsTheHostsAnswer();
    void everySupportQuestionHasAContextOfItsOwn();
    void refusedSupportQuestionMayBeAnsweredAllTheSame();

    void camerasAreReconnectedByStation();
    void cameraIdIsSplitAtItsLastSlash_data();
    void cameraIdIsSplitAtItsLastSlash();
    void substationsAreReconnectedByParent();
    void stationIdIsSplitAtItsLastSlash_data();
    void stationIdIsSplitAtItsLastSlash();
    void commandsFollowTheOrderOfTheirTargets();
    void idsKeepTheOrderOfTheErrorList();
    void errorListedTwiceIsSentTwice();
    void otherErrorsAreNotReconnected();
    void nothingListedSendsNothing();
    void refusedCommandDoesNotStopTheNext();
    void reconnectionLeavesTheListAlone();
    void reconnectionCommandsHaveNoContext();

    void snoozeRequestGoesToTheServer();
    void snoozeRequestPassesItsArgumentsOn_data();
    void snoozeRequestPassesItsArgumentsOn();
    void snoozeRequestReturnsTheHostsAnswer_data();
    void snoozeRequestReturnsTheHostsAnswer();
    void snoozeRequestChangesNothingHere();

    void requestsWriteNoTrace();
};

namespace {

const QString ownId = u"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"_s;

void addCameras(HostedPlugin &hosted, const QStringList &ids)
{
    for (const QString &id : ids)
        hosted.plugin.addCameraError(id, CameraDisconnected, QString());
}

void addStations(HostedPlugin &hosted, const QStringList &ids)
{
    for (const QString &id : ids)
        hosted.plugin.addSystemError(id, StationDisconnected, QString(), QString());
}

std::unique_ptr<QString> contextOf(const SentCommand &command)
{
    return std::unique_ptr<QString>(static_cast<QString *>(command.context));
}

} // namespace

void tst_PluginSystemMonitor_Reqs::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

// Support

void tst_PluginSystemMonitor_Reqs::supportQuestionGoesToTheStation()
{
    HostedPlugin hosted;
    QVERIFY(hosted.plugin.checkSupportSystemMonitor(u"st1/sub"_s));
    QCOMPARE(hosted.log.take(),
             QStringList{u"send isSupportSystemMonitor invalid to \"st1/sub\""_s});
    const SentCommand &command = hosted.host.commands().first();
    QCOMPARE(command.handle, hosted.host.handle());
    QCOMPARE(command.senderID, ownId);
    QCOMPARE(command.flag, 0);

    // The answer brings the station back.
    hosted.respond(command.command, {}, u"0"_s, command.context);
    QCOMPARE(hosted.log.take(), QStringList{u"isSupportSystemMonitor(\"st1/sub\", true)"_s});
}

void tst_PluginSystemMonitor_Reqs::supportQuestionReturnsTheHostsAnswer_data()
{
    QTest::addColumn<bool>("accepted");
    QTest::newRow("accepted") << true;
    QTest::newRow("refused") << false;
}

void tst_PluginSystemMonitor_Reqs::supportQuestionReturnsTheHostsAnswer()
{
    QFETCH(const bool, accepted);
    HostedPlugin hosted;
    hosted.host.acceptsCommands = accepted;
    QCOMPARE(hosted.plugin.checkSupportSystemMonitor(u"st1"_s), accepted);
    const auto context = contextOf(hosted.host.commands().first());
    QCOMPARE(*context, u"st1"_s);
}

void tst_PluginSystemMonitor_Reqs::everySupportQuestionHasAContextOfItsOwn()
{
    HostedPlugin hosted;
    hosted.plugin.checkSupportSystemMonitor(u"st1"_s);
    hosted.plugin.checkSupportSystemMonitor(u"st1"_s);
    hosted.plugin.checkSupportSystemMonitor(u"st2"_s);
    hosted.log.take();
    // Answers may come in any order.
    const QList<SentCommand> &commands = hosted.host.commands();
    hosted.respond(commands[2].command, {}, u"0"_s, commands[2].context);
    hosted.respond(commands[0].command, {}, u"0"_s, commands[0].context);
    hosted.respond(commands[1].command, {}, u"0"_s, commands[1].context);
    QCOMPARE(hosted.log.take(), QStringList({u"isSupportSystemMonitor(\"st2\", true)"_s,
                                             u"isSupportSystemMonitor(\"st1\", true)"_s,
                                             u"isSupportSystemMonitor(\"st1\", true)"_s}));
}

void tst_PluginSystemMonitor_Reqs::refusedSupportQuestionMayBeAnsweredAllTheSame()
{
    HostedPlugin hosted;
    hosted.host.acceptsCommands = false;
    QVERIFY(!hosted.plugin.checkSupportSystemMonitor(u"st1"_s));
    hosted.log.take();
    const SentCommand &command = hosted.host.commands().first();
    hosted.respond(command.command, {},
                   u"{2C85B19D-AE6F-45D9-B8FE-DC436FCBEABE}FrameworkInternalError"_s,
                   command.context);
    QCOMPARE(hosted.log.take(), QStringList{u"isSupportSystemMonitor(\"st1\", false)"_s});
}

// Reconnection

void tst_PluginSystemMonitor_Reqs::camerasAreReconnectedByStation()
{
    HostedPlugin hosted;
    addCameras(hosted, {u"S1/c1"_s, u"S1/c2"_s, u"S2/c9"_s});
    hosted.plugin.reconnectDisconnectCameras();
    QCOMPARE(hosted.log.take(), QStringList({u"send reconnectCameras [\"c1\", \"c2\"] to \"S1\""_s,
                                             u"send reconnectCameras [\"c9\"] to \"S2\""_s}));
}

void tst_PluginSystemMonitor_Reqs::cameraIdIsSplitAtItsLastSlash_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("sent");
    QTest::newRow("no slash") << u"cam1"_s << u"[\"cam1\"] to \"\""_s;
    QTest::newRow("one slash") << u"st1/cam1"_s << u"[\"cam1\"] to \"st1\""_s;
    QTest::newRow("sub-station") << u"a/b/cam1"_s << u"[\"cam1\"] to \"a/b\""_s;
    QTest::newRow("slash in front") << u"/cam1"_s << u"[\"cam1\"] to \"\""_s;
    QTest::newRow("slash behind") << u"st1/"_s << u"[\"\"] to \"st1\""_s;
    QTest::newRow("two slashes") << u"st1//cam1"_s << u"[\"cam1\"] to \"st1/\""_s;
    QTest::newRow("empty") << QString() << u"[\"\"] to \"\""_s;
}

void tst_PluginSystemMonitor_Reqs::cameraIdIsSplitAtItsLastSlash()
{
    QFETCH(const QString, id);
    QFETCH(const QString, sent);
    HostedPlugin hosted;
    addCameras(hosted, {id});
    hosted.plugin.reconnectDisconnectCameras();
    QCOMPARE(hosted.log.take(), QStringList{u"send reconnectCameras "_s + sent});
}

void tst_PluginSystemMonitor_Reqs::substationsAreReconnectedByParent()
{
    HostedPlugin hosted;
    addStations(hosted, {u"A/B/C"_s, u"X"_s, u"A/B/D"_s});
    hosted.plugin.reconnectDisconnectSubstations();
    QCOMPARE(hosted.log.take(),
             QStringList({u"send reconnectSubstations QStringList[\"X\"] to \"\""_s,
                          u"send reconnectSubstations QStringList[\"C\", \"D\"] to \"A/B\""_s}));
}

void tst_PluginSystemMonitor_Reqs::stationIdIsSplitAtItsLastSlash_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("sent");
    QTest::newRow("no slash") << u"X"_s << u"[\"X\"] to \"\""_s;
    QTest::newRow("one slash") << u"A/B"_s << u"[\"B\"] to \"A\""_s;
    QTest::newRow("two slashes") << u"A/B/C"_s << u"[\"C\"] to \"A/B\""_s;
    QTest::newRow("slash in front") << u"/A"_s << u"[\"A\"] to \"\""_s;
    QTest::newRow("slash behind") << u"A/"_s << u"[\"\"] to \"A\""_s;
    QTest::newRow("empty part between") << u"A//B"_s << u"[\"B\"] to \"A/\""_s;
    QTest::newRow("empty parts in front") << u"//A"_s << u"[\"A\"] to \"/\""_s;
    QTest::newRow("empty") << QString() << u"[\"\"] to \"\""_s;
}

void tst_PluginSystemMonitor_Reqs::stationIdIsSplitAtItsLastSlash()
{
    QFETCH(const QString, id);
    QFETCH(const QString, sent);
    HostedPlugin hosted;
    addStations(hosted, {id});
    hosted.plugin.reconnectDisconnectSubstations();
    QCOMPARE(hosted.log.take(), QStringList{u"send reconnectSubstations QStringList"_s + sent});
}

void tst_PluginSystemMonitor_Reqs::commandsFollowTheOrderOfTheirTargets()
{
    HostedPlugin hosted;
    addCameras(hosted, {u"b/1"_s, u"B/1"_s, u"a10/1"_s, u"a2/1"_s, u"1"_s});
    addStations(hosted, {u"b/1"_s, u"B/1"_s, u"a10/1"_s, u"a2/1"_s, u"1"_s});
    hosted.plugin.reconnectDisconnectCameras();
    hosted.plugin.reconnectDisconnectSubstations();
    QStringList targets;
    for (const SentCommand &command : hosted.host.commands())
        targets.append(command.target);
    const QStringList sorted{QString(), u"B"_s, u"a10"_s, u"a2"_s, u"b"_s};
    QCOMPARE(targets, sorted + sorted);
}

void tst_PluginSystemMonitor_Reqs::idsKeepTheOrderOfTheErrorList()
{
    HostedPlugin hosted;
    addCameras(hosted, {u"st/c"_s, u"st/a"_s, u"st/b"_s});
    addStations(hosted, {u"st/z"_s, u"st/x"_s, u"st/y"_s});
    hosted.plugin.reconnectDisconnectCameras();
    hosted.plugin.reconnectDisconnectSubstations();
    QCOMPARE(hosted.log.take(),
             QStringList({u"send reconnectCameras [\"c\", \"a\", \"b\"] to \"st\""_s,
                          u"send reconnectSubstations QStringList[\"z\", \"x\", \"y\"] "
                          "to \"st\""_s}));
}

void tst_PluginSystemMonitor_Reqs::errorListedTwiceIsSentTwice()
{
    HostedPlugin hosted;
    addCameras(hosted, {u"st/c"_s, u"st/c"_s});
    addStations(hosted, {u"st/z"_s, u"st/z"_s});
    hosted.plugin.reconnectDisconnectCameras();
    hosted.plugin.reconnectDisconnectSubstations();
    QCOMPARE(hosted.log.take(),
             QStringList({u"send reconnectCameras [\"c\", \"c\"] to \"st\""_s,
                          u"send reconnectSubstations QStringList[\"z\", \"z\"] to \"st\""_s}));
}

void tst_PluginSystemMonitor_Reqs::otherErrorsAreNotReconnected()
{
    HostedPlugin hosted;
    for (const ErrorType type : {HighCpuUsage, HighMemoryUsage, HighNetworkUsage,
                                 VolumeDisconnected, Reserved, InsufficientRecordingDays}) {
        hosted.plugin.addSystemError(u"st1"_s, type, QString(), QString());
        hosted.plugin.addCameraError(u"st1/cam1"_s, type, QString());
    }
    hosted.plugin.reconnectDisconnectCameras();
    hosted.plugin.reconnectDisconnectSubstations();
    QCOMPARE(hosted.log.take(), QStringList());

    // Each request sends its own kind alone.
    addStations(hosted, {u"st1"_s});
    hosted.plugin.reconnectDisconnectCameras();
    QCOMPARE(hosted.log.take(), QStringList());
    hosted.plugin.clearSystemErrorModel();
    addCameras(hosted, {u"st1/cam1"_s});
    hosted.plugin.reconnectDisconnectSubstations();
    QCOMPARE(hosted.log.take(), QStringList());
}

void tst_PluginSystemMonitor_Reqs::nothingListedSendsNothing()
{
    HostedPlugin hosted;
    hosted.plugin.reconnectDisconnectCameras();
    hosted.plugin.reconnectDisconnectSubstations();
    QCOMPARE(hosted.log.take(), QStringList());
}

void tst_PluginSystemMonitor_Reqs::refusedCommandDoesNotStopTheNext()
{
    HostedPlugin hosted;
    hosted.host.acceptsCommands = false;
    addCameras(hosted, {u"S1/c1"_s, u"S2/c2"_s});
    addStations(hosted, {u"S1/s"_s, u"S2/s"_s});
    hosted.plugin.reconnectDisconnectCameras();
    hosted.plugin.reconnectDisconnectSubstations();
    QCOMPARE(hosted.host.commands().size(), 4);
}

void tst_PluginSystemMonitor_Reqs::reconnectionLeavesTheListAlone()
{
    HostedPlugin hosted;
    addCameras(hosted, {u"S1/c1"_s});
    addStations(hosted, {u"S2"_s});
    const QStringList before = hosted.errorRows();
    hosted.plugin.reconnectDisconnectCameras();
    hosted.plugin.reconnectDisconnectSubstations();
    QCOMPARE(hosted.errorRows(), before);
}

void tst_PluginSystemMonitor_Reqs::reconnectionCommandsHaveNoContext()
{
    HostedPlugin hosted;
    addCameras(hosted, {u"S1/c1"_s});
    addStations(hosted, {u"S2"_s});
    hosted.plugin.reconnectDisconnectCameras();
    hosted.plugin.reconnectDisconnectSubstations();
    for (const SentCommand &command : hosted.host.commands()) {
        QCOMPARE(command.handle, hosted.host.handle());
        QCOMPARE(command.senderID, ownId);
        QCOMPARE(command.context, nullptr);
        QCOMPARE(command.flag, 0);
    }
}

// Snooze

void tst_PluginSystemMonitor_Reqs::snoozeRequestGoesToTheServer()
{
    HostedPlugin hosted;
    QVERIFY(hosted.plugin.setSnooze(u"st1/cam7"_s, 1700000000, CameraDisconnected));
    QCOMPARE(hosted.log.take(),
             QStringList{u"send setSnooze {\"nodeID\": \"st1/cam7\", \"timestamp\": 1700000000LL, "
                         "\"type\": 3} to \"\""_s});
    const SentCommand &command = hosted.host.commands().first();
    QCOMPARE(command.handle, hosted.host.handle());
    QCOMPARE(command.senderID, ownId);
    QCOMPARE(command.context, nullptr);
    QCOMPARE(command.flag, 0);
}

void tst_PluginSystemMonitor_Reqs::snoozeRequestPassesItsArgumentsOn_data()
{
    QTest::addColumn<QString>("nodeID");
    QTest::addColumn<qlonglong>("timestamp");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("data");
    QTest::newRow("station") << u"st1"_s << qlonglong(0) << 4
                             << u"{\"nodeID\": \"st1\", \"timestamp\": 0LL, \"type\": 4}"_s;
    QTest::newRow("wide time")
        << u"st1"_s << qlonglong(1) * 5000000000 << 4
        << u"{\"nodeID\": \"st1\", \"timestamp\": 5000000000LL, \"type\": 4}"_s;
    QTest::newRow("negative time") << u"st1"_s << qlonglong(-1) << 4
                                   << u"{\"nodeID\": \"st1\", \"timestamp\": -1LL, \"type\": 4}"_s;
    QTest::newRow("other type") << QString() << qlonglong(1) << 99
                                << u"{\"nodeID\": \"\", \"timestamp\": 1LL, \"type\": 99}"_s;
}

void tst_PluginSystemMonitor_Reqs::snoozeRequestPassesItsArgumentsOn()
{
    QFETCH(const QString, nodeID);
    QFETCH(const qlonglong, timestamp);
    QFETCH(const int, type);
    QFETCH(const QString, data);
    HostedPlugin hosted;
    hosted.plugin.setSnooze(nodeID, timestamp, type);
    QCOMPARE(printedValue(hosted.host.commands().first().data), data);
}

void tst_PluginSystemMonitor_Reqs::snoozeRequestReturnsTheHostsAnswer_data()
{
    supportQuestionReturnsTheHostsAnswer_data();
}

void tst_PluginSystemMonitor_Reqs::snoozeRequestReturnsTheHostsAnswer()
{
    QFETCH(const bool, accepted);
    HostedPlugin hosted;
    hosted.host.acceptsCommands = accepted;
    QCOMPARE(hosted.plugin.setSnooze(u"st1"_s, 0, StationDisconnected), accepted);
}

void tst_PluginSystemMonitor_Reqs::snoozeRequestChangesNothingHere()
{
    HostedPlugin hosted;
    addStations(hosted, {u"st1"_s});
    hosted.plugin.setSnooze(u"st1"_s, 0, StationDisconnected);
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st1"_s});
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList());
}

void tst_PluginSystemMonitor_Reqs::requestsWriteNoTrace()
{
    HostedPlugin hosted;
    addCameras(hosted, {u"S1/c1"_s});
    addStations(hosted, {u"S2"_s});
    const CollectedTrace trace;
    hosted.plugin.reconnectDisconnectCameras();
    hosted.plugin.reconnectDisconnectSubstations();
    hosted.plugin.setSnooze(u"S2"_s, 0, StationDisconnected);
    hosted.plugin.checkSupportSystemMonitor(u"S2"_s);
    const auto context = contextOf(hosted.host.commands().last());
    hosted.plugin.PluginServerConnected();
    QCOMPARE(trace.questions().size(), 0);
}

QTEST_GUILESS_MAIN(tst_PluginSystemMonitor_Reqs)
#include "tst_PluginSystemMonitor_Reqs.moc"
