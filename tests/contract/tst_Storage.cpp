#include "ModelRoles.h"
#include "TestHost.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Disconnected volumes and recording groups with too few recording days.
class tst_Storage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void volumeIsListedOnce();
    void volumeIsClearedByTheWholeStationId_data();
    void volumeIsClearedByTheWholeStationId();
    void clearingAVolumeLeavesOtherErrorsAlone();
    void clearingVolumesTakesTheRightRows();
    void clearedVolumeMayBeListedAgain();
    void volumeWithoutStationIsClearedWithoutStation();
    void groupsAreListedOneByOne();
    void repeatedReportRelabelsTheGroup();
    void relabellingFollowsTheNameOfTheStation();
    void relabellingAnnouncesOneChangedRole();
    void sufficientGroupIsClearedAlone();
    void sufficientGroupThatIsNotListedChangesNothing();
    void groupWithoutIdIsKeyedByItsStation();
    void labelIsFilledInOneGo();
    void nothingIsAskedOfTheHost();
};

namespace {

void loseVolume(TestHost &host, const QString &stationID)
{
    host.invoke("monitorVolumeStatus", stationID);
}

void clearVolume(TestHost &host, const QString &stationID)
{
    host.invoke("removeVolumeError", stationID);
}

void reportGroup(TestHost &host, const QString &stationID, const QString &name, const QString &id)
{
    host.invoke("monitorInsufficientRecordingDays", stationID, name, id);
}

void clearGroup(TestHost &host, const QString &stationID, const QString &id)
{
    host.invoke("monitorSufficientRecordingGroup", stationID, id);
}

QString origin(TestHost &host, int row = 0)
{
    return host.error(row, ErrorRole::TriggerDeviceName).toString();
}

} // namespace

void tst_Storage::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_Storage::volumeIsListedOnce()
{
    TestHost host;
    loseVolume(host, u"st1"_s);
    const QVariant time = host.error(0, ErrorRole::Timestamp);
    loseVolume(host, u"st1"_s);
    loseVolume(host, u"st2"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"5_st1"_s, u"5_st2"_s}));
    QCOMPARE(host.error(0, ErrorRole::Timestamp), time);
}

void tst_Storage::volumeIsClearedByTheWholeStationId_data()
{
    QTest::addColumn<QString>("stationID");
    QTest::addColumn<QStringList>("keys");
    const QStringList both{u"5_st1"_s, u"5_st10"_s};
    QTest::newRow("the first") << u"st1"_s << QStringList{u"5_st10"_s};
    QTest::newRow("the second") << u"st10"_s << QStringList{u"5_st1"_s};
    QTest::newRow("beginning") << u"st"_s << both;
    QTest::newRow("upper case") << u"ST1"_s << both;
    QTest::newRow("unknown") << u"st2"_s << both;
    QTest::newRow("empty") << QString() << both;
}

void tst_Storage::volumeIsClearedByTheWholeStationId()
{
    QFETCH(const QString, stationID);
    QFETCH(const QStringList, keys);
    TestHost host;
    loseVolume(host, u"st1"_s);
    loseVolume(host, u"st10"_s);
    clearVolume(host, stationID);
    QCOMPARE(host.errorKeys(), keys);
}

void tst_Storage::clearingAVolumeLeavesOtherErrorsAlone()
{
    TestHost host;
    host.invoke("monitorCPUUsage", u"st1"_s, 100);
    Q_EMIT host.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    loseVolume(host, u"st1"_s);
    reportGroup(host, u"st1"_s, u"Vault"_s, u"g1"_s);
    clearVolume(host, u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"0_st1"_s, u"3_st1/cam1"_s, u"7_st1_g1"_s}));
}

void tst_Storage::clearingVolumesTakesTheRightRows()
{
    TestHost host;
    const QAbstractItemModelTester tester(host.errors());
    for (const QString &id : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
        loseVolume(host, id);
    clearVolume(host, u"b"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"5_a"_s, u"5_c"_s, u"5_d"_s}));
    clearVolume(host, u"a"_s);
    clearVolume(host, u"d"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"5_c"_s}));
}

void tst_Storage::clearedVolumeMayBeListedAgain()
{
    TestHost host;
    clearVolume(host, u"st1"_s);
    loseVolume(host, u"st1"_s);
    clearVolume(host, u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList());
    loseVolume(host, u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"5_st1"_s}));
}

void tst_Storage::volumeWithoutStationIsClearedWithoutStation()
{
    TestHost host;
    loseVolume(host, QString());
    loseVolume(host, u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"5_"_s, u"5_st1"_s}));
    clearVolume(host, QString());
    QCOMPARE(host.errorKeys(), QStringList({u"5_st1"_s}));
}

