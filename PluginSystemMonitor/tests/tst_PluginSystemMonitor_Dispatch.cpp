#include "CollectedTrace.h"
#include "HostedPlugin.h"

#include <QRegularExpression>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// What of the host's traffic reaches which handler; what the handlers do is tested with them.
class tst_PluginSystemMonitor_Dispatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void eventReachesItsHandler_data();
    void eventReachesItsHandler();
    void otherEventNamesAreIgnored_data();
    void otherEventNamesAreIgnored();
    void resourceReportIsAnnouncedBehindItsHandling();
    void resourceReportWithoutAMapIsAnnouncedAsWell();
    void removedSnoozeIsReadAsText();
    void figuresOfAnEventAreOfNoAccount();
    void everyEventIsTracedAtEntryAndExit_data();
    void everyEventIsTracedAtEntryAndExit();

    void responseReachesItsHandler_data();
    void responseReachesItsHandler();
    void otherCommandsAreIgnored_data();
    void otherCommandsAreIgnored();
    void responsesAreNotTracedAtEntryAndExit();
    void contextIsFreedByTheSupportAnswerAlone_data();
    void contextIsFreedByTheSupportAnswerAlone();

    void stationIsSupportedUnlessTheHostFailed_data();
    void stationIsSupportedUnlessTheHostFailed();
    void supportAnswerWithoutContextIsIgnored();

    void snoozeSucceededOnlyWithCodeZero_data();
    void snoozeSucceededOnlyWithCodeZero();

    void snoozeListIsReplaced();
    void snoozeListIsWhatTheDataConvertsTo_data();
    void snoozeListIsWhatTheDataConvertsTo();

    void extendedEntryPointsDoNothingButTrace();
};

namespace {

const QString internalError = u"{2C85B19D-AE6F-45D9-B8FE-DC436FCBEABE}FrameworkInternalError"_s;

const QVariantMap snoozeOfStation1{{u"nodeID"_s, u"st1"_s}, {u"type"_s, 4}};

// Not a literal, so that copies share one counted buffer.
QString stationId()
{
    return QString::fromUtf8("st1/sub");
}

} // namespace

void tst_PluginSystemMonitor_Dispatch::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

// Events

void tst_PluginSystemMonitor_Dispatch::eventReachesItsHandler_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QStringList>("snoozed");

    const QStringList noSignals;
    const QStringList asBefore{u"4_st1"_s};
    QTest::newRow("resources") << u"SystemResChanged"_s
                               << QVariant(QVariantMap{{u"cpuPercentage"_s, 95}})
                               << QStringList{u"notifySystemResourceUpdated()"_s}
                               << QStringList{u"4_st1"_s, u"0_source"_s} << QStringList{u"st2"_s};
    QTest::newRow("capacity") << u"ServerReachingLimited"_s
                              << QVariant(QVariantMap{{u"serverName"_s, u"Server"_s}})
                              << QStringList{u"notifyServerReachingLimited(\"Server\", 0.0)"_s}
                              << asBefore << QStringList{u"st2"_s};
    QTest::newRow("snooze") << u"SnoozeError"_s << QVariant(snoozeOfStation1) << noSignals
                            << QStringList() << QStringList{u"st2"_s, u"st1"_s};
    QTest::newRow("expired snooze")
        << u"DeviceStillError"_s << QVariant(QVariantMap{{u"nodeID"_s, u"st2"_s}, {u"type"_s, 4}})
        << noSignals << QStringList{u"4_st1"_s, u"4_st2"_s} << QStringList();
    QTest::newRow("removed snooze")
        << u"RemoveSnooze"_s << QVariant(u"st2"_s) << noSignals << asBefore << QStringList();
}

void tst_PluginSystemMonitor_Dispatch::eventReachesItsHandler()
{
    QFETCH(const QString, name);
    QFETCH(const QVariant, data);
    QFETCH(const QStringList, log);
    QFETCH(const QStringList, keys);
    QFETCH(const QStringList, snoozed);
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"st2"_s};
    hosted.plugin.addSystemError(u"st1"_s, StationDisconnected, QString(), u"Gate"_s);

    hosted.event(name, data, u"source"_s);
    QCOMPARE(hosted.log.take(), log);
    QCOMPARE(hosted.errorKeys(), keys);
    QCOMPARE(hosted.plugin.snoozedDeviceList, snoozed);
}

