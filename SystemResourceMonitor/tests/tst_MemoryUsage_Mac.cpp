#include "FakeMach.h"
#include "MemoryUsage_Mac.h"

#include <QTest>

#include <limits>

namespace {

constexpr double FailedSample = 0.0;

double sample()
{
    return MemoryUsage_Mac().getPercentage();
}

} // namespace

class tst_MemoryUsage_Mac : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void kernelIsAskedForSizeThenPagesOfOneHost();
    void applicationWiredAndCompressedPagesCount_data();
    void applicationWiredAndCompressedPagesCount();
    void otherPagesDoNotCount();
    void purgeablePagesDoNotCount();
    void morePurgeableThanInternalPagesWrap();
    void pageSizeScalesTheUsage();
    void pageCountsAreScaledInSixtyFourBits();
    void memorySizeIsSixtyFourBits();
    void arithmeticIsInSinglePrecision();
    void answerOfTheMemorySizeQueryIsIgnored();
    void unknownMemorySizeMakesTheUsageInfinite();
    void failingPageSizeIsAFailedSample();
    void failingStatisticsAreAFailedSample();
    void noStateRemainsBetweenSamples();
};

void tst_MemoryUsage_Mac::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    fakeMach() = FakeMach();
    fakeMach().memorySize = 4096'000;
    fakeMach().vm.internal_page_count = 100;
}

void tst_MemoryUsage_Mac::kernelIsAskedForSizeThenPagesOfOneHost()
{
    sample();
    const QStringList calls = {
        QStringLiteral("sysctl(6.24, old length 8, no new value, new length 0)"),
        QStringLiteral("mach_host_self()"),
        QStringLiteral("host_page_size(host 1)"),
        QStringLiteral("host_statistics64(host 1, flavor 4, count 38)"),
    };
    QCOMPARE(fakeMach().calls, calls);
}

void tst_MemoryUsage_Mac::applicationWiredAndCompressedPagesCount_data()
{
    QTest::addColumn<uint>("internal");
    QTest::addColumn<uint>("wired");
    QTest::addColumn<uint>("compressed");
    QTest::addColumn<double>("percentage");
    QTest::newRow("none") << 0U << 0U << 0U << 0.0;
    QTest::newRow("application") << 250U << 0U << 0U << 25.0;
    QTest::newRow("wired") << 0U << 250U << 0U << 25.0;
    QTest::newRow("compressed") << 0U << 0U << 250U << 25.0;
    QTest::newRow("all three") << 125U << 250U << 375U << 75.0;
    QTest::newRow("the whole memory") << 1000U << 0U << 0U << 100.0;
}

void tst_MemoryUsage_Mac::applicationWiredAndCompressedPagesCount()
{
    QFETCH(const uint, internal);
    QFETCH(const uint, wired);
    QFETCH(const uint, compressed);
    fakeMach().vm.internal_page_count = internal;
    fakeMach().vm.wire_count = wired;
    fakeMach().vm.compressor_page_count = compressed;
    QTEST(sample(), "percentage");
}

void tst_MemoryUsage_Mac::otherPagesDoNotCount()
{
    const double before = sample();
    vm_statistics64_data_t &vm = fakeMach().vm;
    vm.free_count = vm.active_count = vm.inactive_count = vm.speculative_count = 500;
    vm.external_page_count = vm.throttled_count = 500;
    vm.total_uncompressed_pages_in_compressor = 500;
    QCOMPARE(sample(), before);
}

void tst_MemoryUsage_Mac::purgeablePagesDoNotCount()
{
    fakeMach().vm.internal_page_count = 300;
    fakeMach().vm.purgeable_count = 50;
    QCOMPARE(sample(), 25.0);
}

void tst_MemoryUsage_Mac::morePurgeableThanInternalPagesWrap()
{
    fakeMach().vm.internal_page_count = 10;
    fakeMach().vm.purgeable_count = 11;
    const auto application = static_cast<float>(0xffffffffULL * 4096);
    const double percentage = sample();
    QCOMPARE(percentage, double(application / 4096000.0F * 100.0F));
    QVERIFY(percentage > 100.0);
}

void tst_MemoryUsage_Mac::pageSizeScalesTheUsage()
{
    fakeMach().pageSize = 16384;
    QCOMPARE(sample(), double(1638400.0F / 4096000.0F * 100.0F));
}

void tst_MemoryUsage_Mac::pageCountsAreScaledInSixtyFourBits()
{
    fakeMach().memorySize = 1LL << 42;
    fakeMach().vm.internal_page_count = 0;
    fakeMach().vm.wire_count = 1U << 29;
    QCOMPARE(sample(), 50.0);
}

void tst_MemoryUsage_Mac::memorySizeIsSixtyFourBits()
{
    fakeMach().memorySize = 64LL << 30;
    fakeMach().vm.internal_page_count = 1U << 22;
    QCOMPARE(sample(), 25.0);
}

void tst_MemoryUsage_Mac::arithmeticIsInSinglePrecision()
{
    fakeMach().pageSize = 1;
    fakeMach().memorySize = 33554432;
    // 2^24 + 1 is the first whole number that single precision does not hold.
    fakeMach().vm.internal_page_count = 16777217;
    QVERIFY(sample() == 50.0);
}

void tst_MemoryUsage_Mac::answerOfTheMemorySizeQueryIsIgnored()
{
    fakeMach().sysctlResult = -1;
    QCOMPARE(sample(), double(409600.0F / 4096000.0F * 100.0F));
}

void tst_MemoryUsage_Mac::unknownMemorySizeMakesTheUsageInfinite()
{
    fakeMach().sysctlResult = -1;
    fakeMach().fillsMemorySize = false;
    QCOMPARE(sample(), std::numeric_limits<double>::infinity());
}

void tst_MemoryUsage_Mac::failingPageSizeIsAFailedSample()
{
    fakeMach().pageSizeResult = FakeMach::Failure;
    QCOMPARE(sample(), FailedSample);
    QCOMPARE(fakeMach().calls.last(), QStringLiteral("host_page_size(host 1)"));
}

void tst_MemoryUsage_Mac::failingStatisticsAreAFailedSample()
{
    fakeMach().vmResult = FakeMach::Failure;
    QCOMPARE(sample(), FailedSample);
}

void tst_MemoryUsage_Mac::noStateRemainsBetweenSamples()
{
    MemoryUsage_Mac sampler;
    const double first = sampler.getPercentage();
    fakeMach().vmResult = FakeMach::Failure;
    QCOMPARE(sampler.getPercentage(), FailedSample);
    fakeMach().vmResult = KERN_SUCCESS;
    QCOMPARE(sampler.getPercentage(), first);
}

QTEST_APPLESS_MAIN(tst_MemoryUsage_Mac)
#include "tst_MemoryUsage_Mac.moc"
