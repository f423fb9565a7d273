#include "ModelRoles.h"
#include "TestHost.h"

#include <QRegularExpression>
#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;

/// Usage at or above a threshold raises an error, usage below it clears the error.
class tst_Thresholds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void usageIsComparedWithItsThreshold_data();
    void usageIsComparedWithItsThreshold();
    void usageBelowClears_data();
    void usageBelowClears();
    void usageBelowWithoutErrorChangesNothing_data();
    void usageBelowWithoutErrorChangesNothing();
    void repeatedUsageAboveLeavesTheRowAsItIs_data();
    void repeatedUsageAboveLeavesTheRowAsItIs();
    void kindsAreIndependent();
    void stationsAreIndependent();
    void interfacesAreIndependent();
    void interfaceWithoutNameIsKeyedByItsStation();
    void nothingIsAskedOfTheHost();
};

namespace {

constexpr int ThresholdOfKind[]{80, 70, 60};

ThresholdVariables variables()
{
    return {"80", "70", "60"};
}

void report(TestHost &host, int kind, int usage, const QString &stationID = u"st1"_s)
{
    switch (kind) {
    case 0:
        host.invoke("monitorCPUUsage", stationID, usage);
        break;
    case 1:
        host.invoke("monitorMemoryUsage", stationID, usage);
        break;
    default:
        host.invoke("monitorNetworkUsage", stationID, usage, u"en0"_s);
    }
}

void addKinds()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("CPU") << 0;
    QTest::newRow("memory") << 1;
    QTest::newRow("network") << 2;
}

} // namespace

void tst_Thresholds::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_Thresholds::usageIsComparedWithItsThreshold_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("usage");
    QTest::addColumn<bool>("isListed");
    const char *const names[]{"CPU", "memory", "network"};
    for (int kind = 0; kind < 3; ++kind) {
        const int threshold = ThresholdOfKind[kind];
        QTest::addRow("%s at", names[kind]) << kind << threshold << true;
        QTest::addRow("%s one above", names[kind]) << kind << threshold + 1 << true;
        QTest::addRow("%s one below", names[kind]) << kind << threshold - 1 << false;
        QTest::addRow("%s zero", names[kind]) << kind << 0 << false;
        QTest::addRow("%s negative", names[kind]) << kind << -1 << false;
        QTest::addRow("%s smallest", names[kind])
            << kind << std::numeric_limits<int>::min() << false;
        QTest::addRow("%s largest", names[kind]) << kind << std::numeric_limits<int>::max() << true;
    }
}

void tst_Thresholds::usageIsComparedWithItsThreshold()
{
    QFETCH(const int, kind);
    QFETCH(const int, usage);
    QFETCH(const bool, isListed);
    TestHost host(TestHost::Paired, variables());
    report(host, kind, usage);
    QCOMPARE(host.errors()->rowCount(), isListed ? 1 : 0);
}

void tst_Thresholds::usageBelowClears_data()
{
    addKinds();
}

void tst_Thresholds::usageBelowClears()
{
    QFETCH(const int, kind);
    for (const int usage : {ThresholdOfKind[kind] - 1, 0, -5}) {
        TestHost host(TestHost::Paired, variables());
        report(host, kind, 100);
        QCOMPARE(host.errors()->rowCount(), 1);
        report(host, kind, usage);
        QCOMPARE(host.errors()->rowCount(), 0);
        report(host, kind, 100);
        QCOMPARE(host.errors()->rowCount(), 1);
    }
}

void tst_Thresholds::usageBelowWithoutErrorChangesNothing_data()
{
    addKinds();
}

void tst_Thresholds::usageBelowWithoutErrorChangesNothing()
{
    QFETCH(const int, kind);
    TestHost host(TestHost::Paired, variables());
    report(host, (kind + 1) % 3, 100);
    const QStringList rows = host.errorRows();
    report(host, kind, ThresholdOfKind[kind] - 1);
    QCOMPARE(host.errorRows(), rows);
}

void tst_Thresholds::repeatedUsageAboveLeavesTheRowAsItIs_data()
{
    addKinds();
}

void tst_Thresholds::repeatedUsageAboveLeavesTheRowAsItIs()
{
    QFETCH(const int, kind);
    TestHost host(TestHost::Paired, variables());
    report(host, kind, 90);
    const QStringList rows = host.errorRows();
    const QVariant time = host.error(0, ErrorRole::Timestamp);
    report(host, kind, 100);
    QCOMPARE(host.errorRows(), rows);
    QCOMPARE(host.error(0, ErrorRole::Timestamp), time);
}

void tst_Thresholds::kindsAreIndependent()
{
    TestHost host(TestHost::Paired, variables());
    for (int kind = 0; kind < 3; ++kind)
        report(host, kind, 100);
    QCOMPARE(host.errorKeys(), QStringList({u"0_st1"_s, u"1_st1"_s, u"2_st1_en0"_s}));
    report(host, 1, 0);
    QCOMPARE(host.errorKeys(), QStringList({u"0_st1"_s, u"2_st1_en0"_s}));
}

void tst_Thresholds::stationsAreIndependent()
{
    TestHost host(TestHost::Paired, variables());
    report(host, 0, 100, u"st1"_s);
    report(host, 0, 100, u"st10"_s);
    report(host, 0, 0, u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"0_st10"_s}));
}

void tst_Thresholds::interfacesAreIndependent()
{
    TestHost host(TestHost::Paired, variables());
    host.invoke("monitorNetworkUsage", u"st1"_s, 100, u"en0"_s);
    host.invoke("monitorNetworkUsage", u"st1"_s, 100, u"en1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"2_st1_en0"_s, u"2_st1_en1"_s}));
    host.invoke("monitorNetworkUsage", u"st1"_s, 0, u"en0"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"2_st1_en1"_s}));
}

void tst_Thresholds::interfaceWithoutNameIsKeyedByItsStation()
{
    TestHost host(TestHost::Paired, variables());
    host.invoke("monitorNetworkUsage", u"st1"_s, 100, QString());
    QCOMPARE(host.errorKeys(), QStringList({u"2_st1"_s}));
    host.invoke("monitorNetworkUsage", u"st1"_s, 100, u""_s);
    QCOMPARE(host.errors()->rowCount(), 1);
}

void tst_Thresholds::nothingIsAskedOfTheHost()
{
    TestHost host(TestHost::Paired, variables());
    for (int kind = 0; kind < 3; ++kind) {
        report(host, kind, 100);
        report(host, kind, 0);
    }
    QCOMPARE(host.log.take(), QStringList());
}

QTEST_GUILESS_MAIN(tst_Thresholds)
#include "tst_Thresholds.moc"
