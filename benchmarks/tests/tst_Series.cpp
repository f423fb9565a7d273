#include "../Series.h"

#include <QTest>

class tst_Series : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bestTimeOfASizeCounts();
    void repetitionsAddUpToWhatWasSpent();
    void sizeThatWasNotMeasuredHasNoTime();
    void growthIsTheRatioOfTheBestTimes();
    void smallestSizeHasNoGrowth();
    void nothingIsExpectedOfTheFirstSize();
    void secondSizeIsExpectedToGrowByTheSquare();
    void furtherSizeIsExpectedToGrowAsTheLastOnesDid();
    void atLeastProportionalGrowthIsExpected();
};

void tst_Series::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
}

void tst_Series::bestTimeOfASizeCounts()
{
    Series series;
    series.add(1000, 8);
    series.add(1000, 5);
    series.add(1000, 6);
    QCOMPARE(series.at(1000), std::optional(5.0));
}

void tst_Series::repetitionsAddUpToWhatWasSpent()
{
    Series series;
    series.add(1000, 8);
    series.add(5000, 100);
    series.add(1000, 5);
    QCOMPARE(series.spent(1000), 13.0);
    QCOMPARE(series.spent(5000), 100.0);
}

void tst_Series::sizeThatWasNotMeasuredHasNoTime()
{
    Series series;
    series.add(1000, 8);
    QCOMPARE(series.at(5000), std::nullopt);
    QCOMPARE(series.spent(5000), 0.0);
    QCOMPARE(series.growth(5000), std::nullopt);
}

void tst_Series::growthIsTheRatioOfTheBestTimes()
{
    Series series;
    series.add(1000, 8);
    series.add(5000, 70);
    series.add(1000, 4);
    series.add(5000, 20);
    QCOMPARE(series.growth(5000), std::optional(5.0));
}

void tst_Series::smallestSizeHasNoGrowth()
{
    Series series;
    series.add(1000, 8);
    series.add(5000, 40);
    QCOMPARE(series.growth(1000), std::nullopt);
}

void tst_Series::nothingIsExpectedOfTheFirstSize()
{
    QCOMPARE(Series().expected(100000), 0.0);
}

void tst_Series::secondSizeIsExpectedToGrowByTheSquare()
{
    Series series;
    series.add(1000, 2);
    QCOMPARE(series.expected(10000), 200.0);
}

void tst_Series::furtherSizeIsExpectedToGrowAsTheLastOnesDid()
{
    Series series;
    series.add(10, 1);
    series.add(100, 1000);
    QCOMPARE(series.expected(1000), 1000000.0);
}

void tst_Series::atLeastProportionalGrowthIsExpected()
{
    Series series;
    series.add(10, 5);
    series.add(100, 5);
    QCOMPARE(series.expected(1000), 50.0);
}

QTEST_APPLESS_MAIN(tst_Series)

#include "tst_Series.moc"
