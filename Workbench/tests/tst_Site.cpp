#include "Site.h"

#include "TestSite.h"

#include <QTest>

class tst_Site : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsNodesAtAnyDepth();
    void findsNothingUnderUnknownIds_data();
    void findsNothingUnderUnknownIds();
    void visitsAStationBeforeThoseBelowIt();
    void visitsAStationWithThoseBelowIt();
    void countsStationsAndCameras();
    void removesACameraOnce();
    void removesAStationWithAllBelowIt();
    void tellsWhetherAVolumeIsLost();
    void comparesRecordedWithRequiredDays();
    void idsAreJoinedAndSplitAtTheLastSlash();
};

void tst_Site::findsNodesAtAnyDepth()
{
    Site site = testSite();
    QCOMPARE(site.findStation(QStringLiteral("south"))->name, QStringLiteral("South"));
    QCOMPARE(site.findStation(QStringLiteral("north/annex"))->name, QStringLiteral("Annex"));
    QCOMPARE(site.findCamera(QStringLiteral("north/c2"))->name, QStringLiteral("Yard"));
    QCOMPARE(std::as_const(site).findCamera(QStringLiteral("north/annex/c1"))->name,
             QStringLiteral("Stairs"));
    Station &north = *site.findStation(QStringLiteral("north"));
    QCOMPARE(north.findVolume(QStringLiteral("v2"))->name, QStringLiteral("Archive B"));
    QCOMPARE(north.findRecordingGroup(QStringLiteral("g1"))->name, QStringLiteral("Entrances"));
}

void tst_Site::findsNothingUnderUnknownIds_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("empty") << QString();
    QTest::newRow("no such part") << QStringLiteral("north/c9");
    QTest::newRow("no such parent") << QStringLiteral("west/c1");
    QTest::newRow("own part alone") << QStringLiteral("c1");
    QTest::newRow("other case") << QStringLiteral("North");
    QTest::newRow("beginning of an id") << QStringLiteral("nor");
}

void tst_Site::findsNothingUnderUnknownIds()
{
    QFETCH(QString, id);
    Site site = testSite();
    QVERIFY(!site.findStation(id));
    QVERIFY(!site.findCamera(id));
    QVERIFY(!site.removeStation(id));
    QVERIFY(!site.removeCamera(id));
    Station &north = *site.findStation(QStringLiteral("north"));
    QVERIFY(!north.findVolume(id));
    QVERIFY(!north.findRecordingGroup(id));
}

void tst_Site::visitsAStationBeforeThoseBelowIt()
{
    QStringList visited;
    testSite().forEachStation([&visited](const Station &station) { visited.append(station.id); });
    QCOMPARE(visited, QStringList({QStringLiteral("north"), QStringLiteral("north/annex"),
                                   QStringLiteral("south")}));
}

void tst_Site::visitsAStationWithThoseBelowIt()
{
    QStringList visited;
    testSite().stations.front().forEachStation(
        [&visited](const Station &station) { visited.append(station.id); });
    QCOMPARE(visited, QStringList({QStringLiteral("north"), QStringLiteral("north/annex")}));
}

void tst_Site::countsStationsAndCameras()
{
    QCOMPARE(testSite().stationCount(), 3);
    QCOMPARE(testSite().cameraCount(), 4);
    QCOMPARE(Site().stationCount(), 0);
    QCOMPARE(Site().cameraCount(), 0);
}

void tst_Site::removesACameraOnce()
{
    Site site = testSite();
    QVERIFY(site.removeCamera(QStringLiteral("north/c1")));
    QVERIFY(!site.removeCamera(QStringLiteral("north/c1")));
    QVERIFY(site.findCamera(QStringLiteral("north/c2")));
}

void tst_Site::removesAStationWithAllBelowIt()
{
    Site site = testSite();
    QVERIFY(site.removeStation(QStringLiteral("north/annex")));
    QVERIFY(!site.findCamera(QStringLiteral("north/annex/c1")));
    QVERIFY(site.removeStation(QStringLiteral("north")));
    QVERIFY(!site.findCamera(QStringLiteral("north/c1")));
    QCOMPARE(site.stationCount(), 1);
}

void tst_Site::tellsWhetherAVolumeIsLost()
{
    Site site = testSite();
    Station &north = *site.findStation(QStringLiteral("north"));
    QVERIFY(!north.hasLostVolume());
    north.findVolume(QStringLiteral("v2"))->connected = false;
    QVERIFY(north.hasLostVolume());
    QVERIFY(!site.findStation(QStringLiteral("south"))->hasLostVolume());
}

void tst_Site::comparesRecordedWithRequiredDays()
{
    RecordingGroup group{{}, {}, 29, 30};
    QVERIFY(!group.isSufficient());
    group.recordedDays = 30;
    QVERIFY(group.isSufficient());
}

void tst_Site::idsAreJoinedAndSplitAtTheLastSlash()
{
    QCOMPARE(parentNodeId(QStringLiteral("a/b/c")), QStringLiteral("a/b"));
    QCOMPARE(parentNodeId(QStringLiteral("a")), QString());
    QCOMPARE(childNodeId(QStringLiteral("a/b"), QStringLiteral("c")), QStringLiteral("a/b/c"));
    QCOMPARE(childNodeId(QString(), QStringLiteral("a")), QStringLiteral("a"));
}

QTEST_GUILESS_MAIN(tst_Site)
#include "tst_Site.moc"