void tst_PluginSystemMonitor_Dispatch::otherEventNamesAreIgnored_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"", "systemreschanged", "SYSTEMRESCHANGED", "systemResChanged", "SystemResChanged ",
          "SystemRes", "SystemResChangedEx", "serverreachinglimited", "snoozeError", "removeSnooze",
          "deviceStillError", "setSnooze", "Unknown"})
        QTest::addRow("'%s'", name) << QString::fromUtf8(name);
}

void tst_PluginSystemMonitor_Dispatch::otherEventNamesAreIgnored()
{
    QFETCH(const QString, name);
    HostedPlugin hosted;
    hosted.plugin.addSystemError(u"st1"_s, StationDisconnected, QString(), u"Gate"_s);
    QVariantMap data = snoozeOfStation1;
    data.insert(u"cpuPercentage"_s, 95);

    hosted.event(name, data, u"source"_s);
    QCOMPARE(hosted.log.take(), QStringList());
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st1"_s});
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList());
}

void tst_PluginSystemMonitor_Dispatch::resourceReportIsAnnouncedBehindItsHandling()
{
    HostedPlugin hosted;
    hosted.plugin.setFocusStationResource(u"st1"_s);
    hosted.log.take();
    hosted.event(u"SystemResChanged"_s, QVariantMap{{u"cpuPercentage"_s, 5}}, u"st1"_s);
    QCOMPARE(hosted.log.take(), QStringList({u"systemResourceChanged(5, 0, [])"_s,
                                             u"notifySystemResourceUpdated()"_s}));
}

void tst_PluginSystemMonitor_Dispatch::resourceReportWithoutAMapIsAnnouncedAsWell()
{
    HostedPlugin hosted;
    hosted.event(u"SystemResChanged"_s, u"no map"_s, u"st1"_s);
    QCOMPARE(hosted.log.take(), QStringList{u"notifySystemResourceUpdated()"_s});
}

void tst_PluginSystemMonitor_Dispatch::removedSnoozeIsReadAsText()
{
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"41"_s, u"42"_s};
    hosted.event(u"RemoveSnooze"_s, 42);
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList{u"41"_s});
    hosted.event(u"RemoveSnooze"_s, QVariantMap{{u"nodeID"_s, u"41"_s}});
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList{u"41"_s});
}

void tst_PluginSystemMonitor_Dispatch::figuresOfAnEventAreOfNoAccount()
{
    HostedPlugin hosted;
    hosted.plugin.EventProcessor(u"SnoozeError"_s, -1, 4711, -3, snoozeOfStation1, u"any"_s);
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList{u"st1"_s});
}

void tst_PluginSystemMonitor_Dispatch::everyEventIsTracedAtEntryAndExit_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("between");
    QTest::newRow("resources") << u"SystemResChanged"_s
                               << QStringList{u"5 handleSystemResChgEvent, Enter"_s,
                                              u"5 handleSystemResChgEvent, Leave"_s};
    QTest::newRow("capacity") << u"ServerReachingLimited"_s << QStringList();
    QTest::newRow("snooze") << u"SnoozeError"_s << QStringList();
    QTest::newRow("expired snooze") << u"DeviceStillError"_s << QStringList();
    QTest::newRow("removed snooze") << u"RemoveSnooze"_s << QStringList();
    QTest::newRow("unknown") << u"Unknown"_s << QStringList();
}

void tst_PluginSystemMonitor_Dispatch::everyEventIsTracedAtEntryAndExit()
{
    QFETCH(const QString, name);
    QFETCH(const QStringList, between);
    HostedPlugin hosted;
    const CollectedTrace trace;
    hosted.event(name, QVariantMap());
    QCOMPARE(trace.lines(), QStringList(u"5 EventProcessor, Enter"_s) + between
                                + QStringList(u"5 EventProcessor, Leave"_s));
    QCOMPARE(trace.questions().first().file, u"PluginSystemMonitor_Dispatch.cpp"_s);
}

// Responses

void tst_PluginSystemMonitor_Dispatch::responseReachesItsHandler_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<QStringList>("snoozed");
    QTest::newRow("support") << u"isSupportSystemMonitor"_s
                             << QStringList{u"isSupportSystemMonitor(\"st1/sub\", true)"_s}
                             << QStringList();
    QTest::newRow("snooze") << u"setSnooze"_s << QStringList{u"setSnoozeResponse(true)"_s}
                            << QStringList();
    QTest::newRow("snooze list") << u"getSnoozeList"_s << QStringList() << QStringList{u"a"_s};
}

