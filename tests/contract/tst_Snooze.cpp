#include "ModelRoles.h"
#include "TestHost.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Snoozing disconnections: the request, the server's events, and what they do to the list.
class tst_Snooze : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void requestCarriesNodeTimeAndType_data();
    void requestCarriesNodeTimeAndType();
    void requestReturnsWhatTheHostAnswers();
    void requestLeavesTheErrorListed();
    void confirmationTakesTheErrorOffOnce();
    void confirmationWithoutErrorIsKept();
    void confirmationTakesOffTheErrorOfItsTypeOnly();
    void snoozedStationIsNotListedAgain();
    void snoozedCameraIsNotListedAgain();
    void snoozeCoversBothKindsOfTheSameId();
    void snoozedStationStillClearsItsCameras();
    void secondConfirmationAddsNoSecondCopy();
    void expiryBringsTheErrorBackInOneGo_data();
    void expiryBringsTheErrorBackInOneGo();
    void expiryLeavesAListedErrorAsItIs();
    void expiryOfAnotherTypeOnlyEndsTheSnooze_data();
    void expiryOfAnotherTypeOnlyEndsTheSnooze();
    void releaseWaitsForTheNextReport();
    void releaseOfAnUnknownIdIsIgnored();
    void releaseTakesEveryCopy();
    void releaseReadsItsIdAsText();
    void eventsWithoutDataConcernTheEmptyId_data();
    void eventsWithoutDataConcernTheEmptyId();
    void listOfTheServerReplacesOurs();
    void listOfTheServerLeavesTheErrorsAlone();
    void storyOfOneCamera();
};

namespace {

const QString CameraID = u"st1/cam1"_s;

QVariantMap node(const QString &id, int type)
{
    return {{u"nodeID"_s, id}, {u"type"_s, type}};
}

void lose(TestHost &host, int nodeType, const QString &id)
{
    Q_EMIT host.topology.nodeStatusChanged(nodeType, id, false);
}

void snooze(TestHost &host, const QString &id, int type)
{
    host.event(u"SnoozeError"_s, node(id, type));
}

void expire(TestHost &host, const QString &id, int type)
{
    host.event(u"DeviceStillError"_s, node(id, type));
}

void release(TestHost &host, const QString &id)
{
    host.event(u"RemoveSnooze"_s, id);
}

} // namespace

void tst_Snooze::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_Snooze::requestCarriesNodeTimeAndType_data()
{
    QTest::addColumn<QString>("nodeID");
    QTest::addColumn<qlonglong>("timestamp");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("line");
    QTest::newRow("camera") << CameraID << qlonglong(1700000000) << 3
                            << uR"(send setSnooze {"nodeID": "st1/cam1", )"
                               R"("timestamp": 1700000000LL, "type": 3} to "")"_s;
    QTest::newRow("station, beyond 32 bits")
        << u"駅"_s << qlonglong(5000000000) << 4
        << uR"(send setSnooze {"nodeID": "駅", "timestamp": 5000000000LL, "type": 4} to "")"_s;
    QTest::newRow("anything else is passed on")
        << QString() << qlonglong(-1) << 99
        << uR"(send setSnooze {"nodeID": "", "timestamp": -1LL, "type": 99} to "")"_s;
}

void tst_Snooze::requestCarriesNodeTimeAndType()
{
    QFETCH(const QString, nodeID);
    QFETCH(const qlonglong, timestamp);
    QFETCH(const int, type);
    QFETCH(const QString, line);
    TestHost host;
    QVERIFY(host.ask<bool>("setSnooze", nodeID, timestamp, type));
    QCOMPARE(host.log.take(), QStringList{line});
    QCOMPARE(host.framework.commands().first().context, nullptr);
    QCOMPARE(host.framework.commands().first().data.metaType(), QMetaType::fromType<QVariantMap>());
}

void tst_Snooze::requestReturnsWhatTheHostAnswers()
{
    TestHost host;
    host.framework.acceptsCommands = false;
    QVERIFY(!host.ask<bool>("setSnooze", CameraID, qlonglong(1), 3));
    QCOMPARE(host.log.take().size(), 1);
}

void tst_Snooze::requestLeavesTheErrorListed()
{
    TestHost host;
    lose(host, 0, CameraID);
    QVERIFY(host.ask<bool>("setSnooze", CameraID, qlonglong(1), 3));
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s}));
    Q_EMIT host.topology.nodeStatusChanged(0, CameraID, true);
    lose(host, 0, CameraID);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s}));
}

