#include "TestHost.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Where server events and command responses go.
class tst_Dispatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void resourceReportOfTheFocusStationIsShownThenNotified();
    void resourceReportOfAnotherStationIsNotified();
    void invalidResourceReportIsNotifiedAllTheSame();
    void capacityEventBecomesASignal();
    void snoozeEventTakesTheErrorAway();
    void expiryEventBringsTheErrorBack();
    void releaseEventLiftsTheSnooze();
    void otherEventsAreIgnored_data();
    void otherEventsAreIgnored();
    void eventsWithConfigurationDoNothing_data();
    void eventsWithConfigurationDoNothing();
    void supportAnswerDependsOnTheResultCode_data();
    void supportAnswerDependsOnTheResultCode();
    void supportAnswerFreesItsContextOnce();
    void supportAnswerWithoutContextIsTolerated();
    void snoozeResponseDependsOnTheResultCode_data();
    void snoozeResponseDependsOnTheResultCode();
    void snoozeIsLoggedWhateverTheResultCode_data();
    void snoozeIsLoggedWhateverTheResultCode();
    void snoozeListIsReplaced();
    void snoozeListOfAnotherTypeIsConverted_data();
    void snoozeListOfAnotherTypeIsConverted();
    void otherCommandsAreIgnored_data();
    void otherCommandsAreIgnored();
    void onlyTheSupportAnswerTouchesItsContext();
    void responsesWithConfigurationDoNothing_data();
    void responsesWithConfigurationDoNothing();
};

namespace {

const QString InternalError = u"{2C85B19D-AE6F-45D9-B8FE-DC436FCBEABE}FrameworkInternalError"_s;

QVariantMap nodeData(const QString &nodeID, int type)
{
    return {{u"nodeID"_s, nodeID}, {u"type"_s, type}, {u"timestamp"_s, 0}};
}

QVariantMap usage(int cpu)
{
    return {{u"cpuPercentage"_s, cpu}, {u"memPercentage"_s, 20}};
}

bool isSnoozed(TestHost &host, const QString &stationID)
{
    Q_EMIT host.topology.nodeStatusChanged(1, stationID, false);
    const bool listed = host.errorKeys().contains(u"4_"_s + stationID);
    Q_EMIT host.topology.nodeStatusChanged(1, stationID, true);
    return !listed;
}

} // namespace

void tst_Dispatch::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_Dispatch::resourceReportOfTheFocusStationIsShownThenNotified()
{
    TestHost host;
    host.object()->setProperty("focusStationResource", u"st1"_s);
    host.log.take();
    host.event(u"SystemResChanged"_s, usage(10), u"st1"_s);
    QCOMPARE(host.log.take(), QStringList({u"systemResourceChanged(10, 20, [])"_s,
                                           u"notifySystemResourceUpdated()"_s}));
}

void tst_Dispatch::resourceReportOfAnotherStationIsNotified()
{
    TestHost host;
    host.event(u"SystemResChanged"_s, usage(100), u"st1"_s);
    QCOMPARE(host.log.take(), QStringList{u"notifySystemResourceUpdated()"_s});
    QCOMPARE(host.errorKeys(), QStringList{u"0_st1"_s});
}

void tst_Dispatch::invalidResourceReportIsNotifiedAllTheSame()
{
    TestHost host;
    host.event(u"SystemResChanged"_s, u"text"_s);
    QCOMPARE(host.log.take(), QStringList{u"notifySystemResourceUpdated()"_s});
}

void tst_Dispatch::capacityEventBecomesASignal()
{
    TestHost host;
    host.event(u"ServerReachingLimited"_s,
               QVariantMap{{u"serverName"_s, u"Main"_s}, {u"virtualSizePercentage"_s, 91.5}});
    QCOMPARE(host.log.take(), QStringList{u"notifyServerReachingLimited(\"Main\", 91.5)"_s});
}

void tst_Dispatch::snoozeEventTakesTheErrorAway()
{
    TestHost host;
    Q_EMIT host.topology.nodeStatusChanged(1, u"st1"_s, false);
    host.event(u"SnoozeError"_s, nodeData(u"st1"_s, 4));
    QCOMPARE(host.errorKeys(), QStringList());
    QVERIFY(isSnoozed(host, u"st1"_s));
    QCOMPARE(host.log.take(), QStringList());
}

void tst_Dispatch::expiryEventBringsTheErrorBack()
{
    TestHost host;
    host.event(u"DeviceStillError"_s, nodeData(u"st1"_s, 4));
    QCOMPARE(host.errorKeys(), QStringList{u"4_st1"_s});
}

void tst_Dispatch::releaseEventLiftsTheSnooze()
{
    TestHost host;
    host.event(u"SnoozeError"_s, nodeData(u"st1"_s, 4));
    QVERIFY(isSnoozed(host, u"st1"_s));
    host.event(u"RemoveSnooze"_s, u"st1"_s);
    QVERIFY(!isSnoozed(host, u"st1"_s));
}

