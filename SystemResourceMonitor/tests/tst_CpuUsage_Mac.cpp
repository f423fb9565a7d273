#include "CpuLoad.h"
#include "CpuUsage_Mac.h"
#include "FakeMach.h"

#include <QTest>

#include <limits>

namespace {

constexpr double FailedSample = -100.0;
constexpr natural_t MaxTicks = std::numeric_limits<natural_t>::max();

void setTicks(natural_t user, natural_t system, natural_t idle, natural_t nice)
{
    fakeMach().cpu = {{user, system, idle, nice}};
}

} // namespace

class tst_CpuUsage_Mac : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void kernelIsAskedOnceForTheLoadOfThisHost();
    void firstSampleIsTheAverageSinceStart();
    void eachStateCountsForWhatItIs_data();
    void eachStateCountsForWhatItIs();
    void nextSampleMeasuresSinceThePreviousOne();
    void noElapsedTickIsFullLoad();
    void countersAreSummedInSixtyFourBits();
    void counterThatWrapsAtThirtyTwoBitsStepsBack();
    void failureIsAFailedSample();
    void failedSampleKeepsThePreviousOne();
    void samplersShareThePreviousSample();
    void percentageIsInSinglePrecision();
};

void tst_CpuUsage_Mac::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    fakeMach() = FakeMach();
    CalculateCPULoad(0, 0);
}

void tst_CpuUsage_Mac::kernelIsAskedOnceForTheLoadOfThisHost()
{
    const QStringList calls = {QStringLiteral("mach_host_self()"),
                               QStringLiteral("host_statistics(host 1, flavor 3, count 4)")};
    CpuUsage_Mac().getPercentage();
    QCOMPARE(fakeMach().calls, calls);

    fakeMach() = FakeMach();
    GetCPULoad();
    QCOMPARE(fakeMach().calls, calls);
}

void tst_CpuUsage_Mac::firstSampleIsTheAverageSinceStart()
{
    setTicks(100, 60, 230, 10);
    QCOMPARE(CpuUsage_Mac().getPercentage(), double((1.0F - 230.0F / 400.0F) * 100.0F));
}

void tst_CpuUsage_Mac::eachStateCountsForWhatItIs_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<double>("percentage");
    QTest::newRow("user") << CPU_STATE_USER << 75.0;
    QTest::newRow("system") << CPU_STATE_SYSTEM << 75.0;
    QTest::newRow("idle") << CPU_STATE_IDLE << 0.0;
    QTest::newRow("nice") << CPU_STATE_NICE << 75.0;
}

void tst_CpuUsage_Mac::eachStateCountsForWhatItIs()
{
    QFETCH(const int, state);
    setTicks(0, 0, 20, 0);
    fakeMach().cpu.cpu_ticks[state] = 60;
    if (state != CPU_STATE_IDLE)
        fakeMach().cpu.cpu_ticks[CPU_STATE_IDLE] = 20;
    QTEST(CpuUsage_Mac().getPercentage(), "percentage");
}

void tst_CpuUsage_Mac::nextSampleMeasuresSinceThePreviousOne()
{
    CpuUsage_Mac sampler;
    setTicks(1000, 600, 2300, 100);
    sampler.getPercentage();
    setTicks(1050, 640, 2600, 110);
    QCOMPARE(sampler.getPercentage(), 25.0);
}

void tst_CpuUsage_Mac::noElapsedTickIsFullLoad()
{
    CpuUsage_Mac sampler;
    setTicks(1000, 600, 2300, 100);
    sampler.getPercentage();
    QCOMPARE(sampler.getPercentage(), 100.0);
}

void tst_CpuUsage_Mac::countersAreSummedInSixtyFourBits()
{
    setTicks(MaxTicks, MaxTicks, MaxTicks, MaxTicks);
    QCOMPARE(CpuUsage_Mac().getPercentage(), 75.0);
}

void tst_CpuUsage_Mac::counterThatWrapsAtThirtyTwoBitsStepsBack()
{
    CpuUsage_Mac sampler;
    setTicks(1000, 600, MaxTicks, 100);
    sampler.getPercentage();
    setTicks(1100, 600, 49, 100);
    // Idle and total both step back by 2^32 - 50; total gains 100 besides.
    const auto idleDelta = static_cast<float>(0ULL - (MaxTicks - 49ULL));
    const auto totalDelta = static_cast<float>(100ULL - (MaxTicks - 49ULL));
    QCOMPARE(sampler.getPercentage(), double((1.0F - idleDelta / totalDelta) * 100.0F));
}

void tst_CpuUsage_Mac::failureIsAFailedSample()
{
    setTicks(100, 60, 230, 10);
    fakeMach().cpuResult = FakeMach::Failure;
    QCOMPARE(CpuUsage_Mac().getPercentage(), FailedSample);
    QCOMPARE(GetCPULoad(), -1.0F);
}

void tst_CpuUsage_Mac::failedSampleKeepsThePreviousOne()
{
    CpuUsage_Mac sampler;
    setTicks(1000, 600, 2300, 100);
    sampler.getPercentage();

    fakeMach().cpuResult = FakeMach::Failure;
    setTicks(1010, 610, 2310, 110);
    QCOMPARE(sampler.getPercentage(), FailedSample);
    QCOMPARE(GetCPULoad(), -1.0F);

    fakeMach().cpuResult = KERN_SUCCESS;
    setTicks(1050, 640, 2600, 110);
    QCOMPARE(sampler.getPercentage(), 25.0);
}

void tst_CpuUsage_Mac::samplersShareThePreviousSample()
{
    setTicks(1000, 600, 2300, 100);
    CpuUsage_Mac().getPercentage();
    setTicks(1050, 640, 2600, 110);
    QCOMPARE(GetCPULoad(), 0.25F);
    QCOMPARE(CpuUsage_Mac().getPercentage(), 100.0);
}

void tst_CpuUsage_Mac::percentageIsInSinglePrecision()
{
    setTicks(1, 0, 2, 0);
    const double percentage = CpuUsage_Mac().getPercentage();
    QVERIFY(percentage == double((1.0F - 2.0F / 3.0F) * 100.0F));
}

QTEST_APPLESS_MAIN(tst_CpuUsage_Mac)
#include "tst_CpuUsage_Mac.moc"
