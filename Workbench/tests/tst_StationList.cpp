#include "StationList.h"

#include "PrintedValue.h"
#include "TestSite.h"
#include "TopologyPlugin.h"

#include <QTest>

class tst_StationList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsEveryStationWithItsParent();
    void emptySiteHasNone();
    void topologyOfASiteHasTheSame();
};

void tst_StationList::listsEveryStationWithItsParent()
{
    Site site = testSite();
    site.findStation(QStringLiteral("north/annex"))->connected = false;
    const QVariantList list = stationList(site);
    QCOMPARE(list.size(), 3);
    QCOMPARE(printedValue(list.at(0)),
             QStringLiteral(R"({"connected": true, "name": "North", "parentID": "", )"
                            R"("stationID": "north"})"));
    QCOMPARE(printedValue(list.at(1)),
             QStringLiteral(R"({"connected": false, "name": "Annex", "parentID": "north", )"
                            R"("stationID": "north/annex"})"));
    QCOMPARE(list.at(2).toMap().value(QStringLiteral("stationID")).toString(),
             QStringLiteral("south"));
}

void tst_StationList::emptySiteHasNone()
{
    QVERIFY(stationList(Site()).isEmpty());
    QVERIFY(stationList(QStandardItemModel()).isEmpty());
}

void tst_StationList::topologyOfASiteHasTheSame()
{
    Site site = testSite();
    site.findStation(QStringLiteral("north/annex"))->connected = false;
    TopologyPlugin topology;
    topology.setSite(site);
    const auto &model = *static_cast<QStandardItemModel *>(topology.getStandardTopologyModel());
    QCOMPARE(stationList(model), stationList(site));
}

QTEST_GUILESS_MAIN(tst_StationList)
#include "tst_StationList.moc"
