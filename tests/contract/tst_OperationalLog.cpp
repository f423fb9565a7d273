#include "TestHost.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// What the operational log learns of a snooze. The times are those of Berlin.
class tst_OperationalLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void entryNamesErrorDeviceAndTime();
    void entryOfAStationNamesTheStation();
    void entryTellsWhatTheRowShows();
    void timeIsLocal_data();
    void timeIsLocal();
    void timeMayComeInAnyNumericType_data();
    void timeMayComeInAnyNumericType();
    void snoozeOfAnUnlistedErrorIsNotLogged_data();
    void snoozeOfAnUnlistedErrorIsNotLogged();
    void missingLogPluginIsTolerated();
    void refusalOfTheLogPluginIsTolerated();
    void everyAnswerIsLogged();
};

namespace {

QVariantMap snooze(const QString &id, int type, const QVariant &timestamp = 0)
{
    return {{u"nodeID"_s, id}, {u"type"_s, type}, {u"timestamp"_s, timestamp}};
}

// Loses a camera, answers the snooze of it and returns the last line of the log.
QString entryOf(TestHost &host, const QVariant &timestamp)
{
    Q_EMIT host.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    host.respond(u"setSnooze"_s, snooze(u"st1/cam1"_s, 3, timestamp));
    return host.log.take().constLast();
}

QString entryAt(const QString &time)
{
    return uR"(addOperationalLog "AddDashboardSnooze" [{"param": "Camera disconnected"}, )"
           R"({"param": "Station:  / Camera: N/A"}, {"param": "%1"}])"_s.arg(time);
}

} // namespace

void tst_OperationalLog::initTestCase()
{
    qputenv("TZ", "Europe/Berlin");
}

void tst_OperationalLog::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_OperationalLog::entryNamesErrorDeviceAndTime()
{
    TestHost host;
    TopologyModel::addCamera(host.topologyModel.addStation(u"st1"_s, u"Lobby"_s), u"st1/cam1"_s,
                             u"Door"_s);
    QCOMPARE(entryOf(host, 1700000000),
             uR"(addOperationalLog "AddDashboardSnooze" [{"param": "Camera disconnected"}, )"
             R"({"param": "Station: Lobby / Camera: Door"}, {"param": "2023/11/14 23:13:20"}])"_s);
}

void tst_OperationalLog::entryOfAStationNamesTheStation()
{
    TestHost host;
    host.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    Q_EMIT host.topology.nodeStatusChanged(1, u"st1"_s, false);
    host.respond(u"setSnooze"_s, snooze(u"st1"_s, 4));
    QCOMPARE(host.log.take(),
             QStringList({u"setSnoozeResponse(true)"_s, u"find D8C607070A81469B8CA4FF2E107DB6AB"_s,
                          uR"(addOperationalLog "AddDashboardSnooze" )"
                          R"([{"param": "Station disconnected"}, {"param": "Station: Lobby"}, )"
                          R"({"param": "1970/01/01 01:00:00"}])"_s}));
}

// The row was named when it was raised; the tree may have changed since.
void tst_OperationalLog::entryTellsWhatTheRowShows()
{
    TestHost host;
    host.invoke("monitorNodeStatusForInit", 1, u"st1"_s, false, u"Named by the walk"_s);
    host.topologyModel.addStation(u"st1"_s, u"Renamed"_s);
    host.respond(u"setSnooze"_s, snooze(u"st1"_s, 4));
    QVERIFY(host.log.take().constLast().contains(uR"({"param": "Named by the walk"})"_s));
}