void tst_PluginSystemMonitor_Dispatch::responseReachesItsHandler()
{
    QFETCH(const QString, command);
    QFETCH(const QStringList, log);
    QFETCH(const QStringList, snoozed);
    HostedPlugin hosted;
    auto context = std::make_unique<QString>(stationId());
    QString *const passed =
        command == u"isSupportSystemMonitor"_s ? context.release() : context.get();
    hosted.respond(command, QStringList{u"a"_s}, u"0"_s, passed);
    QCOMPARE(hosted.log.take(), log);
    QCOMPARE(hosted.plugin.snoozedDeviceList, snoozed);
}

void tst_PluginSystemMonitor_Dispatch::otherCommandsAreIgnored_data()
{
    QTest::addColumn<QString>("command");
    for (const char *command :
         {"", "issupportsystemmonitor", "IsSupportSystemMonitor", "isSupportSystemMonitor2",
          "SetSnooze", "setsnooze", "getsnoozelist", "getSnoozeList ", "reconnectSubstations",
          "reconnectCameras", "GetNodeInfo", "Unknown"})
        QTest::addRow("'%s'", command) << QString::fromUtf8(command);
}

void tst_PluginSystemMonitor_Dispatch::otherCommandsAreIgnored()
{
    QFETCH(const QString, command);
    HostedPlugin hosted;
    const CollectedTrace trace;
    QString context = stationId();
    hosted.respond(command, QStringList{u"a"_s}, u"0"_s, &context);
    QCOMPARE(hosted.log.take(), QStringList());
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList());
    QCOMPARE(trace.lines(), QStringList());
}

void tst_PluginSystemMonitor_Dispatch::responsesAreNotTracedAtEntryAndExit()
{
    HostedPlugin hosted;
    const CollectedTrace trace;
    hosted.respond(u"isSupportSystemMonitor"_s, {}, u"0"_s, new QString(stationId()));
    hosted.respond(u"getSnoozeList"_s);
    QCOMPARE(trace.questions().size(), 0);
}

void tst_PluginSystemMonitor_Dispatch::contextIsFreedByTheSupportAnswerAlone_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("resultCode");
    QTest::addColumn<bool>("isFreed");
    QTest::newRow("support, success") << u"isSupportSystemMonitor"_s << u"0"_s << true;
    QTest::newRow("support, failure") << u"isSupportSystemMonitor"_s << internalError << true;
    QTest::newRow("snooze") << u"setSnooze"_s << u"0"_s << false;
    QTest::newRow("snooze list") << u"getSnoozeList"_s << u"0"_s << false;
    QTest::newRow("unknown") << u"Unknown"_s << u"0"_s << false;
}

void tst_PluginSystemMonitor_Dispatch::contextIsFreedByTheSupportAnswerAlone()
{
    QFETCH(const QString, command);
    QFETCH(const QString, resultCode);
    QFETCH(const bool, isFreed);
    HostedPlugin hosted;
    // Our copy has the text to itself once the context's is gone.
    const QString text = stationId();
    auto context = std::make_unique<QString>(text);
    QVERIFY(!text.isDetached());
    hosted.respond(command, {}, resultCode, isFreed ? context.release() : context.get());
    QCOMPARE(text.isDetached(), isFreed);
}

void tst_PluginSystemMonitor_Dispatch::stationIsSupportedUnlessTheHostFailed_data()
{
    QTest::addColumn<QString>("resultCode");
    QTest::addColumn<bool>("isSupported");
    QTest::newRow("success") << u"0"_s << true;
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("other code") << u"1"_s << true;
    QTest::newRow("internal error") << internalError << false;
    QTest::newRow("internal error in another case") << internalError.toLower() << true;
    QTest::newRow("internal error and more") << internalError + u' ' << true;
    QTest::newRow("its name alone") << u"FrameworkInternalError"_s << true;
}

void tst_PluginSystemMonitor_Dispatch::stationIsSupportedUnlessTheHostFailed()
{
    QFETCH(const QString, resultCode);
    QFETCH(const bool, isSupported);
    HostedPlugin hosted;
    hosted.respond(u"isSupportSystemMonitor"_s, {}, resultCode, new QString(stationId()));
    QCOMPARE(hosted.log.take(),
             QStringList{isSupported ? u"isSupportSystemMonitor(\"st1/sub\", true)"_s
                                     : u"isSupportSystemMonitor(\"st1/sub\", false)"_s});
}

void tst_PluginSystemMonitor_Dispatch::supportAnswerWithoutContextIsIgnored()
{
    HostedPlugin hosted;
    hosted.respond(u"isSupportSystemMonitor"_s);
    QCOMPARE(hosted.log.take(), QStringList());
}

