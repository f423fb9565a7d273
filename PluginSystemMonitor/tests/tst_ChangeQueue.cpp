#include "ChangeQueue.h"

#include <QRegularExpression>
#include <QStringList>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_ChangeQueue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void idleQueueIsNotBusy();
    void changeIsMadeAtOnce();
    void callFromWithinAChangeFollowsIt();
    void postponedCallsKeepTheirOrder();
    void callPostponedByAPostponedCallComesLast();
    void postponedCallEndsBeforeTheNextBegins();
    void changeWithinAChangeLetsCallsWaitForTheOuterOne();
    void postponedCallMayChangeAtOnce();
    void callDuringAChangeByOthersFollowsFromTheEventLoop();
    void laterCallDoesNotOvertakeAWaitingOne();
    void eventLoopWithinAChangeByOthersDoesNothing();
};

void tst_ChangeQueue::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_ChangeQueue::idleQueueIsNotBusy()
{
    const ChangeQueue queue(this);
    QVERIFY(!queue.isBusy());
}

void tst_ChangeQueue::changeIsMadeAtOnce()
{
    ChangeQueue queue(this);
    bool isMade = false;
    queue.perform([&] {
        isMade = true;
        QVERIFY(queue.isBusy());
    });
    QVERIFY(isMade);
    QVERIFY(!queue.isBusy());
}

void tst_ChangeQueue::callFromWithinAChangeFollowsIt()
{
    ChangeQueue queue(this);
    QStringList log;
    queue.perform([&] {
        queue.postpone([&] { log.append(u"call"_s); });
        log.append(u"change"_s);
    });
    QCOMPARE(log, QStringList({u"change"_s, u"call"_s}));
    QVERIFY(!queue.isBusy());
}

void tst_ChangeQueue::postponedCallsKeepTheirOrder()
{
    ChangeQueue queue(this);
    QStringList log;
    queue.perform([&] {
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
            queue.postpone([&log, name] { log.append(name); });
    });
    QCOMPARE(log, QStringList({u"a"_s, u"b"_s, u"c"_s}));
}

void tst_ChangeQueue::callPostponedByAPostponedCallComesLast()
{
    ChangeQueue queue(this);
    QStringList log;
    queue.perform([&] {
        queue.postpone([&] {
            log.append(u"a"_s);
            queue.perform([&] { queue.postpone([&] { log.append(u"of a"_s); }); });
        });
        queue.postpone([&] { log.append(u"b"_s); });
    });
    QCOMPARE(log, QStringList({u"a"_s, u"b"_s, u"of a"_s}));
}

void tst_ChangeQueue::postponedCallEndsBeforeTheNextBegins()
{
    ChangeQueue queue(this);
    QStringList log;
    queue.perform([&] {
        queue.postpone([&] {
            queue.perform([&] { log.append(u"change of a"_s); });
            log.append(u"end of a"_s);
        });
        queue.postpone([&] { log.append(u"b"_s); });
    });
    QCOMPARE(log, QStringList({u"change of a"_s, u"end of a"_s, u"b"_s}));
}

void tst_ChangeQueue::changeWithinAChangeLetsCallsWaitForTheOuterOne()
{
    ChangeQueue queue(this);
    QStringList log;
    queue.perform([&] {
        queue.perform([&] { queue.postpone([&] { log.append(u"call"_s); }); });
        log.append(u"change"_s);
    });
    QCOMPARE(log, QStringList({u"change"_s, u"call"_s}));
}

void tst_ChangeQueue::postponedCallMayChangeAtOnce()
{
    ChangeQueue queue(this);
    bool wasBusy = true;
    queue.perform([&] {
        queue.postpone([&] { wasBusy = queue.isBusy(); });
        queue.postpone([] {});
    });
    QVERIFY(!wasBusy);
}

void tst_ChangeQueue::callDuringAChangeByOthersFollowsFromTheEventLoop()
{
    bool isChanging = true;
    ChangeQueue queue(this, [&] { return isChanging; });
    QVERIFY(queue.isBusy());
    bool isDone = false;
    queue.postpone([&] { isDone = true; });
    isChanging = false;
    QVERIFY(!isDone);
    QCoreApplication::processEvents();
    QVERIFY(isDone);
    QVERIFY(!queue.isBusy());
}

void tst_ChangeQueue::laterCallDoesNotOvertakeAWaitingOne()
{
    bool isChanging = true;
    ChangeQueue queue(this, [&] { return isChanging; });
    QStringList log;
    queue.postpone([&] { log.append(u"a"_s); });
    isChanging = false;
    QVERIFY(queue.isBusy());
    queue.postpone([&] { log.append(u"b"_s); });
    QCoreApplication::processEvents();
    QCOMPARE(log, QStringList({u"a"_s, u"b"_s}));
}

void tst_ChangeQueue::eventLoopWithinAChangeByOthersDoesNothing()
{
    bool isChanging = true;
    ChangeQueue queue(this, [&] { return isChanging; });
    QStringList log;
    queue.postpone([&] { log.append(u"a"_s); });
    QCoreApplication::processEvents();
    QCOMPARE(log, QStringList());
    isChanging = false;
    queue.postpone([&] { log.append(u"b"_s); });
    QCoreApplication::processEvents();
    QCOMPARE(log, QStringList({u"a"_s, u"b"_s}));
}

QTEST_GUILESS_MAIN(tst_ChangeQueue)
#include "tst_ChangeQueue.moc"
