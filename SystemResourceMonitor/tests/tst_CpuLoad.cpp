#include "CpuLoad.h"

#include <QTest>

#include <limits>

namespace {

// Made before any test can call.
const float firstLoad = CalculateCPULoad(600, 1000);

} // namespace

class tst_CpuLoad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void firstCallMeasuresFromZero();
    void loadIsTheShareOfTicksThatWereNotIdle_data();
    void loadIsTheShareOfTicksThatWereNotIdle();
    void loadIsRelativeToThePreviousCall();
    void noElapsedTickIsFullLoad();
    void noElapsedTickIsFullLoadWhateverTheIdleTicks();
    void noElapsedTickStoresTheIdleTicks();
    void differencesWrapAtSixtyFourBits();
    void idleTicksThatStepBackWrap();
    void totalTicksThatStepBackWrap();
    void arithmeticIsInSinglePrecision();
};

void tst_CpuLoad::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    CalculateCPULoad(0, 0);
}

void tst_CpuLoad::firstCallMeasuresFromZero()
{
    QCOMPARE(firstLoad, 1.0F - 600.0F / 1000.0F);
}

void tst_CpuLoad::loadIsTheShareOfTicksThatWereNotIdle_data()
{
    QTest::addColumn<quint64>("idle");
    QTest::addColumn<quint64>("total");
    QTest::addColumn<float>("load");
    QTest::newRow("idle machine") << quint64(400) << quint64(400) << 0.0F;
    QTest::newRow("busy machine") << quint64(0) << quint64(400) << 1.0F;
    QTest::newRow("a quarter") << quint64(300) << quint64(400) << 0.25F;
    QTest::newRow("a single tick") << quint64(0) << quint64(1) << 1.0F;
    QTest::newRow("a single idle tick") << quint64(1) << quint64(1) << 0.0F;
    QTest::newRow("more idle than total") << quint64(600) << quint64(400) << -0.5F;
}

void tst_CpuLoad::loadIsTheShareOfTicksThatWereNotIdle()
{
    QFETCH(const quint64, idle);
    QFETCH(const quint64, total);
    QTEST(CalculateCPULoad(idle, total), "load");
}

void tst_CpuLoad::loadIsRelativeToThePreviousCall()
{
    CalculateCPULoad(5000, 9000);
    QCOMPARE(CalculateCPULoad(5030, 9040), 0.25F);
    QCOMPARE(CalculateCPULoad(5030, 9080), 1.0F);
    QCOMPARE(CalculateCPULoad(5050, 9120), 0.5F);
}

void tst_CpuLoad::noElapsedTickIsFullLoad()
{
    CalculateCPULoad(5000, 9000);
    QCOMPARE(CalculateCPULoad(5000, 9000), 1.0F);
}

void tst_CpuLoad::noElapsedTickIsFullLoadWhateverTheIdleTicks()
{
    CalculateCPULoad(5000, 9000);
    QCOMPARE(CalculateCPULoad(5100, 9000), 1.0F);
}

void tst_CpuLoad::noElapsedTickStoresTheIdleTicks()
{
    CalculateCPULoad(5000, 9000);
    CalculateCPULoad(5100, 9000);
    QCOMPARE(CalculateCPULoad(5150, 9100), 0.5F);
}

void tst_CpuLoad::differencesWrapAtSixtyFourBits()
{
    constexpr auto Max = std::numeric_limits<unsigned long long>::max();
    CalculateCPULoad(Max - 9, Max - 19);
    QCOMPARE(CalculateCPULoad(20, 20), 0.25F);
}

void tst_CpuLoad::idleTicksThatStepBackWrap()
{
    CalculateCPULoad(5000, 9000);
    const float wrapped = static_cast<float>(std::numeric_limits<unsigned long long>::max());
    QCOMPARE(CalculateCPULoad(4999, 9100), 1.0F - wrapped / 100.0F);
}

void tst_CpuLoad::totalTicksThatStepBackWrap()
{
    CalculateCPULoad(5000, 9000);
    QCOMPARE(CalculateCPULoad(5100, 8900), 1.0F);
}

void tst_CpuLoad::arithmeticIsInSinglePrecision()
{
    // From 2^24 on, single precision does not hold every whole number. A comparison that allows
    // for rounding would miss the difference.
    QVERIFY(CalculateCPULoad(16777217, 33554435) == 1.0F - 16777216.0F / 33554436.0F);
}

QTEST_APPLESS_MAIN(tst_CpuLoad)
#include "tst_CpuLoad.moc"
