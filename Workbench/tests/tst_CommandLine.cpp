#include "CommandLine.h"

#include "InputFailure.h"

#include <QRegularExpression>
#include <QTest>

namespace {

const QCommandLineOption Fast{QStringLiteral("fast"), QStringLiteral("Run.")};
const QCommandLineOption Pace{QStringLiteral("pace"), QStringLiteral("Walk."),
                              QStringLiteral("number"), QStringLiteral("4")};

QStringList words(const QString &arguments)
{
    return (QStringLiteral("program ") + arguments).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

class tst_CommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void readsWhatWasAdded();
    void optionsHaveDefaults();
    void everyProgramHasTheCommonOptions();
    void filesMayBeBundled();
    void wrongArgumentsAreRefused_data();
    void wrongArgumentsAreRefused();
    void groupsStandInTheOrderOfTheirAddition();
    void languageIsFoundAmongWhatIsWrong();
};

void tst_CommandLine::languageIsFoundAmongWhatIsWrong()
{
    QCOMPARE(CommandLine::languageOf(words({})), QStringLiteral("en"));
    QCOMPARE(CommandLine::languageOf(words(QStringLiteral("--speed x --language de --fast stray"))),
             QStringLiteral("de"));
    QCOMPARE(CommandLine::languageOf(words(QStringLiteral("--language=de --site"))),
             QStringLiteral("de"));
    QCOMPARE(CommandLine::languageOf(words(QStringLiteral("--site"))), QStringLiteral("en"));
}

void tst_CommandLine::readsWhatWasAdded()
{
    CommandLine line;
    line.add({{QStringLiteral("Speed:"), {Fast, Pace}}});
    line.parse(words(QStringLiteral("--fast --pace 5")));
    QVERIFY(line.isSet(Fast));
    QVERIFY(line.isSet(Pace));
    QCOMPARE(line.value(Pace), QStringLiteral("5"));
}

void tst_CommandLine::optionsHaveDefaults()
{
    CommandLine line;
    line.add({{QStringLiteral("Speed:"), {Fast, Pace}}});
    line.parse(words({}));
    QVERIFY(!line.isSet(Fast));
    QVERIFY(!line.isSet(Pace));
    QCOMPARE(line.value(Pace), QStringLiteral("4"));
}

void tst_CommandLine::everyProgramHasTheCommonOptions()
{
    CommandLine line;
    line.add({{QStringLiteral("All:"), {line.site, line.language, line.help, line.version}}});
    line.parse(words(QStringLiteral("-h -v")));
    QVERIFY(line.isSet(line.help));
    QVERIFY(line.isSet(line.version));
    QCOMPARE(line.value(line.language), QStringLiteral("en"));
    QCOMPARE(line.value(line.site), QStringLiteral("default"));
}

void tst_CommandLine::filesMayBeBundled()
{
    CommandLine line;
    line.add({{QStringLiteral("All:"), {line.site}}});
    line.parse(words({}));
    QCOMPARE(line.file(line.site, QStringLiteral("sites")),
             QStringLiteral(":/workbench/sites/default.json"));
    line.parse(words(QStringLiteral("--site none")));
    QCOMPARE(line.file(line.site, QStringLiteral("sites")), QStringLiteral("none"));
}

void tst_CommandLine::wrongArgumentsAreRefused_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown") << QStringLiteral("--slow")
                             << QStringLiteral("Unknown option 'slow'.");
    QTest::newRow("common, but not added")
        << QStringLiteral("--help") << QStringLiteral("Unknown option 'help'.");
    QTest::newRow("value missing")
        << QStringLiteral("--pace") << QStringLiteral("Missing value after '--pace'.");
    QTest::newRow("stray argument")
        << QStringLiteral("--fast 7") << QStringLiteral("Expected options only, found \"7\".");
}

void tst_CommandLine::wrongArgumentsAreRefused()
{
    QFETCH(QString, arguments);
    CommandLine line;
    line.add({{QStringLiteral("Speed:"), {Fast, Pace}}});
    QTEST(inputFailure([&line, &arguments] { line.parse(words(arguments)); }), "message");
}

void tst_CommandLine::groupsStandInTheOrderOfTheirAddition()
{
    CommandLine line;
    line.add({{QStringLiteral("Speed:"), {Pace, Fast}}});
    line.add({{QStringLiteral("Others:"), {line.version}}});
    QCOMPARE(line.optionsText(), QStringLiteral("Speed:\n"
                                                "  --pace <number>         Walk.\n"
                                                "  --fast                  Run.\n"
                                                "\n"
                                                "Others:\n"
                                                "  -v, --version           Print the version.\n"));
}

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"
