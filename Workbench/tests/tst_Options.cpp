#include "Options.h"

#include "InputFailure.h"
#include "TextFile.h"

#include <QTest>

namespace {

Options parse(const QStringList &arguments)
{
    return parseOptions(QStringList(QStringLiteral("workbench")) + arguments);
}

} // namespace

class tst_Options : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingHasADefault();
    void readsEveryOption();
    void bundledFilesGoByTheirNames();
    void filesComeBeforeBundledOnes();
    void pageIsAFile();
    void wrongOptionsAreRefused_data();
    void wrongOptionsAreRefused();
    void helpNamesEveryOption();
    void helpFitsATerminal();
    void defaultPluginIsBesideTheProgram();
};

void tst_Options::everythingHasADefault()
{
    const Options options = parse({});
    QCOMPARE(options.siteFile, QStringLiteral(":/workbench/sites/default.json"));
    QCOMPARE(options.scenarioFile, QStringLiteral(":/workbench/scenarios/default.json"));
    QCOMPARE(options.pluginFile, QString());
    QCOMPARE(options.pageFile, QString());
    QCOMPARE(options.screenshotFile, QString());
    QVERIFY(!options.screenshotAtMs);
    QVERIFY(!options.logFile);
    QVERIFY(!options.metricsPort);
    QCOMPARE(options.language, QStringLiteral("en"));
    QCOMPARE(options.speed, 1.0);
    QVERIFY(!options.isHeadless);
    QVERIFY(!options.isLooped);
    QVERIFY(!options.ignoresErrors);
    QCOMPARE(options.format, ReportFormat::Text);
    QVERIFY(!options.wantsHelp);
    QVERIFY(!options.wantsVersion);
}

void tst_Options::readsEveryOption()
{
    const QString arguments = QStringLiteral(
        "--headless --loop --site s.json --scenario c.json --plugin p.so --screenshot x.png "
        "--screenshot-at 1.5 --ignore-errors --format json --metrics 9100 --log l.sqlite "
        "--language de --speed "
        "2.5 --help --version");
    const Options options = parse(arguments.split(u' '));
    QCOMPARE(options.siteFile, QStringLiteral("s.json"));
    QCOMPARE(options.scenarioFile, QStringLiteral("c.json"));
    QCOMPARE(options.pluginFile, QStringLiteral("p.so"));
    QCOMPARE(options.screenshotFile, QStringLiteral("x.png"));
    QCOMPARE(options.screenshotAtMs, std::optional(qint64(1500)));
    QCOMPARE(options.logFile, std::optional(QStringLiteral("l.sqlite")));
    QCOMPARE(options.language, QStringLiteral("de"));
    QCOMPARE(options.speed, 2.5);
    QVERIFY(options.isHeadless);
    QVERIFY(options.isLooped);
    QVERIFY(options.ignoresErrors);
    QCOMPARE(options.metricsPort, std::optional(quint16(9100)));
    QCOMPARE(options.format, ReportFormat::Json);
    QVERIFY(options.wantsHelp);
    QVERIFY(options.wantsVersion);
}

void tst_Options::bundledFilesGoByTheirNames()
{
    QCOMPARE(parse({QStringLiteral("--scenario"), QStringLiteral("everything")}).scenarioFile,
             QStringLiteral(":/workbench/scenarios/everything.json"));
    QCOMPARE(parse({QStringLiteral("--scenario"), QStringLiteral("nothing")}).scenarioFile,
             QStringLiteral("nothing"));
}

void tst_Options::filesComeBeforeBundledOnes()
{
    const TextFile file("{}", QStringLiteral("everything"));
    const QString before = QDir::currentPath();
    QDir::setCurrent(QFileInfo(file.path()).path());
    QCOMPARE(parse({QStringLiteral("--scenario"), QStringLiteral("everything")}).scenarioFile,
             QStringLiteral("everything"));
    QDir::setCurrent(before);
}

void tst_Options::pageIsAFile()
{
    const TextFile page("import QtQuick", QStringLiteral("Page.qml"));
    QCOMPARE(parse({QStringLiteral("--page"), page.path()}).pageFile, page.path());
}

void tst_Options::wrongOptionsAreRefused_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown") << QStringLiteral("--fast")
                             << QStringLiteral("Unknown option 'fast'.");
    QTest::newRow("value missing")
        << QStringLiteral("--site") << QStringLiteral("Missing value after '--site'.");
    QTest::newRow("stray argument")
        << QStringLiteral("site.json")
        << QStringLiteral("Expected options only, found \"site.json\".");
    for (const char *const speed : {"fast", "0", "-1", "1001", "nan", "inf", "1,5"}) {
        const QString text = QString::fromLatin1(speed);
        QTest::newRow(speed) << QStringLiteral("--speed=") + text
                             << QStringLiteral("--speed: expected a number greater than 0 and up "
                                               "to 1000, found \"%1\".")
                                    .arg(text);
    }
    for (const char *const port : {"-1", "65536", "http", "", "80.5"}) {
        const QString text = QString::fromLatin1(port);
        QTest::addRow("port '%s'", port)
            << QStringLiteral("--metrics=") + text
            << QStringLiteral("--metrics: expected a port from 0 to 65535, found \"%1\".")
                   .arg(text);
    }
    QTest::newRow("format") << QStringLiteral("--format xml")
                            << QStringLiteral("--format: expected text or json, found \"xml\".");
    QTest::newRow("page that is not there")
        << QStringLiteral("--page none.qml")
        << QStringLiteral("--page: expected a QML file, found \"none.qml\".");
    QTest::newRow("time of the picture")
        << QStringLiteral("--screenshot x.png --screenshot-at soon")
        << QStringLiteral("--screenshot-at: expected a number greater than 0 and up to 86400, "
                          "found \"soon\".");
    QTest::newRow("time of no picture")
        << QStringLiteral("--screenshot-at 5")
        << QStringLiteral("--screenshot-at: expected --screenshot FILE as well.");
}

void tst_Options::wrongOptionsAreRefused()
{
    QFETCH(QString, arguments);
    QTEST(inputFailure([&arguments] { parse(arguments.split(u' ')); }), "message");
}

void tst_Options::helpNamesEveryOption()
{
    const QString help = optionsHelp();
    for (const char *const option :
         {"--headless", "--site", "--scenario", "--speed", "--loop", "--screenshot",
          "--screenshot-at", "--ignore-errors", "--format", "--metrics", "--language", "--page",
          "--log", "--plugin", "--help", "--version"})
        QVERIFY2(help.contains(QString::fromLatin1(option)), option);
    QVERIFY(help.contains(QStringLiteral("Exit codes")));
    QVERIFY(help.contains(QStringLiteral("Examples")));
}

void tst_Options::helpFitsATerminal()
{
    const QStringList lines = optionsHelp().split(u'\n');
    for (const QString &line : lines)
        QVERIFY2(line.size() < 80, qPrintable(line));
}

void tst_Options::defaultPluginIsBesideTheProgram()
{
    const QString file = defaultPluginFile();
    QVERIFY(file.startsWith(QCoreApplication::applicationDirPath()));
    QVERIFY(file.contains(QStringLiteral("/plugins/")));
}

QTEST_GUILESS_MAIN(tst_Options)
#include "tst_Options.moc"
