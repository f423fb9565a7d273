#include "ScaledClock.h"

#include <QDateTime>
#include <QTest>

class tst_ScaledClock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithTheSystemClock();
    void fastClockRunsAhead();
    void callsOnceTheTimeIsReached();
    void callsAreMadeFromTheEventLoop();
    void callsFollowTheirTimes();
    void callsAfterAWhile();
    void noCallOnceTheContextIsGone();
};

void tst_ScaledClock::startsWithTheSystemClock()
{
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    const ScaledClock clock;
    const qint64 now = clock.nowMs();
    QVERIFY(before <= now);
    QVERIFY(now <= QDateTime::currentMSecsSinceEpoch());
}

void tst_ScaledClock::fastClockRunsAhead()
{
    const ScaledClock clock(1000);
    QTRY_VERIFY(clock.nowMs() > QDateTime::currentMSecsSinceEpoch() + 1000);
}

void tst_ScaledClock::callsOnceTheTimeIsReached()
{
    ScaledClock clock(1000);
    const qint64 time = clock.nowMs() + 20'000;
    qint64 calledAt = 0;
    clock.callAt(time, this, [&clock, &calledAt] { calledAt = clock.nowMs(); });
    QTRY_VERIFY(calledAt != 0);
    QVERIFY(calledAt >= time);
}

void tst_ScaledClock::callsAreMadeFromTheEventLoop()
{
    ScaledClock clock;
    bool isCalled = false;
    clock.callAt(clock.nowMs() - 1000, this, [&isCalled] { isCalled = true; });
    QVERIFY(!isCalled);
    QTRY_VERIFY(isCalled);
}

void tst_ScaledClock::callsFollowTheirTimes()
{
    ScaledClock clock(1000);
    const qint64 now = clock.nowMs();
    QList<int> calls;
    clock.callAt(now + 30'000, this, [&calls] { calls.append(2); });
    clock.callAt(now + 10'000, this, [&calls] { calls.append(1); });
    QTRY_COMPARE(calls, QList<int>({1, 2}));
}

void tst_ScaledClock::callsAfterAWhile()
{
    ScaledClock clock(1000);
    const qint64 start = clock.elapsedMs();
    QList<int> calls;
    qint64 calledAt = 0;
    clock.callAfter(30'000, this, [&] {
        calls.append(2);
        calledAt = clock.elapsedMs();
    });
    clock.callAfter(10'000, this, [&calls] { calls.append(1); });
    QCOMPARE(calls, QList<int>());
    QTRY_COMPARE(calls, QList<int>({1, 2}));
    QVERIFY(calledAt >= start + 30'000);
}

void tst_ScaledClock::noCallOnceTheContextIsGone()
{
    ScaledClock clock;
    bool isCalled = false;
    bool isLater = false;
    {
        QObject context;
        clock.callAt(clock.nowMs(), &context, [&isCalled] { isCalled = true; });
    }
    clock.callAt(clock.nowMs() + 10, this, [&isLater] { isLater = true; });
    QTRY_VERIFY(isLater);
    QVERIFY(!isCalled);
}

QTEST_GUILESS_MAIN(tst_ScaledClock)
#include "tst_ScaledClock.moc"
