#include "FakeSamplers.h"
#include "SystemResourceMonitor.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QMetaMethod>
#include <QSequentialIterable>
#include <QSignalSpy>
#include <QTest>
#include <QTimerEvent>

#include <limits>
#include <optional>
#include <string>

using SystemResourceMonitorCommon::NetworkUsage;
using NetworkUsages = QList<NetworkUsage>;

namespace {

constexpr int AnyTimerId = 987654;

void runOutTimer(QObject &monitor)
{
    QTimerEvent event(AnyTimerId);
    QCoreApplication::sendEvent(&monitor, &event);
}

// A usage as a string, so that one comparison checks them all.
QStringList described(const NetworkUsages &usages)
{
    QStringList result;
    for (const NetworkUsage &usage : usages)
        result.append(QStringLiteral("%1 %2 %3")
                          .arg(usage.interfaceName)
                          .arg(usage.percentage)
                          .arg(usage.bandwidth));
    return result;
}

} // namespace

// Runs without a trace library.
class tst_SystemResourceMonitor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void typesOfTheSignalAreKnownByName();
    void listIsIterableInAVariant();
    void interfaceHasOneSignal();
    void monitorAddsNothingToTheInterface();

    void samplersAreCreatedInOrder();
    void samplersAreReleasedInReverseOrder();
    void constructionTakesNoSample();
    void monitorHasNoParent();
    void oneCoarseTimerOfOneSecondRuns();
    void timerEndsWithTheMonitor();
    void failingSamplerIsPassedOn_data();
    void failingSamplerIsPassedOn();

    void networkIsSampledFirstAndMemoryLast();
    void percentagesAreCutOff_data();
    void percentagesAreCutOff();
    void percentagesThatNoIntHoldsAreBounded_data();
    void percentagesThatNoIntHoldsAreBounded();
    void networkListKeepsOrderAndValues();
    void noInterfacesMakeAnEmptyList();
    void unchangedSampleIsAnnouncedAgain();
    void sampleCrossesAQueuedConnection();

    void samplersOfThisSystemWork();
};

// Stands first: later tests make the types known on their own.
void tst_SystemResourceMonitor::typesOfTheSignalAreKnownByName()
{
    FakeSamplers samplers;
    const SystemResourceMonitor monitor(samplers.factory());
    QVERIFY(QMetaType::fromName("SystemResourceMonitorCommon::NetworkUsage").isValid());
    const QMetaType list = QMetaType::fromName("QList<SystemResourceMonitorCommon::NetworkUsage>");
    QVERIFY(list.isValid());
    const auto iterable = QMetaType::fromType<QIterable<QMetaSequence>>();
    QVERIFY(QMetaType::hasRegisteredConverterFunction(list, iterable));
    QVERIFY(QMetaType::hasRegisteredMutableViewFunction(list, iterable));
}

void tst_SystemResourceMonitor::listIsIterableInAVariant()
{
    QVariant variant = QVariant::fromValue(NetworkUsages{{QStringLiteral("eth0"), 1.5, 2.5}});
    const auto iterable = variant.value<QSequentialIterable>();
    QCOMPARE(iterable.size(), 1);
    QCOMPARE(described({iterable.at(0).value<NetworkUsage>()}),
             QStringList(QStringLiteral("eth0 1.5 2.5")));
    QCOMPARE(described(variant.value<NetworkUsages>()),
             QStringList(QStringLiteral("eth0 1.5 2.5")));
}

void tst_SystemResourceMonitor::interfaceHasOneSignal()
{
    const QMetaObject &meta = ISystemResourceMonitor::staticMetaObject;
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);

    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    QCOMPARE(
        signal.methodSignature(),
        QByteArray("resourceChanged(int,int,QList<SystemResourceMonitorCommon::NetworkUsage>)"));
    QCOMPARE(signal.parameterNames(),
             (QByteArrayList{"cpuPercentage", "memoryPercentage", "networkUsageList"}));
    QCOMPARE(signal.parameterMetaType(2), QMetaType::fromType<NetworkUsages>());
}

void tst_SystemResourceMonitor::monitorAddsNothingToTheInterface()
{
    const QMetaObject &meta = SystemResourceMonitor::staticMetaObject;
    QCOMPARE(meta.superClass(), &ISystemResourceMonitor::staticMetaObject);
    QCOMPARE(meta.methodCount(), ISystemResourceMonitor::staticMetaObject.methodCount());
    QCOMPARE(meta.propertyCount(), ISystemResourceMonitor::staticMetaObject.propertyCount());
    QCOMPARE(meta.constructorCount(), 0);
}

