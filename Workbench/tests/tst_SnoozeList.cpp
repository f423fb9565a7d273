#include "SnoozeList.h"

#include <QTest>

namespace {

constexpr qint64 Second = 1000;

Snooze snooze(const char *nodeId, qint64 endSeconds)
{
    return {QString::fromLatin1(nodeId), 3, endSeconds};
}

} // namespace

class tst_SnoozeList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stateDependsOnTheTimeAlone_data();
    void stateDependsOnTheTimeAlone();
    void activeNodesAreListedInOrder();
    void activeSnoozesAreWhole();
    void laterSnoozeOfANodeReplacesTheEarlier();
    void expiredSnoozesAreTakenOnceEarliestFirst();
    void nextEndIsTheEarliest();
    void removedSnoozeIsGone();
    void snoozeOfOneNodeIsFound();
};

void tst_SnoozeList::stateDependsOnTheTimeAlone_data()
{
    QTest::addColumn<qint64>("nowMs");
    QTest::addColumn<bool>("isActive");
    QTest::newRow("long before its end") << qint64(0) << true;
    QTest::newRow("in the last millisecond") << 100 * Second - 1 << true;
    QTest::newRow("at its end") << 100 * Second << false;
    QTest::newRow("after its end") << 101 * Second << false;
}

void tst_SnoozeList::stateDependsOnTheTimeAlone()
{
    QFETCH(qint64, nowMs);
    QFETCH(bool, isActive);
    QCOMPARE(snoozeState(snooze("a", 100), nowMs) == SnoozeState::Active, isActive);
}

void tst_SnoozeList::activeNodesAreListedInOrder()
{
    SnoozeList list;
    list.set(snooze("b", 200));
    list.set(snooze("a", 300));
    list.set(snooze("c", 100));
    QCOMPARE(list.activeNodeIds(100 * Second),
             QStringList({QStringLiteral("a"), QStringLiteral("b")}));
}

void tst_SnoozeList::activeSnoozesAreWhole()
{
    SnoozeList list;
    list.set(snooze("b", 200));
    list.set(snooze("c", 100));
    const std::vector<Snooze> active = list.active(100 * Second);
    QCOMPARE(active.size(), std::size_t(1));
    QCOMPARE(active.at(0).nodeId, QStringLiteral("b"));
    QCOMPARE(active.at(0).errorType, 3);
    QCOMPARE(active.at(0).endSeconds, qint64(200));
}

void tst_SnoozeList::laterSnoozeOfANodeReplacesTheEarlier()
{
    SnoozeList list;
    list.set(snooze("a", 100));
    list.set(snooze("a", 50));
    QCOMPARE(list.activeNodeIds(60 * Second), QStringList());
    QCOMPARE(list.takeExpired(60 * Second).size(), std::size_t(1));
}

void tst_SnoozeList::expiredSnoozesAreTakenOnceEarliestFirst()
{
    SnoozeList list;
    list.set(snooze("a", 30));
    list.set(snooze("b", 10));
    list.set(snooze("c", 40));
    const std::vector<Snooze> expired = list.takeExpired(30 * Second);
    QCOMPARE(expired.size(), std::size_t(2));
    QCOMPARE(expired.at(0).nodeId, QStringLiteral("b"));
    QCOMPARE(expired.at(1).nodeId, QStringLiteral("a"));
    QVERIFY(list.takeExpired(30 * Second).empty());
    QCOMPARE(list.activeNodeIds(30 * Second), QStringList{QStringLiteral("c")});
}

void tst_SnoozeList::nextEndIsTheEarliest()
{
    SnoozeList list;
    QVERIFY(!list.nextEndMs());
    list.set(snooze("a", 30));
    list.set(snooze("b", 10));
    QCOMPARE(list.nextEndMs(), std::optional(10 * Second));
    list.clear();
    QVERIFY(!list.nextEndMs());
}

void tst_SnoozeList::removedSnoozeIsGone()
{
    SnoozeList list;
    list.set(snooze("a", 30));
    QVERIFY(!list.remove(QStringLiteral("b")));
    QVERIFY(list.remove(QStringLiteral("a")));
    QVERIFY(!list.remove(QStringLiteral("a")));
}

void tst_SnoozeList::snoozeOfOneNodeIsFound()
{
    SnoozeList list;
    list.set({QStringLiteral("a"), 3, 100});
    QCOMPARE(list.active(QStringLiteral("a"), 99'000)->endSeconds, 100);
    QVERIFY(!list.active(QStringLiteral("a"), 100'000));
    QVERIFY(!list.active(QStringLiteral("b"), 0));
    QCOMPARE(list.all().size(), std::size_t(1));
}

QTEST_GUILESS_MAIN(tst_SnoozeList)
#include "tst_SnoozeList.moc"
