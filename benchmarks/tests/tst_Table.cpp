#include "../Table.h"

#include <QTest>

class tst_Table : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void columnsAreAsWideAsTheirWidestCell();
    void smallNumbersHaveDecimals_data();
    void smallNumbersHaveDecimals();
    void wholeNumbersHaveNone();
    void factorsHaveTwoDecimals();
};

void tst_Table::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
}

void tst_Table::columnsAreAsWideAsTheirWidestCell()
{
    Table table({QStringLiteral("storm"), QStringLiteral("ms")}, 1);
    table.add({QStringLiteral("a"), QStringLiteral("2,500")});
    table.add({QStringLiteral("walks"), QStringLiteral("7")});
    QCOMPARE(table.toMarkdown(), QStringLiteral("| storm |    ms |\n"
                                                "|-------|------:|\n"
                                                "| a     | 2,500 |\n"
                                                "| walks |     7 |\n"));
}

void tst_Table::smallNumbersHaveDecimals_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("text");

    QTest::newRow("below ten") << 0.084 << QStringLiteral("0.08");
    QTest::newRow("ten") << 10.0 << QStringLiteral("10.0");
    QTest::newRow("below a hundred") << 12.34 << QStringLiteral("12.3");
    QTest::newRow("a hundred") << 100.0 << QStringLiteral("100");
    QTest::newRow("thousands") << 9187.4 << QStringLiteral("9,187");
    QTest::newRow("negative") << -12.34 << QStringLiteral("-12.3");
}

void tst_Table::smallNumbersHaveDecimals()
{
    QFETCH(const double, number);
    QFETCH(const QString, text);
    QCOMPARE(formatted(number), text);
}

void tst_Table::wholeNumbersHaveNone()
{
    QCOMPARE(formatted(7), QStringLiteral("7"));
    QCOMPARE(formatted(20000), QStringLiteral("20,000"));
}

void tst_Table::factorsHaveTwoDecimals()
{
    QCOMPARE(formattedFactor(1.254), QStringLiteral("1.25"));
    QCOMPARE(formattedFactor(26.4), QStringLiteral("26.40"));
}

QTEST_APPLESS_MAIN(tst_Table)

#include "tst_Table.moc"
