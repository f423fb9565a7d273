#include "CpuUsage_Mac.h"
#include "MemoryUsage_Mac.h"
#include "NetworkUsage_None.h"
#include "PlatformSamplers.h"

#include <QTest>

class tst_PlatformSamplers_Mac : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }
    void samplersAreThoseOfTheSystem();
    void eachMonitorGetsItsOwnSamplers();
};

void tst_PlatformSamplers_Mac::samplersAreThoseOfTheSystem()
{
    const SamplerFactory samplers = platformSamplers();
    QVERIFY(samplers.createCpuUsage().dynamicCast<CpuUsage_Mac>());
    QVERIFY(samplers.createMemoryUsage().dynamicCast<MemoryUsage_Mac>());
    QVERIFY(samplers.createNetworkUsage().dynamicCast<NetworkUsage_None>());
}

void tst_PlatformSamplers_Mac::eachMonitorGetsItsOwnSamplers()
{
    const SamplerFactory samplers = platformSamplers();
    QVERIFY(samplers.createCpuUsage() != samplers.createCpuUsage());
    QVERIFY(samplers.createMemoryUsage() != samplers.createMemoryUsage());
    QVERIFY(samplers.createNetworkUsage() != samplers.createNetworkUsage());
}

QTEST_APPLESS_MAIN(tst_PlatformSamplers_Mac)
#include "tst_PlatformSamplers_Mac.moc"