void tst_Dispatch::otherEventsAreIgnored_data()
{
    QTest::addColumn<QString>("name");
    for (const char *const name :
         {"systemreschanged", "SYSTEMRESCHANGED", "systemResChanged", "SystemResChanged ",
          "serverReachingLimited", "snoozeError", "deviceStillError", "removeSnooze", "unknown", "",
          "setSnooze", "getSnoozeList"})
        QTest::addRow("'%s'", name) << QString::fromLatin1(name);
}

void tst_Dispatch::otherEventsAreIgnored()
{
    QFETCH(const QString, name);
    TestHost host;
    QVariantMap data = usage(100);
    data.insert(nodeData(u"st1"_s, 4));
    host.event(name, data);
    QCOMPARE(host.log.take(), QStringList());
    QCOMPARE(host.errorKeys(), QStringList());
    QVERIFY(!isSnoozed(host, u"st1"_s));
}

void tst_Dispatch::eventsWithConfigurationDoNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("data");
    QTest::newRow("resources") << u"SystemResChanged"_s << QVariant(usage(100));
    QTest::newRow("capacity") << u"ServerReachingLimited"_s << QVariant(QVariantMap());
    QTest::newRow("snooze") << u"SnoozeError"_s << QVariant(nodeData(u"st1"_s, 4));
    QTest::newRow("expiry") << u"DeviceStillError"_s << QVariant(nodeData(u"st1"_s, 4));
    QTest::newRow("release") << u"RemoveSnooze"_s << QVariant(u"snoozed"_s);
}

void tst_Dispatch::eventsWithConfigurationDoNothing()
{
    QFETCH(const QString, name);
    QFETCH(const QVariant, data);
    TestHost host;
    host.respond(u"getSnoozeList"_s, QStringList{u"snoozed"_s});
    host.plugin()->EventProcessorEx(name, nullptr, 0, 0, 0, data, QString());
    QCOMPARE(host.log.take(), QStringList());
    QCOMPARE(host.errorKeys(), QStringList());
    QVERIFY(!isSnoozed(host, u"st1"_s));
    QVERIFY(isSnoozed(host, u"snoozed"_s));
}

void tst_Dispatch::supportAnswerDependsOnTheResultCode_data()
{
    QTest::addColumn<QString>("resultCode");
    QTest::addColumn<bool>("isSupported");
    QTest::newRow("success") << u"0"_s << true;
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("another failure") << u"17"_s << true;
    QTest::newRow("internal error") << InternalError << false;
    QTest::newRow("internal error in lower case") << InternalError.toLower() << true;
    QTest::newRow("internal error and more") << InternalError + u'1' << true;
    QTest::newRow("part of internal error") << u"FrameworkInternalError"_s << true;
}

void tst_Dispatch::supportAnswerDependsOnTheResultCode()
{
    QFETCH(const QString, resultCode);
    QFETCH(const bool, isSupported);
    TestHost host;
    QVERIFY(host.ask<bool>("checkSupportSystemMonitor", u"a/b"_s));
    host.log.take();
    host.respond(u"isSupportSystemMonitor"_s, {}, resultCode,
                 host.framework.commands().first().context);
    QCOMPARE(host.log.take(), QStringList{u"isSupportSystemMonitor(\"a/b\", %1)"_s.arg(
                                  isSupported ? u"true"_s : u"false"_s)});
}

// The context shares the id's text: the id stands alone again exactly when the context is gone.
void tst_Dispatch::supportAnswerFreesItsContextOnce()
{
    TestHost host;
    const QString stationID = QString::number(1);
    QVERIFY(host.ask<bool>("checkSupportSystemMonitor", stationID));
    void *const context = host.framework.commands().first().context;
    QVERIFY(context);
    QCOMPARE(*static_cast<QString *>(context), stationID);

    host.log.take();
    QCOMPARE(host.framework.commands().size(), 1);
    host.framework.forgetCommands();
    QVERIFY(!stationID.isDetached());
    host.respond(u"isSupportSystemMonitor"_s, {}, u"0"_s, context);
    QVERIFY(stationID.isDetached());
}

