#include "TextFile.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTcpServer>
#include <QTest>

#include <csignal>
#include <memory>

namespace {

// A program that runs until it is told to end, and what it has said so far.
class Program
{
public:
    Program(const QString &file, const QStringList &arguments)
    {
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(file, arguments);
    }

    ~Program() { kill(); }

    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    void signal(int number) { ::kill(static_cast<pid_t>(m_process.processId()), number); }

    const QString &output()
    {
        m_output += QString::fromUtf8(m_process.readAll());
        return m_output;
    }

    // Waits for a text that comes after all that was waited for before.
    bool waitFor(const QString &text, int timeoutMs = 20'000)
    {
        const bool isThere =
            QTest::qWaitFor([&] { return output().indexOf(text, m_seen) >= 0; }, timeoutMs);
        if (isThere)
            m_seen = m_output.indexOf(text, m_seen) + text.size();
        return isThere;
    }

    // What has come since the text that was waited for last.
    QString rest() { return output().mid(m_seen); }

    int waitForEnd() { return m_process.waitForFinished(20'000) ? m_process.exitCode() : -1; }

private:
    QProcess m_process;
    QString m_output;
    qsizetype m_seen = 0;
};

using ProgramPtr = std::unique_ptr<Program>;

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

/// The site server as its users run it, with real Workbenches.
class tst_SiteServerProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void helpAndVersionNeedNothing();
    void wrongInputIsRefused_data();
    void wrongInputIsRefused();
    void addressThatIsTakenIsNamed();
    void speaksGerman();

    void snoozeOfOneIsSeenByTheOtherAndHoldsAfterAKill();
    void stoppedServerIsNoticed();
    void missingServerIsWaitedForAsLongAsAskedFor();
    void clientWithoutTheTokenIsToldSo();
    void workbenchKeepsItsOwnSnoozes();

private:
    ProgramPtr startServer(const QStringList &arguments, const QString &address);
    ProgramPtr startWorkbench(const QByteArray &scenario, const QStringList &arguments = {});

    QString m_url; // of the last server
    std::vector<std::unique_ptr<TextFile>> m_scenarios;
};

ProgramPtr tst_SiteServerProgram::startServer(const QStringList &arguments, const QString &address)
{
    auto server =
        std::make_unique<Program>(QStringLiteral(SITE_SERVER_PROGRAM),
                                  QStringList{QStringLiteral("--listen"), address} + arguments);
    if (server->waitFor(QStringLiteral("listening on ")) && server->waitFor(QStringLiteral("\n")))
        m_url = server->output().section(QStringLiteral("listening on "), 1).trimmed();
    return server;
}

ProgramPtr tst_SiteServerProgram::startWorkbench(const QByteArray &scenario,
                                                 const QStringList &arguments)
{
    m_scenarios.push_back(std::make_unique<TextFile>(scenario));
    return std::make_unique<Program>(QStringLiteral(WORKBENCH_PROGRAM),
                                     words("--headless --ignore-errors --server")
                                         << m_url << QStringLiteral("--scenario")
                                         << m_scenarios.back()->path() << arguments);
}

void tst_SiteServerProgram::helpAndVersionNeedNothing()
{
    Program help(QStringLiteral(SITE_SERVER_PROGRAM), {QStringLiteral("--help")});
    QCOMPARE(help.waitForEnd(), 0);
    QVERIFY(help.output().startsWith(QStringLiteral("Usage: ")));
    Program version(QStringLiteral(SITE_SERVER_PROGRAM), {QStringLiteral("--version")});
    QCOMPARE(version.waitForEnd(), 0);
    QVERIFY(version.output().startsWith(QStringLiteral("site-server ")));
}

void tst_SiteServerProgram::wrongInputIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("message");
    const QString store =
        QStringLiteral("FILE: expected a file of snoozes that can be written, found: ");
    QTest::newRow("option") << words("--fast") << QByteArray()
                            << QStringLiteral("Unknown option 'fast'.");
    QTest::newRow("site") << words("--site FILE") << QByteArray("{}")
                          << QStringLiteral("FILE: name: expected a text, found nothing");
    QTest::newRow("scenario") << words("--scenario FILE") << QByteArray("{}")
                              << QStringLiteral(
                                     "FILE: events: expected a list of objects, found nothing");
    QTest::newRow("token") << words("--token-file FILE") << QByteArray("short")
                           << QStringLiteral(
                                  "FILE: expected a token of 16 to 1024 characters, found 5");
    QTest::newRow("language") << words("--language xx") << QByteArray()
                              << QStringLiteral("--language: expected en or de, found \"xx\".");
    QTest::newRow("damaged store") << words("--store FILE") << QByteArray(4096, 'x')
                                   << store + QStringLiteral("file is not a database");
    QTest::newRow("store in no folder")
        << words("--store FILE/store") << QByteArray()
        << QStringLiteral("FILE/store: expected a file of snoozes that can be written, found: "
                          "unable to open database file");
}

void tst_SiteServerProgram::wrongInputIsRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, file);
    QFETCH(QString, message);
    const TextFile input(file);
    arguments.replaceInStrings(QStringLiteral("FILE"), input.path());
    Program server(QStringLiteral(SITE_SERVER_PROGRAM), arguments);
    QCOMPARE(server.waitForEnd(), 2);
    QCOMPARE(QString(server.output()).replace(input.path(), QStringLiteral("FILE")),
             QStringLiteral("site-server: ") + message + u'\n');
    QFile unchanged(input.path());
    QVERIFY(unchanged.open(QIODevice::ReadOnly));
    QCOMPARE(unchanged.readAll(), file);
}

