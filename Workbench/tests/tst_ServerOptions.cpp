#include "ServerOptions.h"

#include "InputFailure.h"

#include <QTest>

namespace {

ServerOptions parse(const QString &arguments)
{
    return parseServerOptions(
        (QStringLiteral("site-server ") + arguments).split(u' ', Qt::SkipEmptyParts));
}

} // namespace

class tst_ServerOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingHasADefault();
    void readsEveryOption();
    void addressesAreRead_data();
    void addressesAreRead();
    void wrongOptionsAreRefused_data();
    void wrongOptionsAreRefused();
    void helpNamesEveryOption();
    void helpFitsATerminal();
};

void tst_ServerOptions::everythingHasADefault()
{
    const ServerOptions options = parse({});
    QCOMPARE(options.siteFile, QStringLiteral(":/workbench/sites/default.json"));
    QCOMPARE(options.scenarioFile, QString());
    QCOMPARE(options.storeFile, QString());
    QCOMPARE(options.tokenFile, QString());
    QCOMPARE(options.language, QStringLiteral("en"));
    QCOMPARE(options.address, QHostAddress(QHostAddress::LocalHost));
    QCOMPARE(options.port, quint16(8765));
    QVERIFY(!options.wantsHelp);
    QVERIFY(!options.wantsVersion);
}

void tst_ServerOptions::readsEveryOption()
{
    const ServerOptions options =
        parse(QStringLiteral("--site s.json --scenario everything --store x.sqlite --token-file t "
                             "--listen 0.0.0.0:99 --language de --help --version"));
    QCOMPARE(options.siteFile, QStringLiteral("s.json"));
    QCOMPARE(options.scenarioFile, QStringLiteral(":/workbench/scenarios/everything.json"));
    QCOMPARE(options.storeFile, QStringLiteral("x.sqlite"));
    QCOMPARE(options.tokenFile, QStringLiteral("t"));
    QCOMPARE(options.language, QStringLiteral("de"));
    QCOMPARE(options.address, QHostAddress(QHostAddress::AnyIPv4));
    QCOMPARE(options.port, quint16(99));
    QVERIFY(options.wantsHelp);
    QVERIFY(options.wantsVersion);
}

void tst_ServerOptions::addressesAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QHostAddress>("address");
    QTest::addColumn<int>("port");
    QTest::newRow("loopback") << QStringLiteral("127.0.0.2:1")
                              << QHostAddress(QStringLiteral("127.0.0.2")) << 1;
    QTest::newRow("IPv6") << QStringLiteral("[::1]:65535")
                          << QHostAddress(QHostAddress::LocalHostIPv6) << 65535;
    QTest::newRow("any port") << QStringLiteral("127.0.0.1:0")
                              << QHostAddress(QHostAddress::LocalHost) << 0;
}

void tst_ServerOptions::addressesAreRead()
{
    QFETCH(QString, text);
    QFETCH(int, port);
    const ServerOptions options = parse(QStringLiteral("--listen ") + text);
    QTEST(options.address, "address");
    QCOMPARE(int(options.port), port);
}

void tst_ServerOptions::wrongOptionsAreRefused_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown") << QStringLiteral("--fast")
                             << QStringLiteral("Unknown option 'fast'.");
    QTest::newRow("stray argument")
        << QStringLiteral("site.json")
        << QStringLiteral("Expected options only, found \"site.json\".");
    for (const char *const text :
         {"8765", "127.0.0.1", "127.0.0.1:", "127.0.0.1:65536", "127.0.0.1:x", "::1:8765",
          "localhost:8765", ":8765", "127.0.0.1:1/x", "me@127.0.0.1:1"})
        QTest::newRow(text) << QStringLiteral("--listen=") + QString::fromLatin1(text)
                            << QStringLiteral("--listen: expected an address and a port, such as "
                                              "127.0.0.1:8765 or [::1]:8765, found \"%1\".")
                                   .arg(QString::fromLatin1(text));
    for (const char *const text : {"0.0.0.0", "192.0.2.1", "[::]"})
        QTest::newRow(text) << QStringLiteral("--listen=%1:1").arg(QString::fromLatin1(text))
                            << QStringLiteral(
                                   "--listen: expected --token-file FILE as well, since %1 can be "
                                   "reached from other machines.")
                                   .arg(QString::fromLatin1(text).remove(u'[').remove(u']'));
}

void tst_ServerOptions::wrongOptionsAreRefused()
{
    QFETCH(QString, arguments);
    QTEST(inputFailure([&arguments] { parse(arguments); }), "message");
}

void tst_ServerOptions::helpNamesEveryOption()
{
    const QString help = serverOptionsHelp();
    for (const char *const option : {"--site", "--scenario", "--store", "--listen", "--token-file",
                                     "--language", "--help", "--version"})
        QVERIFY2(help.contains(QString::fromLatin1(option)), option);
    QVERIFY(help.contains(QStringLiteral("Exit codes")));
}

void tst_ServerOptions::helpFitsATerminal()
{
    const QStringList lines = serverOptionsHelp().split(u'\n');
    for (const QString &line : lines)
        QVERIFY2(line.size() < 80, qPrintable(line));
}

QTEST_GUILESS_MAIN(tst_ServerOptions)
#include "tst_ServerOptions.moc"
