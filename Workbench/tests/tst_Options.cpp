#include "Options.h"

#include "InputFailure.h"
#include "TextFile.h"

#include <QFileInfo>
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
    void readsTheServer();
    void journalsAreRecordedAndReplayed();
    void bundledFilesGoByTheirNames();
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
    QVERIFY(!options.connectTimeoutMs);
    QVERIFY(options.serverUrl.isEmpty());
    QCOMPARE(options.tokenFile, QString());
    QCOMPARE(options.storeFile, QString());
    QCOMPARE(options.language, QStringLiteral("en"));
    QCOMPARE(options.speed, 1.0);
    QCOMPARE(options.seed, DefaultScenarioSeed);
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
        "--language de --speed 2.5 --seed 4294967295 --store k.sqlite --help --version");
    const Options options = parse(arguments.split(u' '));
    QCOMPARE(options.siteFile, QStringLiteral("s.json"));
    QCOMPARE(options.scenarioFile, QStringLiteral("c.json"));
    QCOMPARE(options.pluginFile, QStringLiteral("p.so"));
    QCOMPARE(options.screenshotFile, QStringLiteral("x.png"));
    QCOMPARE(options.screenshotAtMs, std::optional(qint64(1500)));
    QCOMPARE(options.logFile, std::optional(QStringLiteral("l.sqlite")));
    QCOMPARE(options.language, QStringLiteral("de"));
    QCOMPARE(options.speed, 2.5);
    QCOMPARE(options.storeFile, QStringLiteral("k.sqlite"));
    QCOMPARE(options.seed, 4'294'967'295U);
    QVERIFY(options.isHeadless);
    QVERIFY(options.isLooped);
    QVERIFY(options.ignoresErrors);
    QCOMPARE(options.metricsPort, std::optional(quint16(9100)));
    QCOMPARE(options.format, ReportFormat::Json);
    QVERIFY(options.wantsHelp);
    QVERIFY(options.wantsVersion);
}

void tst_Options::readsTheServer()
{
    const QStringList server{QStringLiteral("--server"), QStringLiteral("ws://[::1]:99")};
    const Options options =
        parse(server + QStringLiteral("--token-file t --connect-timeout 2.5").split(u' '));
    QCOMPARE(options.serverUrl, QUrl(QStringLiteral("ws://[::1]:99")));
    QCOMPARE(options.tokenFile, QStringLiteral("t"));
    QCOMPARE(options.connectTimeoutMs, std::optional(2500));
    QCOMPARE(options.scenarioFile, QStringLiteral(":/workbench/scenarios/watch.json"));
    const QStringList scenario{QStringLiteral("--scenario"), QStringLiteral("default")};
    QCOMPARE(parse(server + scenario).scenarioFile,
             QStringLiteral(":/workbench/scenarios/default.json"));
}

void tst_Options::journalsAreRecordedAndReplayed()
{
    QCOMPARE(parse({QStringLiteral("--record"), QStringLiteral("j")}).recordFile,
             QStringLiteral("j"));
    const QStringList replay{QStringLiteral("--replay"), QStringLiteral("j")};
    QCOMPARE(parse(replay).replayFile, QStringLiteral("j"));
    QVERIFY(!parse(replay).isFast);
    QCOMPARE(parse(replay + QStringList{QStringLiteral("--speed=7")}).speed, 7.0);
    QVERIFY(parse(replay + QStringList{QStringLiteral("--speed=max")}).isFast);
}