void tst_Snooze::confirmationTakesTheErrorOffOnce()
{
    TestHost host;
    lose(host, 0, CameraID);
    lose(host, 0, u"st1/cam2"_s);
    snooze(host, CameraID, 3);
    snooze(host, CameraID, 3);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam2"_s}));
    QCOMPARE(host.log.take(), QStringList());
}

void tst_Snooze::confirmationWithoutErrorIsKept()
{
    TestHost host;
    snooze(host, CameraID, 3);
    lose(host, 0, CameraID);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_Snooze::confirmationTakesOffTheErrorOfItsTypeOnly()
{
    TestHost host;
    lose(host, 1, u"st1"_s);
    host.invoke("monitorCPUUsage", u"st1"_s, 100);
    host.invoke("monitorNetworkUsage", u"st1"_s, 100, u"en0"_s);
    snooze(host, u"st1"_s, 3);
    snooze(host, u"st1"_s, 2);
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s, u"0_st1"_s, u"2_st1_en0"_s}));
    snooze(host, u"st1"_s, 0);
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s, u"2_st1_en0"_s}));
}

void tst_Snooze::snoozedStationIsNotListedAgain()
{
    TestHost host;
    lose(host, 1, u"st1"_s);
    snooze(host, u"st1"_s, 4);
    lose(host, 1, u"st1"_s);
    host.invoke("monitorNodeStatusForInit", 1, u"st1"_s, false, u"Lobby"_s);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_Snooze::snoozedCameraIsNotListedAgain()
{
    TestHost host;
    lose(host, 0, CameraID);
    snooze(host, CameraID, 3);
    lose(host, 0, CameraID);
    host.invoke("monitorNodeStatusForInit", 0, CameraID, false, u"Door"_s);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_Snooze::snoozeCoversBothKindsOfTheSameId()
{
    TestHost host;
    snooze(host, u"node"_s, 3);
    lose(host, 0, u"node"_s);
    lose(host, 1, u"node"_s);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_Snooze::snoozedStationStillClearsItsCameras()
{
    TestHost host;
    snooze(host, u"st1"_s, 4);
    lose(host, 0, CameraID);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s}));
    lose(host, 1, u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_Snooze::secondConfirmationAddsNoSecondCopy()
{
    TestHost host;
    snooze(host, CameraID, 3);
    snooze(host, CameraID, 3);
    release(host, CameraID);
    lose(host, 0, CameraID);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s}));
}

void tst_Snooze::expiryBringsTheErrorBackInOneGo_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isSnoozed");
    QTest::addColumn<QString>("row");
    const QString camera = uR"("3_st1/cam1" station "st1" device "st1/cam1" type 3 category 2 )"
                           R"(name "Camera disconnected" from "Station: Lobby / Camera: Door")"_s;
    const QString station = uR"("4_st1" station "st1" device "" type 4 category 1 )"
                            R"(name "Station disconnected" from "Station: Lobby")"_s;
    QTest::newRow("camera") << CameraID << 3 << true << camera;
    QTest::newRow("station") << u"st1"_s << 4 << true << station;
    QTest::newRow("camera that was not snoozed") << CameraID << 3 << false << camera;
    QTest::newRow("station that was not snoozed") << u"st1"_s << 4 << false << station;
}

void tst_Snooze::expiryBringsTheErrorBackInOneGo()
{
    QFETCH(const QString, id);
    QFETCH(const int, type);
    QFETCH(const bool, isSnoozed);
    QFETCH(const QString, row);
    TestHost host;
    TopologyModel::addCamera(host.topologyModel.addStation(u"st1"_s, u"Lobby"_s), CameraID,
                             u"Door"_s);
    if (isSnoozed)
        snooze(host, id, type);
    expire(host, id, type);
    QCOMPARE(host.errorRows(), QStringList{row});
}

void tst_Snooze::expiryLeavesAListedErrorAsItIs()
{
    TestHost host;
    lose(host, 0, CameraID);
    const QVariant time = host.error(0, ErrorRole::Timestamp);
    const QStringList rows = host.errorRows();
    expire(host, CameraID, 3);
    QCOMPARE(host.errorRows(), rows);
    QCOMPARE(host.error(0, ErrorRole::Timestamp), time);
}

void tst_Snooze::expiryOfAnotherTypeOnlyEndsTheSnooze_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {-1, 0, 1, 2, 5, 6, 7, 8})
        QTest::addRow("%d", type) << type;
}

