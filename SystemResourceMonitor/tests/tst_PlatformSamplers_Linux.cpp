#include "CpuUsage_Linux.h"
#include "MemoryUsage_Linux.h"
#include "NetworkUsage_None.h"
#include "PlatformSamplers.h"

#include <QTest>

class tst_PlatformSamplers_Linux : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }
    void samplersAreThoseOfTheSystem();
    void eachMonitorGetsItsOwnSamplers();
};

void tst_PlatformSamplers_Linux::samplersAreThoseOfTheSystem()
{
    const SamplerFactory samplers = platformSamplers();
    QVERIFY(samplers.createCpuUsage().dynamicCast<CpuUsage_Linux>());
    QVERIFY(samplers.createMemoryUsage().dynamicCast<MemoryUsage_Linux>());
    QVERIFY(samplers.createNetworkUsage().dynamicCast<NetworkUsage_None>());
}

void tst_PlatformSamplers_Linux::eachMonitorGetsItsOwnSamplers()
{
    const SamplerFactory samplers = platformSamplers();
    QVERIFY(samplers.createCpuUsage() != samplers.createCpuUsage());
    QVERIFY(samplers.createMemoryUsage() != samplers.createMemoryUsage());
    QVERIFY(samplers.createNetworkUsage() != samplers.createNetworkUsage());
}

QTEST_APPLESS_MAIN(tst_PlatformSamplers_Linux)
#include "tst_PlatformSamplers_Linux.moc"
