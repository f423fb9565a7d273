#include "ResourceReport.h"

#include "PrintedValue.h"

#include <QTest>

class tst_ResourceReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventDataIsAMapWithAListOfMaps();
    void livelyReportStaysWithinTwoPointsOfItsLevel();
    void livelyReportStaysWithinPercentages();
    void livelyReportMoves();
    void stationsDoNotMoveInStep();
};

void tst_ResourceReport::eventDataIsAMapWithAListOfMaps()
{
    const ResourceReport report{12, 34, {{QStringLiteral("eth0"), 56.5, 1000}}};
    QCOMPARE(printedValue(toEventData(report)),
             QStringLiteral(R"({"cpuPercentage": 12, "memPercentage": 34, "networkUsageList": )"
                            R"([{"networkBandwidth": 1000.0, "networkInterface": "eth0", )"
                            R"("networkPercentage": 56.5}]})"));
}

void tst_ResourceReport::livelyReportStaysWithinTwoPointsOfItsLevel()
{
    const ResourceReport level{50, 60, {{QStringLiteral("eth0"), 70, 1000}}};
    for (qint64 second = 0; second < 600; ++second) {
        const ResourceReport report = livelyReport(level, 7, second);
        QVERIFY(qAbs(report.cpuPercentage - 50) <= 2);
        QVERIFY(qAbs(report.memoryPercentage - 60) <= 2);
        QVERIFY(qAbs(report.networks.at(0).percentage - 70) <= 2);
        QCOMPARE(report.networks.at(0).bandwidth, 1000.0);
    }
}

void tst_ResourceReport::livelyReportStaysWithinPercentages()
{
    const ResourceReport level{0, 100, {}};
    for (qint64 second = 0; second < 600; ++second) {
        const ResourceReport report = livelyReport(level, 7, second);
        QVERIFY(report.cpuPercentage >= 0);
        QVERIFY(report.memoryPercentage <= 100);
    }
}

void tst_ResourceReport::livelyReportMoves()
{
    const ResourceReport level{50, 50, {}};
    QSet<int> values;
    for (qint64 second = 0; second < 60; ++second)
        values.insert(livelyReport(level, 7, second).cpuPercentage);
    QVERIFY(values.size() > 2);
}

void tst_ResourceReport::stationsDoNotMoveInStep()
{
    const ResourceReport level{50, 50, {}};
    int different = 0;
    for (qint64 second = 0; second < 60; ++second) {
        different += livelyReport(level, 7, second).cpuPercentage
                     != livelyReport(level, 8, second).cpuPercentage;
    }
    QVERIFY(different > 10);
}

QTEST_GUILESS_MAIN(tst_ResourceReport)
#include "tst_ResourceReport.moc"
