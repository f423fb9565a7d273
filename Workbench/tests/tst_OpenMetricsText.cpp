#include "OpenMetricsText.h"

#include "ReadMetrics.h"

#include <QTest>

#include <limits>

using Type = OpenMetricsText::Type;

class tst_OpenMetricsText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsAText();
    void familyHasTypeUnitAndHelp();
    void samplesOfCountersEndInTotal();
    void labelValuesAreEscaped_data();
    void labelValuesAreEscaped();
    void helpIsEscaped();
    void numbersAreExact_data();
    void numbersAreExact();
    void numbersThatAreNotFiniteAreAbsent();
    void readersSeeWhatWasWritten();
};

void tst_OpenMetricsText::nothingIsAText()
{
    QCOMPARE(OpenMetricsText().text(), QByteArray("# EOF\n"));
}

void tst_OpenMetricsText::familyHasTypeUnitAndHelp()
{
    OpenMetricsText out;
    out.beginFamily("cpu_ratio", Type::Gauge, "ratio", QStringLiteral("Usage."));
    out.addSample({}, 0.25);
    QCOMPARE(out.text(), QByteArray("# TYPE cpu_ratio gauge\n"
                                    "# UNIT cpu_ratio ratio\n"
                                    "# HELP cpu_ratio Usage.\n"
                                    "cpu_ratio 0.25\n"
                                    "# EOF\n"));
}

void tst_OpenMetricsText::samplesOfCountersEndInTotal()
{
    OpenMetricsText out;
    out.beginFamily("events", Type::Counter, {}, QStringLiteral("Events."));
    out.addSample({{"event", QStringLiteral("a")}, {"from", QStringLiteral("b")}}, 3);
    QCOMPARE(out.text(), QByteArray("# TYPE events counter\n"
                                    "# HELP events Events.\n"
                                    "events_total{event=\"a\",from=\"b\"} 3\n"
                                    "# EOF\n"));
}

void tst_OpenMetricsText::labelValuesAreEscaped_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("empty") << QString() << QByteArray();
    QTest::newRow("quotation mark") << QStringLiteral("a\"b") << QByteArray(R"(a\"b)");
    QTest::newRow("backslash") << QStringLiteral("a\\b") << QByteArray(R"(a\\b)");
    QTest::newRow("line break") << QStringLiteral("a\nb") << QByteArray(R"(a\nb)");
    QTest::newRow("backslash before n") << QStringLiteral("a\\nb") << QByteArray(R"(a\\nb)");
    QTest::newRow("other alphabet") << QStringLiteral("T\u00fcr \u6771") << QByteArray("Tür 東");
    QTest::newRow("braces") << QStringLiteral("} 1 # {") << QByteArray("} 1 # {");
}

void tst_OpenMetricsText::labelValuesAreEscaped()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, written);
    OpenMetricsText out;
    out.beginFamily("a", Type::Gauge, {}, QStringLiteral("H."));
    out.addSample({{"b", value}}, 1);
    QVERIFY(out.text().endsWith("a{b=\"" + written + "\"} 1\n# EOF\n"));
}

void tst_OpenMetricsText::helpIsEscaped()
{
    OpenMetricsText out;
    out.beginFamily("a", Type::Gauge, {}, QStringLiteral("A \"b\"\n\\."));
    QVERIFY(out.text().contains(R"(# HELP a A \"b\"\n\\.)"
                                "\n"));
}

void tst_OpenMetricsText::numbersAreExact_data()
{
    QTest::addColumn<double>("value");
    for (const double value : {0.0, 0.1, 0.57, 1.0, -2.5, 1'780'660'860.0, 1e300})
        QTest::addRow("%g", value) << value;
}

void tst_OpenMetricsText::numbersAreExact()
{
    QFETCH(double, value);
    OpenMetricsText out;
    out.beginFamily("a", Type::Gauge, {}, QStringLiteral("H."));
    out.addSample({}, value);
    const QByteArray line = out.text().split('\n').at(2);
    QCOMPARE(line.mid(2).toDouble(), value);
}

void tst_OpenMetricsText::numbersThatAreNotFiniteAreAbsent()
{
    OpenMetricsText out;
    out.beginFamily("a", Type::Gauge, {}, QStringLiteral("H."));
    out.addSample({}, std::numeric_limits<double>::quiet_NaN());
    out.addSample({}, std::numeric_limits<double>::infinity());
    QVERIFY(!out.text().contains("\na"));
}

void tst_OpenMetricsText::readersSeeWhatWasWritten()
{
    OpenMetricsText out;
    out.beginFamily("cpu_ratio", Type::Gauge, "ratio", QStringLiteral("A \"b\"\n\\."));
    out.addSample({{"station", QStringLiteral("a\"b\\n\n\u6771 } 2")}}, 0.57);
    out.beginFamily("events", Type::Counter, {}, QStringLiteral("Events."));
    out.addSample({}, 1'780'660'860.0);
    QCOMPARE(readMetrics(out.text()),
             QStringList({QStringLiteral("gauge cpu_ratio{station='a\"b\\\\n\\n\u6771 } 2'} 0.57 "
                                         "ratio"),
                          QStringLiteral("counter events_total{} 1.78066e+09")}));
}

QTEST_GUILESS_MAIN(tst_OpenMetricsText)
#include "tst_OpenMetricsText.moc"
