#include "DashboardSnoozes.h"

#include "PrintedValue.h"
#include "TestSite.h"

#include <QTest>

class tst_DashboardSnoozes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesCamerasAndStations();
    void unknownNodesHaveNoName();
    void noSnoozesMakeAnEmptyList();
};

void tst_DashboardSnoozes::namesCamerasAndStations()
{
    const QVariantList list =
        dashboardSnoozes(testSite(), {{QStringLiteral("north/c1"), 3, 1'780'660'800},
                                      {QStringLiteral("south"), 4, 7}});
    QCOMPARE(list.size(), 2);
    QCOMPARE(printedValue(list.at(0)), QStringLiteral(R"({"name": "Door", "nodeID": "north/c1", )"
                                                      R"("type": 3, "until": 1780660800000LL})"));
    QCOMPARE(list.at(1).toMap().value(QStringLiteral("name")).toString(), QStringLiteral("South"));
}

void tst_DashboardSnoozes::unknownNodesHaveNoName()
{
    const QVariantList list = dashboardSnoozes(testSite(), {{QStringLiteral("gone"), 4, 1}});
    QCOMPARE(list.at(0).toMap().value(QStringLiteral("name")).toString(), QString());
}

void tst_DashboardSnoozes::noSnoozesMakeAnEmptyList()
{
    QVERIFY(dashboardSnoozes(testSite(), {}).isEmpty());
}

QTEST_GUILESS_MAIN(tst_DashboardSnoozes)
#include "tst_DashboardSnoozes.moc"
