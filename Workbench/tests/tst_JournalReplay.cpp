#include "FakePeer.h"
#include "TextFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTcpSocket>
#include <QTest>

namespace {

struct Outcome
{
    int exitCode = -1;
    QStringList lines;
    QString errors;
};

void start(QProcess &program, const QStringList &arguments)
{
    program.start(QStringLiteral(WORKBENCH_PROGRAM),
                  QStringList{QStringLiteral("--headless")} + arguments);
}

Outcome outcomeOf(QProcess &program)
{
    Outcome outcome;
    const bool hasEnded =
        QTest::qWaitFor([&program] { return program.state() == QProcess::NotRunning; }, 60'000);
    if (!hasEnded || program.exitStatus() != QProcess::NormalExit)
        return outcome;
    outcome.exitCode = program.exitCode();
    outcome.lines =
        QString::fromUtf8(program.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    outcome.errors = QString::fromUtf8(program.readAllStandardError());
    return outcome;
}

Outcome run(const QStringList &arguments)
{
    QProcess program;
    start(program, arguments);
    return outcomeOf(program);
}

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Leaves errors of every kind in the list, of which the walk brings some.
const QByteArray TroubledScenario = R"({"events": [
    {"at": 0, "do": "camStatusRetrieved"},
    {"at": 1, "do": "cameraDown", "camera": "gatehouse/barrier-in"},
    {"at": 1, "do": "stationDown", "station": "warehouse/cold-store"},
    {"at": 1, "do": "volumeLost", "station": "warehouse", "volume": "archive-a"},
    {"at": 1, "do": "recordingDays", "station": "warehouse", "group": "docks", "days": 1},
    {"at": 1, "do": "resources", "station": "gatehouse", "cpu": 97, "memory": 96,
     "networks": [{"interface": "eth0", "percentage": 81.5}]},
    {"at": 2, "do": "snooze", "node": "gatehouse/barrier-in", "seconds": 80000},
    {"at": 3, "do": "until", "listed": "3_warehouse/dock-3"},
    {"at": 3, "do": "storm", "change": "down", "station": "office"}]})";

Outcome replay(const QString &fileName, const QString &speed = QStringLiteral("max"))
{
    return run({QStringLiteral("--replay"), fileName, QStringLiteral("--speed"), speed});
}

Outcome replayText(const QByteArray &text)
{
    const TextFile file(text, QStringLiteral("cut.journal"));
    Outcome outcome = replay(file.path());
    outcome.errors.replace(file.path(), QStringLiteral("FILE"));
    return outcome;
}

// How often a peer was asked, by programs that have ended: what they asked last is read before what
// is asked here, which does not count.
qsizetype requestCount(const FakePeer &peer)
{
    const qsizetype before = peer.requests().size();
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, peer.port());
    socket.write("GET / HTTP/1.1\r\n\r\n");
    const bool isAnswered = QTest::qWaitFor([&] {
        return peer.requests().size() > before
               && socket.state() == QAbstractSocket::UnconnectedState;
    });
    return isAnswered ? peer.requests().size() - 1 : -1;
}

QStringList recordedErrors(const QByteArray &journal)
{
    const QByteArray last = journal.trimmed().split('\n').last();
    return QVariant(QJsonDocument::fromJson(last)[QStringLiteral("end")].toArray().toVariantList())
        .toStringList();
}

} // namespace

/// Journals of the program as a whole, recorded in one process and replayed in others.
class tst_JournalReplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void replayEndsWithTheRecordedList_data();
    void replayEndsWithTheRecordedList();
    void walkIsReplayedWhereItWas();
    void differentListIsTold();
    void cutJournalReplaysItsPrefix();
    void watchedNodesAreNotAskedAgain();
    void journalIsNotOverwritten();
    void wrongJournalsAreRefused_data();
    void wrongJournalsAreRefused();

private:
    QTemporaryDir m_directory;
    QString m_fileName; // of the scenario "everything"
    QString m_troubledFileName;
    QByteArray m_journal;
};

// Both runs at once: most of their time is the plug-in's own.
void tst_JournalReplay::initTestCase()
{
    const TextFile scenario(TroubledScenario);
    m_fileName = m_directory.filePath(QStringLiteral("everything.journal"));
    m_troubledFileName = m_directory.filePath(QStringLiteral("troubled.journal"));
    const auto options = [](const QString &scenarioName, const QString &fileName) {
        return QStringList{QStringLiteral("--scenario"),
                           scenarioName,
                           QStringLiteral("--speed"),
                           QStringLiteral("10"),
                           QStringLiteral("--ignore-errors"),
                           QStringLiteral("--record"),
                           fileName};
    };
    QProcess everything;
    QProcess troubled;
    start(everything, options(QStringLiteral("everything"), m_fileName));
    start(troubled, options(scenario.path(), m_troubledFileName));
    for (QProcess *const program : {&everything, &troubled}) {
        const Outcome recorded = outcomeOf(*program);
        QCOMPARE(recorded.exitCode, 0);
        QCOMPARE(recorded.errors, QString());
    }
    m_journal = contentOf(m_fileName);
    for (const char *const input :
         {R"("response":"setSnooze")", R"("event":"DeviceStillError")",
          R"("set":"focusStationResource")", R"("call":"removeStationError")"})
        QVERIFY2(m_journal.contains(input), input);
}

void tst_JournalReplay::replayEndsWithTheRecordedList_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("speed");
    QTest::newRow("everything, as fast as possible") << m_fileName << QStringLiteral("max");
    QTest::newRow("everything, at a speed") << m_fileName << QStringLiteral("500");
    QTest::newRow("troubled") << m_troubledFileName << QStringLiteral("max");
}

