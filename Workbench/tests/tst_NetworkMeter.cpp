#include "NetworkMeter.h"

#include <QTest>

namespace {

InterfaceCounters counters(const char *name, quint64 received, quint64 sent,
                           std::optional<double> speed = 100.0)
{
    return {QString::fromLatin1(name), received, sent, speed};
}

QStringList printed(const std::vector<NetworkUsage> &usages)
{
    QStringList lines;
    for (const NetworkUsage &usage : usages) {
        lines.append(QStringLiteral("%1 %2% of %3")
                         .arg(usage.interfaceName)
                         .arg(usage.percentage)
                         .arg(usage.bandwidth));
    }
    return lines;
}

} // namespace

class tst_NetworkMeter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstReadingYieldsNothing();
    void loadIsThatOfTheBusierDirection();
    void loadIsPerTime();
    void unknownSpeedIsTakenForAGigabit();
    void loadNeverExceedsTheBandwidth();
    void interfaceThatWasSetBackIsLeftOutOnce();
    void interfacesComeAndGo();
    void noTimeHasPassed();
};

void tst_NetworkMeter::firstReadingYieldsNothing()
{
    NetworkMeter meter;
    QVERIFY(meter.measure({counters("eth0", 1'000'000, 1)}, 5000).empty());
    QVERIFY(meter.measure({}, 6000).empty());
}

void tst_NetworkMeter::loadIsThatOfTheBusierDirection()
{
    NetworkMeter meter;
    meter.measure({counters("eth0", 500, 700), counters("eth1", 500, 700)}, 1000);
    // 1 250 000 bytes a second are 10 Mbit/s.
    QCOMPARE(printed(meter.measure({counters("eth0", 500 + 1'250'000, 700 + 3),
                                    counters("eth1", 500 + 3, 700 + 2'500'000)},
                                   2000)),
             QStringList({QStringLiteral("eth0 10% of 100"), QStringLiteral("eth1 20% of 100")}));
}

void tst_NetworkMeter::loadIsPerTime()
{
    NetworkMeter meter;
    meter.measure({counters("eth0", 0, 0)}, 1000);
    QCOMPARE(printed(meter.measure({counters("eth0", 1'250'000, 0)}, 3000)),
             QStringList{QStringLiteral("eth0 5% of 100")});
    QCOMPARE(printed(meter.measure({counters("eth0", 1'250'000, 0)}, 4000)),
             QStringList{QStringLiteral("eth0 0% of 100")});
}

void tst_NetworkMeter::unknownSpeedIsTakenForAGigabit()
{
    NetworkMeter meter;
    meter.measure({counters("eth0", 0, 0, std::nullopt)}, 0);
    QCOMPARE(printed(meter.measure({counters("eth0", 12'500'000, 0, std::nullopt)}, 1000)),
             QStringList{QStringLiteral("eth0 10% of 1000")});
}

void tst_NetworkMeter::loadNeverExceedsTheBandwidth()
{
    NetworkMeter meter;
    meter.measure({counters("eth0", 0, 0)}, 0);
    QCOMPARE(printed(meter.measure({counters("eth0", 99'000'000, 0)}, 1000)),
             QStringList{QStringLiteral("eth0 100% of 100")});
}

void tst_NetworkMeter::interfaceThatWasSetBackIsLeftOutOnce()
{
    NetworkMeter meter;
    meter.measure({counters("eth0", 500, 500), counters("eth1", 500, 500)}, 0);
    QVERIFY(meter.measure({counters("eth0", 400, 600), counters("eth1", 600, 400)}, 1000).empty());
    QCOMPARE(printed(meter.measure({counters("eth0", 400, 600), counters("eth1", 600, 400)}, 2000))
                 .size(),
             2);
}

void tst_NetworkMeter::interfacesComeAndGo()
{
    NetworkMeter meter;
    meter.measure({counters("eth0", 0, 0)}, 0);
    QCOMPARE(printed(meter.measure({counters("eth1", 0, 0)}, 1000)), QStringList());
    QCOMPARE(printed(meter.measure({counters("eth0", 0, 0), counters("eth1", 0, 0)}, 2000)),
             QStringList{QStringLiteral("eth1 0% of 100")});
}

void tst_NetworkMeter::noTimeHasPassed()
{
    NetworkMeter meter;
    meter.measure({counters("eth0", 0, 0)}, 1000);
    QVERIFY(meter.measure({counters("eth0", 9, 9)}, 1000).empty());
}

QTEST_GUILESS_MAIN(tst_NetworkMeter)
#include "tst_NetworkMeter.moc"