void tst_Snooze::expiryOfAnotherTypeOnlyEndsTheSnooze()
{
    QFETCH(const int, type);
    TestHost host;
    snooze(host, CameraID, 3);
    expire(host, CameraID, type);
    QCOMPARE(host.errorKeys(), QStringList());
    lose(host, 0, CameraID);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s}));
}

void tst_Snooze::releaseWaitsForTheNextReport()
{
    TestHost host;
    lose(host, 1, u"st1"_s);
    snooze(host, u"st1"_s, 4);
    release(host, u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList());
    lose(host, 1, u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s}));
}

void tst_Snooze::releaseOfAnUnknownIdIsIgnored()
{
    TestHost host;
    snooze(host, u"st1"_s, 4);
    release(host, u"st"_s);
    release(host, u"ST1"_s);
    release(host, QString());
    lose(host, 1, u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_Snooze::releaseTakesEveryCopy()
{
    TestHost host;
    host.respond(u"getSnoozeList"_s, QStringList{u"st1"_s, u"st2"_s, u"st1"_s});
    release(host, u"st1"_s);
    lose(host, 1, u"st1"_s);
    lose(host, 1, u"st2"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s}));
}

void tst_Snooze::releaseReadsItsIdAsText()
{
    TestHost host;
    snooze(host, u"12"_s, 4);
    host.event(u"RemoveSnooze"_s, QVariantMap{{u"nodeID"_s, u"12"_s}});
    lose(host, 1, u"12"_s);
    QCOMPARE(host.errorKeys(), QStringList());
    host.event(u"RemoveSnooze"_s, 12);
    lose(host, 1, u"12"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"4_12"_s}));
}

void tst_Snooze::eventsWithoutDataConcernTheEmptyId_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::newRow("invalid") << QVariant();
    QTest::newRow("text") << QVariant(u"st1"_s);
    QTest::newRow("empty map") << QVariant(QVariantMap());
    QTest::newRow("keys in another case")
        << QVariant(QVariantMap{{u"NodeID"_s, u"st1"_s}, {u"Type"_s, 4}});
}

void tst_Snooze::eventsWithoutDataConcernTheEmptyId()
{
    QFETCH(const QVariant, data);
    TestHost host;
    lose(host, 1, u"st1"_s);
    host.event(u"SnoozeError"_s, data);
    host.event(u"DeviceStillError"_s, data);
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s}));
    host.event(u"SnoozeError"_s, data);
    lose(host, 0, QString());
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s}));
}

void tst_Snooze::listOfTheServerReplacesOurs()
{
    TestHost host;
    snooze(host, u"st1"_s, 4);
    host.respond(u"getSnoozeList"_s, QStringList{u"st2"_s});
    lose(host, 1, u"st1"_s);
    lose(host, 1, u"st2"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s}));
}

void tst_Snooze::listOfTheServerLeavesTheErrorsAlone()
{
    TestHost host;
    lose(host, 1, u"st1"_s);
    host.respond(u"getSnoozeList"_s, QStringList{u"st1"_s});
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s}));
    host.respond(u"getSnoozeList"_s, QStringList());
    QCOMPARE(host.errorKeys(), QStringList({u"4_st1"_s}));
}

void tst_Snooze::storyOfOneCamera()
{
    TestHost host;
    lose(host, 0, CameraID);
    QVERIFY(host.ask<bool>("setSnooze", CameraID, qlonglong(0), 3));
    host.respond(u"setSnooze"_s, host.framework.commands().first().data);
    snooze(host, CameraID, 3);
    QCOMPARE(host.errorKeys(), QStringList());
    expire(host, CameraID, 3);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s}));
    Q_EMIT host.topology.nodeStatusChanged(0, CameraID, true);
    QCOMPARE(host.errorKeys(), QStringList());
    QCOMPARE(host.log.take(),
             QStringList(
                 {uR"(send setSnooze {"nodeID": "st1/cam1", "timestamp": 0LL, "type": 3} to "")"_s,
                  u"setSnoozeResponse(true)"_s, u"find D8C607070A81469B8CA4FF2E107DB6AB"_s,
                  uR"(addOperationalLog "AddDashboardSnooze" [{"param": "Camera disconnected"}, )"
                  R"({"param": "Station:  / Camera: N/A"}, {"param": "1970/01/01 01:00:00"}])"_s}));
}

QTEST_GUILESS_MAIN(tst_Snooze)
#include "tst_Snooze.moc"