void tst_SiteServerProgram::addressThatIsTakenIsNamed()
{
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress::LocalHost));
    Program server(
        QStringLiteral(SITE_SERVER_PROGRAM),
        {QStringLiteral("--listen"), QStringLiteral("127.0.0.1:%1").arg(other.serverPort())});
    QCOMPARE(server.waitForEnd(), 3);
    QCOMPARE(server.output(), QStringLiteral("site-server: --listen: 127.0.0.1, port %1: The bound "
                                             "address is already in use\n")
                                  .arg(other.serverPort()));
}

void tst_SiteServerProgram::speaksGerman()
{
    Program help(QStringLiteral(SITE_SERVER_PROGRAM), words("--language de --help"));
    QCOMPARE(help.waitForEnd(), 0);
    QVERIFY2(help.output().contains(QStringLiteral("Rückgabewerte:")), qPrintable(help.output()));
    Program server(QStringLiteral(SITE_SERVER_PROGRAM),
                   words("--language de --listen 127.0.0.1:0"));
    QVERIFY2(server.waitFor(QStringLiteral("wartet auf Verbindungen an ws://127.0.0.1:")),
             qPrintable(server.output()));
}

void tst_SiteServerProgram::snoozeOfOneIsSeenByTheOtherAndHoldsAfterAKill()
{
    // In the bundled site, this camera is down from the start.
    const QString error = QStringLiteral("[3_warehouse/dock-3]");
    const QString raised = QStringLiteral("raised    Camera disconnected: Warehouse NVR - Loading "
                                          "dock 3  ")
                           + error;
    const QString other = QStringLiteral("[3_office/lobby]");
    const TextFile outage(R"({"events": [
        {"at": 2, "do": "cameraDown", "camera": "warehouse/dock-3"},
        {"at": 2, "do": "cameraDown", "camera": "office/lobby"}]})");
    const QTemporaryDir directory;
    const QStringList store{QStringLiteral("--store"),
                            directory.filePath(QStringLiteral("snoozes.sqlite"))};
    ProgramPtr server = startServer(store, QStringLiteral("127.0.0.1:0"));
    QVERIFY2(!m_url.isEmpty(), qPrintable(server->output()));

    const ProgramPtr watcher = startWorkbench(R"({"events": [], "endAt": 600})");
    const ProgramPtr user = startWorkbench(
        R"({"events": [{"at": 6, "do": "snooze", "node": "warehouse/dock-3", "seconds": 600}],
            "endAt": 600})");
    for (Program *const workbench : {user.get(), watcher.get()})
        QVERIFY2(workbench->waitFor(raised), qPrintable(workbench->output()));
    for (Program *const workbench : {user.get(), watcher.get()}) {
        QVERIFY2(workbench->waitFor(QStringLiteral("cleared   ")), qPrintable(workbench->output()));
        QVERIFY(workbench->waitFor(error));
    }

    server->kill();
    for (Program *const workbench : {user.get(), watcher.get()})
        QVERIFY2(workbench->waitFor(QStringLiteral("connection lost")),
                 qPrintable(workbench->output()));
    server = startServer(store + QStringList{QStringLiteral("--scenario"), outage.path()},
                         m_url.section(u'/', -1));
    for (Program *const workbench : {user.get(), watcher.get()}) {
        QVERIFY2(workbench->waitFor(QStringLiteral("server    connected")),
                 qPrintable(workbench->output()));
        QVERIFY2(workbench->waitFor(other), qPrintable(workbench->output()));
    }
    for (Program *const workbench : {user.get(), watcher.get()})
        QVERIFY2(!workbench->rest().contains(error), qPrintable(workbench->output()));
}