void tst_OperationalLog::timeIsLocal_data()
{
    QTest::addColumn<qlonglong>("timestamp");
    QTest::addColumn<QString>("time");
    QTest::newRow("epoch") << qlonglong(0) << u"1970/01/01 01:00:00"_s;
    QTest::newRow("winter morning") << qlonglong(1705305909) << u"2024/01/15 09:05:09"_s;
    QTest::newRow("winter afternoon") << qlonglong(1705323600) << u"2024/01/15 14:00:00"_s;
    QTest::newRow("winter night") << qlonglong(1705359599) << u"2024/01/15 23:59:59"_s;
    QTest::newRow("winter midnight") << qlonglong(1705359600) << u"2024/01/16 00:00:00"_s;
    QTest::newRow("summer afternoon") << qlonglong(1720007130) << u"2024/07/03 13:45:30"_s;
    QTest::newRow("last second of winter time")
        << qlonglong(1711846799) << u"2024/03/31 01:59:59"_s;
    QTest::newRow("first second of summer time")
        << qlonglong(1711846800) << u"2024/03/31 03:00:00"_s;
    QTest::newRow("hour that comes twice, first")
        << qlonglong(1729987200) << u"2024/10/27 02:00:00"_s;
    QTest::newRow("hour that comes twice, again")
        << qlonglong(1729990800) << u"2024/10/27 02:00:00"_s;
    QTest::newRow("beyond 32 bits") << qlonglong(4294967296) << u"2106/02/07 07:28:16"_s;
}

void tst_OperationalLog::timeIsLocal()
{
    QFETCH(const qlonglong, timestamp);
    QFETCH(const QString, time);
    TestHost host;
    QCOMPARE(entryOf(host, timestamp), entryAt(time));
}

void tst_OperationalLog::timeMayComeInAnyNumericType_data()
{
    QTest::addColumn<QVariant>("timestamp");
    QTest::newRow("int") << QVariant(1720007130);
    QTest::newRow("unsigned int") << QVariant(1720007130u);
    QTest::newRow("unsigned 64-bit integer") << QVariant(quint64(1720007130));
    QTest::newRow("double") << QVariant(1720007130.0);
    QTest::newRow("text") << QVariant(u"1720007130"_s);
}

void tst_OperationalLog::timeMayComeInAnyNumericType()
{
    QFETCH(const QVariant, timestamp);
    TestHost host;
    QCOMPARE(entryOf(host, timestamp), entryAt(u"2024/07/03 13:45:30"_s));
}

void tst_OperationalLog::snoozeOfAnUnlistedErrorIsNotLogged_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::newRow("another node") << QVariant(snooze(u"st1/cam2"_s, 3));
    QTest::newRow("another type") << QVariant(snooze(u"st1/cam1"_s, 4));
    QTest::newRow("another case") << QVariant(snooze(u"ST1/CAM1"_s, 3));
    QTest::newRow("no data") << QVariant();
    QTest::newRow("text") << QVariant(u"st1/cam1"_s);
}

void tst_OperationalLog::snoozeOfAnUnlistedErrorIsNotLogged()
{
    QFETCH(const QVariant, data);
    TestHost host;
    Q_EMIT host.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    host.respond(u"setSnooze"_s, data);
    QCOMPARE(host.log.take(), QStringList{u"setSnoozeResponse(true)"_s});
}

void tst_OperationalLog::missingLogPluginIsTolerated()
{
    TestHost host;
    host.framework.forgetPlugin(PluginID::OperationalLog);
    QCOMPARE(entryOf(host, 0), u"find D8C607070A81469B8CA4FF2E107DB6AB"_s);
}

void tst_OperationalLog::refusalOfTheLogPluginIsTolerated()
{
    TestHost host;
    host.operationalLog.accepts = false;
    QCOMPARE(entryOf(host, 0), entryAt(u"1970/01/01 01:00:00"_s));
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s}));
}

void tst_OperationalLog::everyAnswerIsLogged()
{
    TestHost host;
    QCOMPARE(entryOf(host, 0), entryAt(u"1970/01/01 01:00:00"_s));
    QCOMPARE(entryOf(host, 0), entryAt(u"1970/01/01 01:00:00"_s));
}

QTEST_GUILESS_MAIN(tst_OperationalLog)
#include "tst_OperationalLog.moc"