void tst_SystemResourceMonitor::samplersAreCreatedInOrder()
{
    FakeSamplers samplers;
    const SystemResourceMonitor monitor(samplers.factory());
    QCOMPARE(samplers.calls,
             (QStringList{QStringLiteral("create cpu"), QStringLiteral("create memory"),
                          QStringLiteral("create network")}));
}

void tst_SystemResourceMonitor::samplersAreReleasedInReverseOrder()
{
    FakeSamplers samplers;
    {
        const SystemResourceMonitor monitor(samplers.factory());
        samplers.calls.clear();
    }
    QCOMPARE(samplers.calls,
             (QStringList{QStringLiteral("release network"), QStringLiteral("release memory"),
                          QStringLiteral("release cpu")}));
}

void tst_SystemResourceMonitor::constructionTakesNoSample()
{
    FakeSamplers samplers;
    const SystemResourceMonitor monitor(samplers.factory());
    QCOMPARE(samplers.calls.size(), 3);
}

void tst_SystemResourceMonitor::monitorHasNoParent()
{
    FakeSamplers samplers;
    QCOMPARE(SystemResourceMonitor(samplers.factory()).parent(), nullptr);
}

void tst_SystemResourceMonitor::oneCoarseTimerOfOneSecondRuns()
{
    FakeSamplers samplers;
    SystemResourceMonitor monitor(samplers.factory());
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&monitor);
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers[0].interval, 1000);
    QCOMPARE(timers[0].timerType, Qt::CoarseTimer);
}

void tst_SystemResourceMonitor::timerEndsWithTheMonitor()
{
    FakeSamplers samplers;
    std::optional<SystemResourceMonitor> monitor(std::in_place, samplers.factory());
    QObject *const address = &*monitor;
    monitor.reset();
    QVERIFY(QAbstractEventDispatcher::instance()->registeredTimers(address).isEmpty());
}

void tst_SystemResourceMonitor::failingSamplerIsPassedOn_data()
{
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QStringList>("calls");
    const QString createCpu = QStringLiteral("create cpu");
    const QString createMemory = QStringLiteral("create memory");
    const QString releaseCpu = QStringLiteral("release cpu");
    const QString releaseMemory = QStringLiteral("release memory");
    QTest::newRow("cpu") << QStringLiteral("cpu") << QStringList();
    QTest::newRow("memory") << QStringLiteral("memory") << QStringList{createCpu, releaseCpu};
    QTest::newRow("network") << QStringLiteral("network")
                             << QStringList{createCpu, createMemory, releaseMemory, releaseCpu};
}

void tst_SystemResourceMonitor::failingSamplerIsPassedOn()
{
    QFETCH(const QString, failing);
    FakeSamplers samplers;
    samplers.failing = failing;
    std::string passedOn;
    try {
        const SystemResourceMonitor monitor(samplers.factory());
    } catch (const SamplerFailure &failure) {
        passedOn = failure.what();
    }
    QCOMPARE(passedOn, failing.toStdString());
    QTEST(samplers.calls, "calls");
}

void tst_SystemResourceMonitor::networkIsSampledFirstAndMemoryLast()
{
    FakeSamplers samplers;
    samplers.interfaces = {{QStringLiteral("b"), {}}, {QStringLiteral("a"), {}}};
    SystemResourceMonitor monitor(samplers.factory());
    samplers.calls.clear();
    runOutTimer(monitor);
    QCOMPARE(samplers.calls,
             (QStringList{QStringLiteral("interfaces"), QStringLiteral("interface b"),
                          QStringLiteral("interface a"), QStringLiteral("cpu"),
                          QStringLiteral("memory")}));
}

void tst_SystemResourceMonitor::percentagesAreCutOff_data()
{
    QTest::addColumn<double>("percentage");
    QTest::addColumn<int>("whole");
    QTest::newRow("whole") << 42.0 << 42;
    QTest::newRow("cut, not rounded") << 57.9 << 57;
    QTest::newRow("just below the next") << 99.99 << 99;
    QTest::newRow("nothing") << 0.0 << 0;
    QTest::newRow("less than one") << 0.99 << 0;
    QTest::newRow("more than all") << 104857.6 << 104857;
    QTest::newRow("failed sample") << -100.0 << -100;
    QTest::newRow("toward zero") << -57.9 << -57;
}

void tst_SystemResourceMonitor::percentagesAreCutOff()
{
    QFETCH(const double, percentage);
    QFETCH(const int, whole);
    FakeSamplers samplers;
    SystemResourceMonitor monitor(samplers.factory());
    QSignalSpy spy(&monitor, &ISystemResourceMonitor::resourceChanged);

    samplers.cpu = percentage;
    samplers.memory = 1.0;
    runOutTimer(monitor);
    samplers.cpu = 1.0;
    samplers.memory = percentage;
    runOutTimer(monitor);

    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy[0].mid(0, 2), (QVariantList{whole, 1}));
    QCOMPARE(spy[1].mid(0, 2), (QVariantList{1, whole}));
}