void tst_JournalReplay::replayEndsWithTheRecordedList()
{
    QFETCH(QString, fileName);
    QFETCH(QString, speed);
    const Outcome outcome = replay(fileName, speed);
    QCOMPARE(outcome.errors, QString());
    QVERIFY2(outcome.lines.last().endsWith(
                 QStringLiteral("entries were replayed; the list is the recorded one.")),
             qPrintable(outcome.lines.join(u'\n')));
    QCOMPARE(outcome.lines.mid(0, outcome.lines.size() - 1), recordedErrors(contentOf(fileName)));
    QCOMPARE(outcome.exitCode, 0);
}

// The walk names nodes in a way of its own, so it must come where it came.
void tst_JournalReplay::walkIsReplayedWhereItWas()
{
    const QStringList errors = recordedErrors(contentOf(m_troubledFileName));
    QVERIFY(!errors.filter(QStringLiteral("Warehouse NVR - Loading dock 3")).isEmpty());
    QVERIFY(errors.filter(QStringLiteral("uniqueIDRole=3_gatehouse/barrier-in")).isEmpty());
    for (int type = 0; type <= 7; ++type) {
        if (type != 6) // nothing raises it
            QVERIFY2(!errors.filter(QStringLiteral("errorTypeRole=%1;").arg(type)).isEmpty(),
                     qPrintable(errors.join(u'\n')));
    }
}

void tst_JournalReplay::differentListIsTold()
{
    QByteArray journal = m_journal;
    journal.replace("\"end\":[", "\"end\":[\"one more\",").replace(",]", "]");
    const Outcome outcome = replayText(journal);
    QCOMPARE(outcome.exitCode, 3);
    QVERIFY(outcome.lines.contains(QStringLiteral("one more")));
}

// The reader's test cuts at every byte; these are played.
void tst_JournalReplay::cutJournalReplaysItsPrefix()
{
    for (const int part : {1, 3, 6}) {
        const QByteArray text = m_journal.left(m_journal.size() * part / 7);
        const Outcome outcome = replayText(text);
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.lines.last(),
                 QStringLiteral("The journal was cut off; its %1 whole entries were replayed.")
                     .arg(text.count('\n') - 1));
    }
}

// What the watch found is in the journal; a replay may happen where nobody can be asked.
void tst_JournalReplay::watchedNodesAreNotAskedAgain()
{
    FakePeer exporter;
    exporter.setAnswer(FakePeer::http("node_cpu_seconds_total{cpu=\"0\",mode=\"idle\"} 1\n"
                                      "node_memory_MemTotal_bytes 10\n"
                                      "node_memory_MemAvailable_bytes 5\n"));
    FakePeer camera;
    camera.setAnswer("RTSP/1.0 200 OK\r\nCSeq: 1\r\n\r\n");
    const TextFile site(QStringLiteral(R"({"name": "S", "stations": [
        {"id": "st", "name": "Station", "connected": false,
         "exporter": {"url": "http://127.0.0.1:%1"},
         "cameras": [{"id": "door", "name": "Door", "connected": false,
                      "address": "rtsp://127.0.0.1:%2/door"}]}]})")
                            .arg(exporter.port())
                            .arg(camera.port())
                            .toUtf8());
    const TextFile scenario(R"({"events": [], "endAt": 1.5})");
    const QString fileName = m_directory.filePath(QStringLiteral("watched.journal"));
    QCOMPARE(
        run({QStringLiteral("--site"), site.path(), QStringLiteral("--scenario"), scenario.path(),
             QStringLiteral("--ignore-errors"), QStringLiteral("--record"), fileName})
            .exitCode,
        0);
    const QByteArray journal = contentOf(fileName);
    QVERIFY(journal.contains(R"("arguments":[1,"st",true])"));
    QVERIFY(journal.contains(R"("arguments":[0,"st/door",true])"));
    const qsizetype scrapes = requestCount(exporter);
    const qsizetype probes = requestCount(camera);
    QVERIFY(scrapes > 0);
    QVERIFY(probes > 0);
    const Outcome outcome = replay(fileName, QStringLiteral("1"));
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(requestCount(exporter), scrapes + 1);
    QCOMPARE(requestCount(camera), probes + 1);
}

void tst_JournalReplay::journalIsNotOverwritten()
{
    const Outcome outcome = run({QStringLiteral("--record"), m_fileName});
    QCOMPARE(outcome.exitCode, 2);
    QCOMPARE(outcome.errors,
             QStringLiteral("workbench: %1: expected a new file, found one that is there\n")
                 .arg(m_fileName));
}

void tst_JournalReplay::wrongJournalsAreRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const QByteArray header =
        R"({"journal":"plug-in inputs","version":1,"plugin":"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"})"
        "\n";
    QTest::newRow("foreign") << QByteArray("{}\n")
                             << QStringLiteral("line 1: expected the header of a journal that "
                                               "--record has written");
    QTest::newRow("call that is none")
        << header + "{\"at\":0,\"call\":\"fly\",\"arguments\":[1]}\n"
        << QStringLiteral("line 2: expected a call that the plug-in has, found \"fly\" with 1 "
                          "arguments");
    QTest::newRow("change of no node")
        << header + "{\"at\":0,\"topology\":{\"path\":[4],\"change\":{}}}\n"
        << QStringLiteral("line 2: expected a change that fits the topology");
}

void tst_JournalReplay::wrongJournalsAreRefused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    const Outcome outcome = replayText(text);
    QCOMPARE(outcome.errors, QStringLiteral("workbench: FILE: %1\n").arg(message));
    QCOMPARE(outcome.exitCode, 2);
}

QTEST_GUILESS_MAIN(tst_JournalReplay)
#include "tst_JournalReplay.moc"