void tst_PluginSystemMonitor_Dispatch::snoozeSucceededOnlyWithCodeZero_data()
{
    QTest::addColumn<QString>("resultCode");
    QTest::addColumn<bool>("isSuccess");
    QTest::newRow("0") << u"0"_s << true;
    QTest::newRow("00") << u"00"_s << false;
    QTest::newRow("0 and a blank") << u"0 "_s << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("1") << u"1"_s << false;
    QTest::newRow("text") << u"ok"_s << false;
    QTest::newRow("internal error") << internalError << false;
}

// The log entry comes behind the signal, and whatever the code.
void tst_PluginSystemMonitor_Dispatch::snoozeSucceededOnlyWithCodeZero()
{
    QFETCH(const QString, resultCode);
    QFETCH(const bool, isSuccess);
    HostedPlugin hosted;
    hosted.plugin.addSystemError(u"st1"_s, StationDisconnected, QString(), u"Gate"_s);
    hosted.respond(u"setSnooze"_s, snoozeOfStation1, resultCode);
    QCOMPARE(hosted.log.take(),
             QStringList({isSuccess ? u"setSnoozeResponse(true)"_s : u"setSnoozeResponse(false)"_s,
                          u"find D8C607070A81469B8CA4FF2E107DB6AB"_s,
                          u"addOperationalLog \"AddDashboardSnooze\" "
                          "[{\"param\": \"Station disconnected\"}, {\"param\": \"Gate\"}, "
                          "{\"param\": \"1970/01/01 01:00:00\"}]"_s}));
}

void tst_PluginSystemMonitor_Dispatch::snoozeListIsReplaced()
{
    HostedPlugin hosted;
    hosted.respond(u"getSnoozeList"_s, QStringList{u"st1"_s, u"st2/cam1"_s});
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList({u"st1"_s, u"st2/cam1"_s}));
    hosted.respond(u"getSnoozeList"_s, QStringList{u"st3"_s});
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList{u"st3"_s});
    hosted.respond(u"getSnoozeList"_s, QStringList());
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList());
    QCOMPARE(hosted.log.take(), QStringList());
}

void tst_PluginSystemMonitor_Dispatch::snoozeListIsWhatTheDataConvertsTo_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<QStringList>("snoozed");
    QTest::newRow("string list") << QVariant(QStringList{u"a"_s, u"b"_s})
                                 << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("list of variants")
        << QVariant(QVariantList{u"a"_s, 7}) << QStringList{u"a"_s, u"7"_s};
    QTest::newRow("number") << QVariant(7) << QStringList();
    QTest::newRow("map") << QVariant(snoozeOfStation1) << QStringList();
    QTest::newRow("nothing") << QVariant() << QStringList();
}

void tst_PluginSystemMonitor_Dispatch::snoozeListIsWhatTheDataConvertsTo()
{
    QFETCH(const QVariant, data);
    QFETCH(const QStringList, snoozed);
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"old"_s};
    hosted.respond(u"getSnoozeList"_s, data);
    QCOMPARE(hosted.plugin.snoozedDeviceList, snoozed);
}

// Extended entry points

void tst_PluginSystemMonitor_Dispatch::extendedEntryPointsDoNothingButTrace()
{
    HostedPlugin hosted;
    hosted.plugin.addSystemError(u"st1"_s, StationDisconnected, QString(), u"Gate"_s);
    CollectedTrace trace;
    for (const QString &name : {u"SystemResChanged"_s, u"ServerReachingLimited"_s, u"SnoozeError"_s,
                                u"DeviceStillError"_s, u"RemoveSnooze"_s}) {
        hosted.plugin.EventProcessorEx(name, nullptr, 0, 0, 0, snoozeOfStation1, u"st1"_s);
        QCOMPARE(trace.take(),
                 QStringList({u"5 EventProcessorEx, Enter"_s, u"5 EventProcessorEx, Leave"_s}));
    }
    QString context = stationId();
    for (const QString &command :
         {u"isSupportSystemMonitor"_s, u"setSnooze"_s, u"getSnoozeList"_s}) {
        hosted.plugin.CommandProcessorEx(command, nullptr, QStringList{u"a"_s}, &context, u"0"_s,
                                         QString(), false, QString());
        QCOMPARE(trace.take(),
                 QStringList({u"5 CommandProcessorEx, Enter"_s, u"5 CommandProcessorEx, Leave"_s}));
    }
    QCOMPARE(hosted.log.take(), QStringList());
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st1"_s});
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList());
}

QTEST_GUILESS_MAIN(tst_PluginSystemMonitor_Dispatch)
#include "tst_PluginSystemMonitor_Dispatch.moc"