void tst_SystemResourceMonitor::percentagesThatNoIntHoldsAreBounded_data()
{
    using Doubles = std::numeric_limits<double>;
    using Ints = std::numeric_limits<int>;
    QTest::addColumn<double>("percentage");
    QTest::addColumn<int>("whole");
    QTest::newRow("far too large") << 1e17 << Ints::max();
    QTest::newRow("far too small") << -1e17 << Ints::min();
    QTest::newRow("endless") << Doubles::infinity() << Ints::max();
    QTest::newRow("endless below") << -Doubles::infinity() << Ints::min();
    QTest::newRow("largest") << 2147483647.9 << Ints::max();
    QTest::newRow("smallest") << -2147483648.0 << Ints::min();
    QTest::newRow("not a number") << Doubles::quiet_NaN() << Ints::min();
}

void tst_SystemResourceMonitor::percentagesThatNoIntHoldsAreBounded()
{
    percentagesAreCutOff();
}

void tst_SystemResourceMonitor::networkListKeepsOrderAndValues()
{
    FakeSamplers samplers;
    samplers.interfaces = {{QStringLiteral("wlan0"), {12.5, 100.0}},
                           {QStringLiteral("eth0"), {0.0, 1000.0}},
                           {QStringLiteral("eth1"), {99.75, 2.5}}};
    SystemResourceMonitor monitor(samplers.factory());
    QSignalSpy spy(&monitor, &ISystemResourceMonitor::resourceChanged);
    runOutTimer(monitor);
    QCOMPARE(described(spy.at(0).at(2).value<NetworkUsages>()),
             (QStringList{QStringLiteral("wlan0 12.5 100"), QStringLiteral("eth0 0 1000"),
                          QStringLiteral("eth1 99.75 2.5")}));
}

void tst_SystemResourceMonitor::noInterfacesMakeAnEmptyList()
{
    FakeSamplers samplers;
    SystemResourceMonitor monitor(samplers.factory());
    QSignalSpy spy(&monitor, &ISystemResourceMonitor::resourceChanged);
    runOutTimer(monitor);
    QVERIFY(spy.at(0).at(2).canConvert<NetworkUsages>());
    QVERIFY(spy.at(0).at(2).value<NetworkUsages>().isEmpty());
}

void tst_SystemResourceMonitor::unchangedSampleIsAnnouncedAgain()
{
    FakeSamplers samplers;
    SystemResourceMonitor monitor(samplers.factory());
    QSignalSpy spy(&monitor, &ISystemResourceMonitor::resourceChanged);
    runOutTimer(monitor);
    runOutTimer(monitor);
    QCOMPARE(spy.size(), 2);
}

void tst_SystemResourceMonitor::sampleCrossesAQueuedConnection()
{
    FakeSamplers samplers;
    samplers.cpu = 12.0;
    samplers.memory = 34.0;
    samplers.interfaces = {{QStringLiteral("eth0"), {56.0, 78.0}}};
    SystemResourceMonitor monitor(samplers.factory());
    QStringList received;
    connect(
        &monitor, &ISystemResourceMonitor::resourceChanged, this,
        [&received](int cpu, int memory, const NetworkUsages &usages) {
            received =
                QStringList{QString::number(cpu), QString::number(memory)} + described(usages);
        },
        Qt::QueuedConnection);
    runOutTimer(monitor);
    QVERIFY(received.isEmpty());
    QCoreApplication::sendPostedEvents(this);
    QCOMPARE(received, (QStringList{QStringLiteral("12"), QStringLiteral("34"),
                                    QStringLiteral("eth0 56 78")}));
}

void tst_SystemResourceMonitor::samplersOfThisSystemWork()
{
    SystemResourceMonitor monitor;
    QSignalSpy spy(&monitor, &ISystemResourceMonitor::resourceChanged);
    runOutTimer(monitor);
    QCOMPARE(spy.size(), 1);
    QVERIFY(spy[0][0].toInt() >= 0 && spy[0][0].toInt() <= 100);
    QVERIFY(spy[0][1].toInt() >= 0 && spy[0][1].toInt() < 100);
    QVERIFY(spy[0][2].value<NetworkUsages>().isEmpty());
}

QTEST_GUILESS_MAIN(tst_SystemResourceMonitor)
#include "tst_SystemResourceMonitor.moc"
