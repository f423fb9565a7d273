#include "MetricsText.h"

#include <QFile>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

QString printed(const Metric &metric)
{
    QStringList labels;
    for (auto label = metric.labels.cbegin(); label != metric.labels.cend(); ++label)
        labels.append(label.key() + u'=' + label.value());
    labels.sort();
    return QStringLiteral("%1{%2} %3")
        .arg(metric.name, labels.join(u','))
        .arg(metric.value, 0, 'g', 12);
}

QString failure(const QByteArray &text)
{
    try {
        parseMetrics(text);
    } catch (const MetricsError &error) {
        return error.reason();
    }
    return {};
}

} // namespace

class tst_MetricsText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsLines_data();
    void readsLines();
    void readsNumbers_data();
    void readsNumbers();
    void passesOverWhatIsNoMetric_data();
    void passesOverWhatIsNoMetric();
    void malformedLinesAreNamed_data();
    void malformedLinesAreNamed();
    void anyBeginningOfATextIsReadOrRefused();
    void textThatIsTooLongIsRefused();
    void readsWhatAnExporterAnswered();
};

void tst_MetricsText::readsLines_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("metric");
    const auto row = [](const char *name, const char *line, const char *metric) {
        QTest::newRow(name) << QByteArray(line) << QString::fromUtf8(metric);
    };
    row("without labels", "up 1", "up{} 1");
    row("empty labels", "up{} 1", "up{} 1");
    row("one label", R"(up{a="x"} 1)", "up{a=x} 1");
    row("labels in one order", R"(up{a="x",b="y"} 1)", "up{a=x,b=y} 1");
    row("labels in the other", R"(up{b="y",a="x"} 1)", "up{a=x,b=y} 1");
    row("comma at the end", R"(up{a="x",} 1)", "up{a=x} 1");
    row("blanks everywhere", "  up\t{ a = \"x\" , b = \"y\" }\t 1  ", "up{a=x,b=y} 1");
    row("no blank after the labels", R"(up{a="x"}1)", "up{a=x} 1");
    row("colon in the name", "job:up 1", "job:up{} 1");
    row("escaped quote", R"(up{a="x\"y"} 1)", "up{a=x\"y} 1");
    row("escaped backslash", R"(up{a="x\\"} 1)", "up{a=x\\} 1");
    row("escaped line end", R"(up{a="x\ny"} 1)", "up{a=x\ny} 1");
    row("unknown escape", R"(up{a="x\y"} 1)", "up{a=x\\y} 1");
    row("brace and comma in a label", R"(up{a="},{"} 1)", "up{a=},{} 1");
    row("UTF-8 in a label", "up{a=\"\xc3\xbc\"} 1", "up{a=\xc3\xbc} 1");
    row("timestamp", "up 1 1700000000000", "up{} 1");
    row("exemplar", R"(up 1 # {trace="x"} 0.5)", "up{} 1");
    row("timestamp and exemplar", R"(up 1 17.5 # {trace="x"} 0.5)", "up{} 1");
    row("line end of another system", "up 1\r\n", "up{} 1");
}

void tst_MetricsText::readsLines()
{
    QFETCH(QByteArray, line);
    const std::vector<Metric> metrics = parseMetrics(line);
    QCOMPARE(metrics.size(), 1U);
    QTEST(printed(metrics.front()), "metric");
}

void tst_MetricsText::readsNumbers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("whole") << QByteArray("12") << 12.0;
    QTest::newRow("negative") << QByteArray("-12") << -12.0;
    QTest::newRow("fraction") << QByteArray("0.25") << 0.25;
    QTest::newRow("exponent") << QByteArray("2.5e+03") << 2500.0;
    QTest::newRow("infinity") << QByteArray("+Inf") << std::numeric_limits<double>::infinity();
    QTest::newRow("negative infinity")
        << QByteArray("-Inf") << -std::numeric_limits<double>::infinity();
    QTest::newRow("not a number") << QByteArray("NaN") << std::nan("");
}