void tst_Storage::groupsAreListedOneByOne()
{
    TestHost host;
    reportGroup(host, u"st1"_s, u"Vault"_s, u"g1"_s);
    reportGroup(host, u"st1"_s, u"Attic"_s, u"g2"_s);
    reportGroup(host, u"st2"_s, u"Vault"_s, u"g1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"7_st1_g1"_s, u"7_st1_g2"_s, u"7_st2_g1"_s}));
    QCOMPARE(host.error(1, ErrorRole::DeviceID).toString(), u"st1"_s);
}

void tst_Storage::repeatedReportRelabelsTheGroup()
{
    TestHost host;
    reportGroup(host, u"st1"_s, u"Vault"_s, u"g1"_s);
    reportGroup(host, u"st2"_s, u"Other"_s, u"g1"_s);
    const QVariant time = host.error(0, ErrorRole::Timestamp);
    reportGroup(host, u"st1"_s, u"Renamed"_s, u"g1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"7_st1_g1"_s, u"7_st2_g1"_s}));
    QCOMPARE(origin(host, 0), u"Station:  / Archive: Renamed"_s);
    QCOMPARE(origin(host, 1), u"Station:  / Archive: Other"_s);
    QCOMPARE(host.error(0, ErrorRole::Timestamp), time);
}

void tst_Storage::relabellingFollowsTheNameOfTheStation()
{
    TestHost host;
    reportGroup(host, u"st1"_s, u"Vault"_s, u"g1"_s);
    host.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    reportGroup(host, u"st1"_s, u"Vault"_s, u"g1"_s);
    QCOMPARE(origin(host), u"Station: Lobby / Archive: Vault"_s);
}

void tst_Storage::relabellingAnnouncesOneChangedRole()
{
    TestHost host;
    reportGroup(host, u"st1"_s, u"Vault"_s, u"g1"_s);
    QSignalSpy changes(host.errors(), &QAbstractItemModel::dataChanged);
    reportGroup(host, u"st1"_s, u"Renamed"_s, u"g1"_s);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes[0][2].value<QList<int>>(), QList<int>{ErrorRole::TriggerDeviceName});
}

void tst_Storage::sufficientGroupIsClearedAlone()
{
    TestHost host;
    reportGroup(host, u"st1"_s, u"Vault"_s, u"g1"_s);
    reportGroup(host, u"st1"_s, u"Attic"_s, u"g2"_s);
    clearGroup(host, u"st1"_s, u"g1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"7_st1_g2"_s}));
}

void tst_Storage::sufficientGroupThatIsNotListedChangesNothing()
{
    TestHost host;
    reportGroup(host, u"st1"_s, u"Vault"_s, u"g1"_s);
    clearGroup(host, u"st1"_s, u"g"_s);
    clearGroup(host, u"st1"_s, u"G1"_s);
    clearGroup(host, u"st1"_s, QString());
    clearGroup(host, u"st2"_s, u"g1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"7_st1_g1"_s}));
}

void tst_Storage::groupWithoutIdIsKeyedByItsStation()
{
    TestHost host;
    reportGroup(host, u"st1"_s, u"Vault"_s, QString());
    reportGroup(host, u"st1"_s, u"Attic"_s, u""_s);
    QCOMPARE(host.errorKeys(), QStringList({u"7_st1"_s}));
    QCOMPARE(origin(host), u"Station:  / Archive: Attic"_s);
    clearGroup(host, u"st1"_s, u""_s);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_Storage::labelIsFilledInOneGo()
{
    TestHost host;
    host.topologyModel.addStation(u"st1"_s, u"%4 %2"_s);
    reportGroup(host, u"st1"_s, u"%1 %3"_s, u"g1"_s);
    QCOMPARE(origin(host), u"Station: %4 %2 / Archive: %1 %3"_s);
    reportGroup(host, u"st1"_s, u"%2"_s, u"g1"_s);
    QCOMPARE(origin(host), u"Station: %4 %2 / Archive: %2"_s);
}

void tst_Storage::nothingIsAskedOfTheHost()
{
    TestHost host;
    loseVolume(host, u"st1"_s);
    clearVolume(host, u"st1"_s);
    reportGroup(host, u"st1"_s, u"Vault"_s, u"g1"_s);
    clearGroup(host, u"st1"_s, u"g1"_s);
    QCOMPARE(host.log.take(), QStringList());
}

QTEST_GUILESS_MAIN(tst_Storage)
#include "tst_Storage.moc"
