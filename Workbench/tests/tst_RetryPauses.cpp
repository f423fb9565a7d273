#include "RetryPauses.h"

#include <QList>
#include <QSet>
#include <QTest>

class tst_RetryPauses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pausesGrowUpToALimit_data();
    void pausesGrowUpToALimit();
    void resetBeginsWithShortPauses();
    void chanceSpreadsThePauses();
};

void tst_RetryPauses::pausesGrowUpToALimit_data()
{
    QTest::addColumn<double>("random");
    QTest::addColumn<QList<qint64>>("expected");
    QTest::newRow("longest") << 1.0
                             << QList<qint64>{250, 500, 1000, 2000, 4000, 8000, 15'000, 15'000};
    QTest::newRow("shortest") << 0.0 << QList<qint64>{125, 250, 500, 1000, 2000, 4000, 7500, 7500};
}

void tst_RetryPauses::pausesGrowUpToALimit()
{
    QFETCH(double, random);
    RetryPauses pauses([random] { return random; });
    QList<qint64> taken;
    for (int i = 0; i < 8; ++i)
        taken.append(pauses.takeNextMs());
    QTEST(taken, "expected");
}

void tst_RetryPauses::resetBeginsWithShortPauses()
{
    RetryPauses pauses([] { return 0.5; });
    for (int i = 0; i < 5; ++i)
        pauses.takeNextMs();
    pauses.reset();
    QCOMPARE(pauses.takeNextMs(), 187);
}

void tst_RetryPauses::chanceSpreadsThePauses()
{
    RetryPauses pauses;
    QSet<qint64> seen;
    for (int i = 0; i < 50; ++i) {
        pauses.reset();
        const qint64 pause = pauses.takeNextMs();
        QVERIFY(pause >= 125 && pause <= 250);
        seen.insert(pause);
    }
    QVERIFY(seen.size() > 5);
}

QTEST_GUILESS_MAIN(tst_RetryPauses)
#include "tst_RetryPauses.moc"