void tst_Dispatch::supportAnswerWithoutContextIsTolerated()
{
    TestHost host;
    host.respond(u"isSupportSystemMonitor"_s);
    host.respond(u"isSupportSystemMonitor"_s, {}, InternalError);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_Dispatch::snoozeResponseDependsOnTheResultCode_data()
{
    QTest::addColumn<QString>("resultCode");
    QTest::addColumn<QString>("response");
    QTest::newRow("success") << u"0"_s << u"setSnoozeResponse(true)"_s;
    for (const QString &code : {u"00"_s, QString(), u"1"_s, u" 0"_s, u"false"_s, InternalError})
        QTest::addRow("'%s'", qPrintable(code)) << code << u"setSnoozeResponse(false)"_s;
}

void tst_Dispatch::snoozeResponseDependsOnTheResultCode()
{
    QFETCH(const QString, resultCode);
    QFETCH(const QString, response);
    TestHost host;
    host.respond(u"setSnooze"_s, nodeData(u"st1"_s, 4), resultCode);
    QCOMPARE(host.log.take(), QStringList{response});
}

void tst_Dispatch::snoozeIsLoggedWhateverTheResultCode_data()
{
    snoozeResponseDependsOnTheResultCode_data();
}

void tst_Dispatch::snoozeIsLoggedWhateverTheResultCode()
{
    QFETCH(const QString, resultCode);
    QFETCH(const QString, response);
    TestHost host;
    Q_EMIT host.topology.nodeStatusChanged(1, u"st1"_s, false);
    host.respond(u"setSnooze"_s, nodeData(u"st1"_s, 4), resultCode);
    const QStringList lines = host.log.take();
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[0], response);
    QCOMPARE(lines[1], u"find D8C607070A81469B8CA4FF2E107DB6AB"_s);
    QVERIFY(lines[2].startsWith(u"addOperationalLog \"AddDashboardSnooze\" "_s));
}

void tst_Dispatch::snoozeListIsReplaced()
{
    TestHost host;
    host.respond(u"getSnoozeList"_s, QStringList{u"a"_s, u"b"_s});
    QVERIFY(isSnoozed(host, u"a"_s));
    host.respond(u"getSnoozeList"_s, QStringList{u"b"_s, u"c"_s});
    QVERIFY(!isSnoozed(host, u"a"_s));
    QVERIFY(isSnoozed(host, u"b"_s));
    QVERIFY(isSnoozed(host, u"c"_s));
    host.respond(u"getSnoozeList"_s, QStringList());
    QVERIFY(!isSnoozed(host, u"b"_s));
    QCOMPARE(host.log.take(), QStringList());
}

void tst_Dispatch::snoozeListOfAnotherTypeIsConverted_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<bool>("isListed");
    QTest::newRow("string list") << QVariant(QStringList{u"st1"_s}) << true;
    QTest::newRow("list of strings") << QVariant(QVariantList{u"st1"_s}) << true;
    QTest::newRow("invalid") << QVariant() << false;
    QTest::newRow("number") << QVariant(7) << false;
    QTest::newRow("map") << QVariant(QVariantMap{{u"st1"_s, u"st1"_s}}) << false;
}

void tst_Dispatch::snoozeListOfAnotherTypeIsConverted()
{
    QFETCH(const QVariant, data);
    QFETCH(const bool, isListed);
    TestHost host;
    host.respond(u"getSnoozeList"_s, QStringList{u"old"_s});
    host.respond(u"getSnoozeList"_s, data);
    QCOMPARE(isSnoozed(host, u"st1"_s), isListed);
    QVERIFY(!isSnoozed(host, u"old"_s));
}

void tst_Dispatch::otherCommandsAreIgnored_data()
{
    QTest::addColumn<QString>("command");
    for (const char *const command :
         {"issupportsystemmonitor", "IsSupportSystemMonitor", "SetSnooze", "setsnooze",
          "GetSnoozeList", "reconnectCameras", "reconnectSubstations", "ReconnectSubstations",
          "GetNodeInfo", "SnoozeError", ""})
        QTest::addRow("'%s'", command) << QString::fromLatin1(command);
}

void tst_Dispatch::otherCommandsAreIgnored()
{
    QFETCH(const QString, command);
    TestHost host;
    QString context = u"st1"_s;
    host.respond(command, QStringList{u"st1"_s}, u"0"_s, &context);
    QCOMPARE(host.log.take(), QStringList());
    QVERIFY(!isSnoozed(host, u"st1"_s));
    QCOMPARE(context, u"st1"_s);
}

void tst_Dispatch::onlyTheSupportAnswerTouchesItsContext()
{
    TestHost host;
    QString context = u"mine"_s;
    host.respond(u"setSnooze"_s, nodeData(u"st1"_s, 4), u"0"_s, &context);
    host.respond(u"getSnoozeList"_s, {}, u"0"_s, &context);
    QCOMPARE(context, u"mine"_s);
}

void tst_Dispatch::responsesWithConfigurationDoNothing_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("support") << u"isSupportSystemMonitor"_s;
    QTest::newRow("snooze") << u"setSnooze"_s;
    QTest::newRow("snooze list") << u"getSnoozeList"_s;
}

void tst_Dispatch::responsesWithConfigurationDoNothing()
{
    QFETCH(const QString, command);
    TestHost host;
    QString context = u"mine"_s;
    host.plugin()->CommandProcessorEx(command, nullptr, QStringList{u"st1"_s}, &context, u"0"_s,
                                      QString(), false, QString());
    QCOMPARE(host.log.take(), QStringList());
    QCOMPARE(context, u"mine"_s);
    QVERIFY(!isSnoozed(host, u"st1"_s));
}

QTEST_GUILESS_MAIN(tst_Dispatch)
#include "tst_Dispatch.moc"
