#include "ScenarioDriver.h"

#include "CallLog.h"
#include "VirtualClock.h"

#include <QTest>

using namespace ScenarioAction;

namespace {

ScenarioEvent focusAt(qint64 ms, const char *station)
{
    return {ms, FocusStation{QString::fromLatin1(station)}};
}

} // namespace

class tst_ScenarioDriver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.take(); }

    void eventsAreDueAtTheirTimes();
    void nothingHappensBeforeTheEventLoop();
    void screenshotFollowsEventsOfItsTime();
    void screenshotMayBeLast();
    void emptyScenarioFinishes();
    void endMayBeLaterThanTheEvents();
    void overdueEventsComeInTheirOrder();
    void canBePlayedAgain();
    void timeStandsStillWhileHeld();
    void resumeWithoutAHoldChangesNothing();
    void clockThatIsSetChangesNothing();

private:
    void follow(const ScenarioDriver &driver);

    CallLog m_log;
};

void tst_ScenarioDriver::follow(const ScenarioDriver &driver)
{
    connect(&driver, &ScenarioDriver::due, this, [this](const AnyScenarioAction &action) {
        m_log.add(std::get<FocusStation>(action).stationId);
    });
    connect(&driver, &ScenarioDriver::screenshotDue, this,
            [this] { m_log.add(QStringLiteral("screenshot")); });
    connect(&driver, &ScenarioDriver::finished, this,
            [this] { m_log.add(QStringLiteral("finished")); });
}

void tst_ScenarioDriver::eventsAreDueAtTheirTimes()
{
    VirtualClock clock;
    ScenarioDriver driver(
        {{focusAt(0, "a"), focusAt(1000, "b"), focusAt(1000, "c"), focusAt(2500, "d")}, {}, 2500},
        clock);
    follow(driver);
    driver.start();
    clock.advance(0);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("a")});
    clock.advance(999);
    QCOMPARE(m_log.take(), QStringList());
    clock.advance(1);
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("b"), QStringLiteral("c")}));
    clock.advance(1499);
    QCOMPARE(m_log.take(), QStringList());
    clock.advance(1);
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("d"), QStringLiteral("finished")}));
    clock.advance(60'000);
    QCOMPARE(m_log.take(), QStringList());
}

void tst_ScenarioDriver::nothingHappensBeforeTheEventLoop()
{
    VirtualClock clock;
    ScenarioDriver driver({{focusAt(0, "a")}, {}, 0}, clock);
    follow(driver);
    driver.start();
    QCOMPARE(m_log.take(), QStringList());
}

void tst_ScenarioDriver::screenshotFollowsEventsOfItsTime()
{
    VirtualClock clock;
    ScenarioDriver driver({{focusAt(1000, "a"), focusAt(2000, "b")}, 1000, 2000}, clock);
    follow(driver);
    driver.start();
    clock.advance(5000);
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("a"), QStringLiteral("screenshot"),
                                        QStringLiteral("b"), QStringLiteral("finished")}));
}

void tst_ScenarioDriver::screenshotMayBeLast()
{
    VirtualClock clock;
    ScenarioDriver driver({{focusAt(1000, "a")}, 3000, 3000}, clock);
    follow(driver);
    driver.start();
    clock.advance(2999);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("a")});
    clock.advance(1);
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("screenshot"), QStringLiteral("finished")}));
}

void tst_ScenarioDriver::emptyScenarioFinishes()
{
    VirtualClock clock;
    ScenarioDriver driver({}, clock);
    follow(driver);
    driver.start();
    clock.advance(0);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("finished")});
}

void tst_ScenarioDriver::endMayBeLaterThanTheEvents()
{
    VirtualClock clock;
    ScenarioDriver driver({{focusAt(1000, "a")}, {}, 4000}, clock);
    follow(driver);
    driver.start();
    clock.advance(3999);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("a")});
    clock.advance(1);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("finished")});
}

// A busy event loop makes all calls late.
void tst_ScenarioDriver::overdueEventsComeInTheirOrder()
{
    VirtualClock clock;
    ScenarioDriver driver({{focusAt(1000, "a"), focusAt(2000, "b")}, 1500, 2000}, clock);
    follow(driver);
    clock.callAt(VirtualClock::StartMs, this, [&clock, &driver] {
        driver.start();
        clock.leap(10'000);
    });
    clock.advance(20'000);
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("a"), QStringLiteral("b"),
                                        QStringLiteral("screenshot"), QStringLiteral("finished")}));
}

void tst_ScenarioDriver::canBePlayedAgain()
{
    VirtualClock clock;
    ScenarioDriver driver({{focusAt(1000, "a")}, 1000, 1000}, clock);
    follow(driver);
    driver.start();
    clock.advance(1000);
    const QStringList once = m_log.take();
    driver.start();
    clock.advance(999);
    QCOMPARE(m_log.take(), QStringList());
    clock.advance(1);
    QCOMPARE(m_log.take(), once);
}

// Even when the hold comes late, what follows keeps its distance.
void tst_ScenarioDriver::timeStandsStillWhileHeld()
{
    VirtualClock clock;
    ScenarioDriver driver(
        {{focusAt(1000, "a"), focusAt(1000, "b"), focusAt(2000, "c")}, 1500, 2000}, clock);
    follow(driver);
    const auto holdOnce = connect(&driver, &ScenarioDriver::due, &driver, &ScenarioDriver::hold);
    driver.start();
    clock.advance(50'000);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("a")});
    disconnect(holdOnce);
    driver.resume();
    clock.advance(0);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("b")});
    clock.advance(500);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("screenshot")});
    clock.advance(500);
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("c"), QStringLiteral("finished")}));
}

void tst_ScenarioDriver::resumeWithoutAHoldChangesNothing()
{
    VirtualClock clock;
    ScenarioDriver driver({{focusAt(1000, "a")}, {}, 1000}, clock);
    follow(driver);
    driver.start();
    driver.resume();
    clock.advance(1000);
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("a"), QStringLiteral("finished")}));
}

void tst_ScenarioDriver::clockThatIsSetChangesNothing()
{
    VirtualClock clock;
    ScenarioDriver driver({{focusAt(1000, "a"), focusAt(2000, "b")}, {}, 3000}, clock);
    follow(driver);
    QVERIFY(!driver.elapsedMs());
    driver.start();
    clock.set(-3'600'000);
    clock.advance(1000);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("a")});
    clock.set(7'200'000);
    clock.advance(999);
    QCOMPARE(m_log.take(), QStringList());
    QCOMPARE(driver.elapsedMs(), std::optional<qint64>(1999));
    clock.advance(1);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("b")});
}

QTEST_GUILESS_MAIN(tst_ScenarioDriver)
#include "tst_ScenarioDriver.moc"