void tst_Options::bundledFilesGoByTheirNames()
{
    QCOMPARE(parse({QStringLiteral("--scenario"), QStringLiteral("everything")}).scenarioFile,
             QStringLiteral(":/workbench/scenarios/everything.json"));
    QCOMPARE(parse({QStringLiteral("--scenario"), QStringLiteral("nothing")}).scenarioFile,
             QStringLiteral("nothing"));
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
    for (const char *const speed : {"fast", "0", "-1", "1001", "nan", "inf", "1,5", "max"}) {
        const QString text = QString::fromLatin1(speed);
        QTest::newRow(speed) << QStringLiteral("--speed=") + text
                             << QStringLiteral("--speed: expected a number greater than 0 and up "
                                               "to 1000, found \"%1\".")
                                    .arg(text);
    }
    for (const char *const seed : {"-1", "1.5", "4294967296", "luck"}) {
        const QString text = QString::fromLatin1(seed);
        QTest::newRow(seed) << QStringLiteral("--seed=") + text
                            << QStringLiteral("--seed: expected a whole number from 0 to "
                                              "4294967295, found \"%1\".")
                                   .arg(text);
    }
    for (const char *const option : {"record", "site", "scenario", "seed", "server", "store"}) {
        const QString name = QString::fromLatin1(option);
        QTest::addRow("replay and %s", option)
            << QStringLiteral("--replay j --%1 1").arg(name)
            << QStringLiteral("--%1: expected without --replay.").arg(name);
    }
    QTest::newRow("replay and format") << QStringLiteral("--replay j --format json")
                                       << QStringLiteral("--format: expected without --replay.");
    QTest::newRow("replay and ignore-errors")
        << QStringLiteral("--replay j --ignore-errors")
        << QStringLiteral("--ignore-errors: expected without --replay.");
    QTest::newRow("replay and metrics") << QStringLiteral("--replay j --metrics 0")
                                        << QStringLiteral("--metrics: expected without --replay.");
    for (const char *const option : {"replay", "store", "record", "token-file", "log", "site"}) {
        const QString name = QString::fromLatin1(option);
        QTest::addRow("empty %s", option) << QStringLiteral("--%1=").arg(name)
                                          << QStringLiteral("--%1: expected a value.").arg(name);
    }
    for (const char *const port : {"-1", "65536", "http", "80.5"}) {
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
    for (const char *const url : {"127.0.0.1:8765", "http://127.0.0.1:8765", "ws://"}) {
        const QString text = QString::fromLatin1(url);
        QTest::newRow(url) << QStringLiteral("--server=") + text
                           << QStringLiteral("--server: expected an address such as "
                                             "ws://127.0.0.1:8765, found \"%1\".")
                                  .arg(text);
    }
    QTest::newRow("token for nobody")
        << QStringLiteral("--token-file t")
        << QStringLiteral("--token-file: expected --server URL as well.");
    QTest::newRow("patience with nobody")
        << QStringLiteral("--connect-timeout 5")
        << QStringLiteral("--connect-timeout: expected --server URL as well.");
    QTest::newRow("no patience") << QStringLiteral("--server ws://a --connect-timeout 0")
                                 << QStringLiteral("--connect-timeout: expected a number greater "
                                                   "than 0 and up to 86400, found \"0\".");
    QTest::newRow("store of another process")
        << QStringLiteral("--server ws://a --store k")
        << QStringLiteral("--store: expected without --server.");
    QTest::newRow("clock of another process")
        << QStringLiteral("--server ws://a --speed 2")
        << QStringLiteral("--speed: expected without --server.");
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
    for (const char *const option : {"--headless",   "--site",          "--scenario",
                                     "--speed",      "--seed",          "--loop",
                                     "--screenshot", "--screenshot-at", "--ignore-errors",
                                     "--format",     "--metrics",       "--language",
                                     "--page",       "--log",           "--plugin",
                                     "--server",     "--token-file",    "--connect-timeout",
                                     "--store",      "--record",        "--replay",
                                     "--help",       "--version"})
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
    QVERIFY(file.startsWith(QCoreApplication::applicationDirPath() + u'/'));
    QVERIFY(QFileInfo(file).fileName().contains(QStringLiteral("PluginSystemMonitor")));
}

QTEST_GUILESS_MAIN(tst_Options)
#include "tst_Options.moc"