void tst_MetricsText::readsNumbers()
{
    QFETCH(QByteArray, text);
    QFETCH(double, value);
    const double read = parseMetrics("up " + text).front().value;
    if (std::isnan(value))
        QVERIFY(std::isnan(read));
    else
        QCOMPARE(read, value);
}

void tst_MetricsText::passesOverWhatIsNoMetric_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("empty lines") << QByteArray("\n\r\n  \n");
    QTest::newRow("help and type") << QByteArray("# HELP up \"{\n# TYPE up gauge\n#\n");
    QTest::newRow("end of the text") << QByteArray("# EOF\n");
}

void tst_MetricsText::passesOverWhatIsNoMetric()
{
    QFETCH(QByteArray, text);
    QVERIFY(parseMetrics(text).empty());
}

void tst_MetricsText::malformedLinesAreNamed_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const char *line, const char *reason) {
        QTest::newRow(name) << QByteArray(line) << QString::fromLatin1(reason);
    };
    row("page", "<html>", "line 3, column 1: expected a name");
    row("zero byte", "\x01", "line 3, column 1: expected a name");
    row("name alone", "up", "line 3, column 3: expected a number");
    row("no number", "up one", "line 3, column 4: expected a number");
    row("number with a tail", "up 1x", "line 3, column 4: expected a number");
    row("open braces", "up{", "line 3, column 4: expected the name of a label");
    row("label without a value", "up{a} 1", "line 3, column 5: expected =");
    row("label without quotes", "up{a=x} 1", "line 3, column 6: expected \"");
    row("open quotes", "up{a=\"x} 1", "line 3, column 11: expected \"");
    row("escape at the end", "up{a=\"x\\", "line 3, column 9: expected \"");
    row("no comma", R"(up{a="x" b="y"} 1)", "line 3, column 10: expected a comma");
    row("comma alone", "up{,} 1", "line 3, column 4: expected the name of a label");
    row("word after the number", "up 1 two", "line 3, column 6: expected a timestamp");
    row("third number", "up 1 2 3", "line 3, column 8: expected the end of the line");
}

void tst_MetricsText::malformedLinesAreNamed()
{
    QFETCH(QByteArray, line);
    QTEST(failure("# HELP up\nup 1\n" + line + "\nup 1\n"), "reason");
}

void tst_MetricsText::anyBeginningOfATextIsReadOrRefused()
{
    const QByteArray text = "# TYPE up gauge\nup{a=\"x\\\"\",b=\"\\n\"} 1.5e3 17 # {c=\"d\"} 1\n";
    for (qsizetype size = 0; size < text.size(); ++size) {
        const QByteArray beginning = text.left(size);
        if (failure(beginning).isEmpty())
            QVERIFY(parseMetrics(beginning).size() <= 1);
    }
}

void tst_MetricsText::textThatIsTooLongIsRefused()
{
    QCOMPARE(failure(QByteArray(MaxMetricsSize, '\n')), QString());
    QCOMPARE(failure(QByteArray(MaxMetricsSize + 1, '\n')),
             QStringLiteral("more than 1048576 bytes"));
}

void tst_MetricsText::readsWhatAnExporterAnswered()
{
    QFile file(QFINDTESTDATA("data/exporter/metrics.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const std::vector<Metric> metrics = parseMetrics(file.readAll());
    QStringList lines;
    for (const Metric &metric : metrics)
        lines.append(printed(metric));
    QVERIFY(lines.size() > 100);
    QVERIFY(lines.contains(QStringLiteral("node_cpu_seconds_total{cpu=1,mode=iowait} 20.41")));
    QVERIFY(lines.contains(QStringLiteral("node_memory_MemTotal_bytes{} 25276502016")));
}

QTEST_GUILESS_MAIN(tst_MetricsText)
#include "tst_MetricsText.moc"
