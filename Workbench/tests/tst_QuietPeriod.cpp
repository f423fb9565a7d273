#include "QuietPeriod.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTest>

#include <functional>

namespace {

// Timers may fire a little early.
constexpr qint64 Tolerance = 20;

} // namespace

class tst_QuietPeriod : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isReachedOnce();
    void nothingHappensBeforeItStarts();
    void changesOfTheListProlongIt();
    void walkAheadIsWaitedFor();
    void patienceHasAnEnd();
};

void tst_QuietPeriod::isReachedOnce()
{
    QStringListModel list;
    QuietPeriod quiet(list, {10, 100, 1000});
    QSignalSpy reached(&quiet, &QuietPeriod::reached);
    quiet.start();
    QVERIFY(reached.wait());
    list.insertRow(0);
    QVERIFY(!reached.wait(100));
    QCOMPARE(reached.size(), 1);
}

void tst_QuietPeriod::nothingHappensBeforeItStarts()
{
    QStringListModel list;
    QuietPeriod quiet(list, {10, 10, 10});
    QSignalSpy reached(&quiet, &QuietPeriod::reached);
    list.insertRow(0);
    quiet.expectWalk();
    QVERIFY(!reached.wait(100));
}

void tst_QuietPeriod::changesOfTheListProlongIt()
{
    QStringListModel list;
    QuietPeriod quiet(list, {200, 0, 60'000});
    QSignalSpy reached(&quiet, &QuietPeriod::reached);
    QElapsedTimer sinceChange;
    const auto changes = {
        std::function<void()>([&list] { list.insertRow(0); }),
        std::function<void()>([&list] { list.setData(list.index(0), QStringLiteral("a")); }),
        std::function<void()>([&list] { list.removeRow(0); }),
    };
    for (const std::function<void()> &change : changes) {
        quiet.start();
        QTimer::singleShot(100, &list, [&change, &sinceChange] {
            change();
            sinceChange.start();
        });
        QVERIFY(reached.wait(60'000));
        QVERIFY(sinceChange.elapsed() >= 200 - Tolerance);
    }
}

void tst_QuietPeriod::walkAheadIsWaitedFor()
{
    QStringListModel list;
    QuietPeriod quiet(list, {10, 200, 60'000});
    QSignalSpy reached(&quiet, &QuietPeriod::reached);
    QElapsedTimer sinceRetrieval;
    sinceRetrieval.start();
    quiet.expectWalk();
    quiet.start();
    QVERIFY(reached.wait(60'000));
    QVERIFY(sinceRetrieval.elapsed() >= 200 - Tolerance);
}

void tst_QuietPeriod::patienceHasAnEnd()
{
    QStringListModel list;
    QuietPeriod quiet(list, {60'000, 0, 200});
    QSignalSpy reached(&quiet, &QuietPeriod::reached);
    quiet.start();
    list.insertRow(0);
    QVERIFY(reached.wait(30'000));
}

QTEST_GUILESS_MAIN(tst_QuietPeriod)
#include "tst_QuietPeriod.moc"
