#include "ErrorTally.h"

#include <QTest>

class tst_ErrorTally : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsByKind();
    void kindIsNamedByItsLastError();
    void nothingHappened();
};

void tst_ErrorTally::countsByKind()
{
    ErrorTally tally;
    const ListedError camera{QStringLiteral("3_a"), 3, QStringLiteral("Camera"), {}};
    const ListedError volume{QStringLiteral("5_a"), 5, QStringLiteral("Volume"), {}};
    tally.raised(volume);
    tally.raised(camera);
    tally.raised(camera);
    tally.cleared(camera);
    QCOMPARE(tally.counts().keys(), QList<int>({3, 5}));
    QCOMPARE(tally.counts().value(3).name, QStringLiteral("Camera"));
    QCOMPARE(tally.counts().value(3).raised, 2);
    QCOMPARE(tally.counts().value(3).cleared, 1);
    QCOMPARE(tally.counts().value(3).listed(), 1);
    QCOMPARE(tally.total().raised, 3);
    QCOMPARE(tally.total().cleared, 1);
    QCOMPARE(tally.total().listed(), 2);
}

void tst_ErrorTally::kindIsNamedByItsLastError()
{
    ErrorTally tally;
    tally.raised({QStringLiteral("0_a"), 0, QStringLiteral("over 80"), {}});
    tally.raised({QStringLiteral("0_b"), 0, QStringLiteral("over 90"), {}});
    QCOMPARE(tally.counts().value(0).name, QStringLiteral("over 90"));
}

void tst_ErrorTally::nothingHappened()
{
    QVERIFY(ErrorTally().counts().isEmpty());
    QCOMPARE(ErrorTally().total().listed(), 0);
}

QTEST_GUILESS_MAIN(tst_ErrorTally)
#include "tst_ErrorTally.moc"
