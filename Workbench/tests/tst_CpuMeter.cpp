#include "CpuMeter.h"

#include <QTest>

namespace {

using Readings = QHash<QString, CpuCounter>;

Readings readings(double idle, double busy)
{
    return {{QStringLiteral("0 idle"), {true, idle}}, {QStringLiteral("0 user"), {false, busy}}};
}

} // namespace

Q_DECLARE_METATYPE(CpuCounter)

class tst_CpuMeter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadIsWhatWasNotIdle_data();
    void loadIsWhatWasNotIdle();
    void firstReadingYieldsNothing();
    void processorsAreAddedUp();
    void readingsThatDoNotGoTogetherYieldNothingOnce_data();
    void readingsThatDoNotGoTogetherYieldNothingOnce();
};

void tst_CpuMeter::loadIsWhatWasNotIdle_data()
{
    QTest::addColumn<double>("idle");
    QTest::addColumn<double>("busy");
    QTest::addColumn<int>("load");
    QTest::newRow("idle") << 1.0 << 0.0 << 0;
    QTest::newRow("busy") << 0.0 << 1.0 << 100;
    QTest::newRow("quarter") << 0.75 << 0.25 << 25;
    QTest::newRow("rounded down") << 0.996 << 0.004 << 0;
    QTest::newRow("rounded up") << 0.994 << 0.006 << 1;
}

void tst_CpuMeter::loadIsWhatWasNotIdle()
{
    QFETCH(double, idle);
    QFETCH(double, busy);
    QFETCH(int, load);
    CpuMeter meter;
    meter.measure(readings(1000, 500));
    QCOMPARE(meter.measure(readings(1000 + idle, 500 + busy)), std::optional(load));
}

void tst_CpuMeter::firstReadingYieldsNothing()
{
    QVERIFY(!CpuMeter().measure(readings(1, 1)));
}

void tst_CpuMeter::processorsAreAddedUp()
{
    const auto both = [](double busyFirst, double idleSecond) {
        return Readings{{QStringLiteral("0 idle"), {true, 0}},
                        {QStringLiteral("0 user"), {false, busyFirst}},
                        {QStringLiteral("1 idle"), {true, idleSecond}},
                        {QStringLiteral("1 user"), {false, 0}}};
    };
    CpuMeter meter;
    meter.measure(both(0, 0));
    QCOMPARE(meter.measure(both(1, 1)), std::optional(50));
}

void tst_CpuMeter::readingsThatDoNotGoTogetherYieldNothingOnce_data()
{
    QTest::addColumn<QHash<QString, CpuCounter>>("second");
    Readings more = readings(11, 11);
    more.insert(QStringLiteral("1 idle"), {true, 1});
    const Readings fewer = {{QStringLiteral("0 idle"), {true, 11}}};
    const Readings others = {{QStringLiteral("1 idle"), {true, 11}},
                             {QStringLiteral("1 user"), {false, 11}}};
    QTest::newRow("one stepped back") << readings(9, 11);
    QTest::newRow("all stepped back") << readings(0, 0);
    QTest::newRow("none moved") << readings(10, 10);
    QTest::newRow("one appeared") << more;
    QTest::newRow("one is gone") << fewer;
    QTest::newRow("others") << others;
}

void tst_CpuMeter::readingsThatDoNotGoTogetherYieldNothingOnce()
{
    QFETCH(Readings, second);
    CpuMeter meter;
    meter.measure(readings(10, 10));
    QVERIFY(!meter.measure(second));
    for (CpuCounter &counter : second)
        counter.seconds += 1;
    QVERIFY(meter.measure(second));
}

QTEST_GUILESS_MAIN(tst_CpuMeter)
#include "tst_CpuMeter.moc"