void tst_SiteServerProgram::stoppedServerIsNoticed()
{
    const ProgramPtr server = startServer({}, QStringLiteral("127.0.0.1:0"));
    const ProgramPtr workbench = startWorkbench(R"({"events": [], "endAt": 600})");
    QVERIFY2(workbench->waitFor(QStringLiteral("server    connected")),
             qPrintable(workbench->output()));
    QTest::qWait(700);
    server->signal(SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    QVERIFY2(workbench->waitFor(QStringLiteral("connection lost")),
             qPrintable(workbench->output()));
    const qint64 noticedMs = timer.elapsed();
    QVERIFY2(noticedMs < 3000, qPrintable(QString::number(noticedMs)));
    QVERIFY(workbench->waitFor(QStringLiteral("the server does not answer; next try in")));
    // It still accepts connections; that alone is no server.
    QVERIFY(workbench->waitFor(QStringLiteral("the server does not answer; next try in")));
    server->signal(SIGCONT);
    QVERIFY2(workbench->waitFor(QStringLiteral("server    connected")),
             qPrintable(workbench->output()));
}

void tst_SiteServerProgram::missingServerIsWaitedForAsLongAsAskedFor()
{
    QTcpServer free;
    QVERIFY(free.listen(QHostAddress::LocalHost));
    m_url = QStringLiteral("ws://127.0.0.1:%1").arg(free.serverPort());
    free.close();
    const ProgramPtr workbench =
        startWorkbench(R"({"events": []})", words("--connect-timeout 0.4"));
    QCOMPARE(workbench->waitForEnd(), 3);
    QVERIFY(workbench->waitFor(QStringLiteral("Connection refused; next try in")));
    QVERIFY(workbench->waitFor(QStringLiteral("no connection within 0.4 s; the run ends\n")));
}

void tst_SiteServerProgram::clientWithoutTheTokenIsToldSo()
{
    const TextFile token("0123456789abcdef");
    const TextFile wrong("0123456789abcdeF");
    const ProgramPtr server =
        startServer({QStringLiteral("--token-file"), token.path()}, QStringLiteral("127.0.0.1:0"));
    const QByteArray scenario = R"({"events": []})";
    const ProgramPtr without = startWorkbench(scenario);
    const ProgramPtr stranger =
        startWorkbench(scenario, {QStringLiteral("--token-file"), wrong.path()});
    const ProgramPtr friendly =
        startWorkbench(scenario, {QStringLiteral("--token-file"), token.path()});
    QCOMPARE(without->waitForEnd(), 3);
    QVERIFY(without->waitFor(QStringLiteral("refuses this client: expected a token\n")));
    QCOMPARE(stranger->waitForEnd(), 3);
    QVERIFY(stranger->waitFor(QStringLiteral("refuses this client: the token is wrong\n")));
    QVERIFY(friendly->waitFor(QStringLiteral("server    connected")));
}

void tst_SiteServerProgram::workbenchKeepsItsOwnSnoozes()
{
    const QTemporaryDir directory;
    const QString store = directory.filePath(QStringLiteral("snoozes.sqlite"));
    const TextFile snooze(R"({"events": [
        {"at": 0, "do": "snooze", "node": "warehouse/dock-3", "seconds": 600}]})");
    const TextFile outage(R"({"events": [
        {"at": 0.3, "do": "cameraDown", "camera": "warehouse/dock-3"},
        {"at": 0.3, "do": "cameraDown", "camera": "office/lobby"}]})");
    const auto play = [&store](const TextFile &scenario) {
        return std::make_unique<Program>(QStringLiteral(WORKBENCH_PROGRAM),
                                         words("--headless --ignore-errors --scenario")
                                             << scenario.path() << QStringLiteral("--store")
                                             << store);
    };
    QCOMPARE(play(snooze)->waitForEnd(), 0);
    const ProgramPtr later = play(outage);
    QCOMPARE(later->waitForEnd(), 0);
    QVERIFY(later->waitFor(QStringLiteral("[3_office/lobby]")));
    QVERIFY2(!later->output().contains(QStringLiteral("[3_warehouse/dock-3]")),
             qPrintable(later->output()));
}

QTEST_GUILESS_MAIN(tst_SiteServerProgram)
#include "tst_SiteServerProgram.moc"
