#include "TextFile.h"

#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

namespace {

struct Outcome
{
    int exitCode = -1;
    QStringList lines; ///< of the output, without their times
    QString errors;

    bool has(const QString &line) const { return lines.contains(line); }
};

// Lines of this machine's own load come and go as they please.
bool isOfThisMachine(const QString &line)
{
    return line.contains(QStringLiteral("_this-machine"))
           && !line.contains(QStringLiteral("\"summary\""));
}

Outcome run(const QStringList &arguments)
{
    QProcess program;
    program.start(QStringLiteral(WORKBENCH_PROGRAM), arguments);
    Outcome outcome;
    if (!program.waitForFinished(60'000) || program.exitStatus() != QProcess::NormalExit)
        return outcome;
    outcome.exitCode = program.exitCode();
    outcome.errors = QString::fromUtf8(program.readAllStandardError());
    static const QRegularExpression time(
        QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d CES?T  "));
    const QStringList lines = QString::fromUtf8(program.readAllStandardOutput()).split(u'\n');
    for (QString line : lines) {
        if (!isOfThisMachine(line))
            outcome.lines.append(line.remove(time));
    }
    return outcome;
}

QStringList options(const char *text)
{
    return QString::fromLatin1(text).split(u' ');
}

QStringList withoutBlanks(const QString &line)
{
    return line.split(u' ', Qt::SkipEmptyParts);
}

int colourCount(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3) {
        for (int x = 0; x < image.width(); x += 3)
            colours.insert(image.pixel(x, y));
    }
    return static_cast<int>(colours.size());
}

} // namespace

/// The program as its users run it, with the plug-in that was built with it.
class tst_WorkbenchProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingScenarioShowsEveryKindOfHappening();
    void defaultScenarioLeavesAPictureAndALog();
    void showsAPageOfOnesOwn();
    void pageIsTriedWithoutAPicture();
    void walkAfterTheEndIsWaitedFor();
    void speaksGerman();
    void jsonIsAllThatIsPrinted();
    void outputThatCannotBeWrittenIsAFailure();
    void metricsAreServedWhileItRuns();
    void portInUseIsRefused();
    void helpAndVersionNeedNothing();
    void wrongInputIsRefused_data();
    void wrongInputIsRefused();
    void pluginThatCannotBeLoadedIsNamed();
    void thresholdsComeFromTheEnvironment();
};

void tst_WorkbenchProgram::everythingScenarioShowsEveryKindOfHappening()
{
    const Outcome outcome =
        run(options("--headless --ignore-errors --scenario everything --speed 6"));
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.errors, QString());

    const QStringList expected = {
        QStringLiteral("server    connected"),
        QStringLiteral("states    retrieving the states of nodes failed"),
        QStringLiteral("states    the states of all nodes were retrieved"),
        QStringLiteral("support   gatehouse supports system monitoring"),
        QStringLiteral("support   office does not support system monitoring"),
        QStringLiteral("raised    Camera disconnected: Station: Gatehouse NVR / Camera: Barrier "
                       "inbound  [3_gatehouse/barrier-in]"),
        QStringLiteral("raised    Station disconnected: Station: Cold store NVR  "
                       "[4_warehouse/cold-store]"),
        QStringLiteral("raised    Station disconnected: Station: Office building NVR  [4_office]"),
        QStringLiteral("raised    Volume disconnected: Station: Warehouse NVR  [5_warehouse]"),
        QStringLiteral("raised    Insufficient recording days: Station: Warehouse NVR / Archive: "
                       "Loading docks  [7_warehouse_docks]"),
        QStringLiteral("changed   Insufficient recording days: Station: Warehouse NVR / Archive: "
                       "Docks 1 to 3  [7_warehouse_docks]"),
        QStringLiteral("raised    CPU utilization over 90%: Station: Gatehouse NVR  "
                       "[0_gatehouse]"),
        QStringLiteral("raised    Memory usage over 90%: Station: Gatehouse NVR  [1_gatehouse]"),
        QStringLiteral("raised    Network usage over 50%: Station: Gatehouse NVR  "
                       "[2_gatehouse_eth0]"),
        QStringLiteral("raised    Network usage over 50%: Station: Gatehouse NVR  "
                       "[2_gatehouse_eth1]"),
        QStringLiteral("capacity  Management server is at 91.25% of its capacity"),
        QStringLiteral("cleared   Camera disconnected: Station: Gatehouse NVR / Camera: Barrier "
                       "inbound  [3_gatehouse/barrier-in]"),
        QStringLiteral("expired   the snooze of gatehouse/barrier-in, which is still "
                       "disconnected"),
        QStringLiteral("expired   the snooze of warehouse/cold-store, which is still "
                       "disconnected"),
        QStringLiteral("expired   the snooze of office"),
        QStringLiteral("reconnect stations warehouse/cold-store"),
        QStringLiteral("cleared   Station disconnected: Station: Cold store NVR  "
                       "[4_warehouse/cold-store]"),
        QStringLiteral("cleared   Volume disconnected: Station: Warehouse NVR  [5_warehouse]"),
        QStringLiteral("cleared   Insufficient recording days: Station: Warehouse NVR / Archive: "
                       "Docks 1 to 3  [7_warehouse_docks]"),
        QStringLiteral("cleared   CPU utilization over 90%: Station: Gatehouse NVR  "
                       "[0_gatehouse]"),
        QStringLiteral("cleared   Memory usage over 90%: Station: Gatehouse NVR  [1_gatehouse]"),
        QStringLiteral("cleared   Network usage over 50%: Station: Gatehouse NVR  "
                       "[2_gatehouse_eth1]"),
        QStringLiteral("server    connection lost"),
    };
    for (const QString &line : expected)
        QVERIFY2(outcome.has(line), qPrintable(line + u'\n' + outcome.lines.join(u'\n')));
    for (const char *const start : {"snooze    gatehouse/barrier-in is snoozed until ",
                                    "logged    AddDashboardSnooze: Camera disconnected, Station: "
                                    "Gatehouse NVR / Camera: Barrier inbound, "})
        QVERIFY2(!outcome.lines.filter(QString::fromLatin1(start)).isEmpty(), start);

    // Whatever was raised is cleared in the end; the load of this machine is another matter.
    const qsizetype summary = outcome.lines.indexOf(QStringLiteral("Summary"));
    QVERIFY(summary > 0);
    int kinds = 0;
    for (const QString &line : outcome.lines.mid(summary + 2, 7)) {
        const QStringList fields = withoutBlanks(line);
        QVERIFY2(fields.value(0).toInt() > 0, qPrintable(line));
        if (!line.contains(QStringLiteral("over ")))
            QCOMPARE(fields.value(2), QStringLiteral("0"));
        ++kinds;
    }
    QCOMPARE(kinds, 7);
}

void tst_WorkbenchProgram::defaultScenarioLeavesAPictureAndALog()
{
    const QTemporaryDir directory;
    const QString picture = directory.filePath(QStringLiteral("dashboard.png"));
    const QString log = directory.filePath(QStringLiteral("log.sqlite"));
    const Outcome outcome =
        run(options("--headless --ignore-errors --speed 8 --screenshot-at 50 --screenshot")
            << picture << QStringLiteral("--log") << log);
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.errors, QString());
    QVERIFY(outcome.has(QStringLiteral("picture   saved as ") + picture));
    QVERIFY(outcome.has(QStringLiteral("raised    Volume disconnected: Station: Gatehouse NVR  "
                                       "[5_gatehouse]")));
    const QImage image(picture);
    QCOMPARE(image.size(), QSize(1280, 800));
    QVERIFY(colourCount(image) > 20);
    QVERIFY(QFile::exists(log));
    // However fast the scenario, it snoozes what the start-up walk has listed.
    QVERIFY(
        !outcome.lines.filter(QStringLiteral("logged    AddDashboardSnooze: Camera disconnected"))
             .isEmpty());
}

void tst_WorkbenchProgram::showsAPageOfOnesOwn()
{
    const QTemporaryDir directory;
    const QString picture = directory.filePath(QStringLiteral("page.png"));
    const TextFile scenario(
        R"({"events": [{"at": 0, "do": "cameraDown", "camera": "office/lobby"}]})");
    const Outcome outcome =
        run({QStringLiteral("--headless"), QStringLiteral("--ignore-errors"),
             QStringLiteral("--page"), QStringLiteral(EXAMPLE_PAGE), QStringLiteral("--scenario"),
             scenario.path(), QStringLiteral("--screenshot"), picture});
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.errors, QString());
    const QImage image(picture);
    QCOMPARE(image.pixelColor(1270, 790), QColor(Qt::white));
    QVERIFY(colourCount(image) > 5);
}

void tst_WorkbenchProgram::pageIsTriedWithoutAPicture()
{
    const TextFile page("import QtQuick\n"
                        "Item {\n"
                        "    property QtObject plugin\n"
                        "    property string siteName\n"
                        "    property bool serverConnected\n"
                        "    onServerConnectedChanged: console.log(siteName, plugin !== null)\n"
                        "}\n",
                        QStringLiteral("Page.qml"));
    const TextFile scenario(R"({"events": []})");
    const Outcome outcome =
        run({QStringLiteral("--headless"), QStringLiteral("--ignore-errors"),
             QStringLiteral("--page"), page.path(), QStringLiteral("--scenario"), scenario.path()});
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.errors, QStringLiteral("qml: Northgate Logistics Centre true\n"));
}

void tst_WorkbenchProgram::walkAfterTheEndIsWaitedFor()
{
    const TextFile scenario(R"({"events": [{"at": 0, "do": "camStatusRetrieved"}]})");
    const Outcome outcome =
        run({QStringLiteral("--headless"), QStringLiteral("--scenario"), scenario.path()});
    QCOMPARE(outcome.exitCode, 1);
    const QStringList walk = {
        QStringLiteral("raised    Camera disconnected: Gatehouse NVR - Truck park  "
                       "[3_gatehouse/truck-park]"),
        QStringLiteral("raised    Camera disconnected: Warehouse NVR - Loading dock 3  "
                       "[3_warehouse/dock-3]"),
        QStringLiteral("raised    Insufficient recording days: Station: Warehouse NVR / Archive: "
                       "Aisles  [7_warehouse_aisles]"),
    };
    QCOMPARE(outcome.lines.filter(QStringLiteral("raised   ")), walk);
}

void tst_WorkbenchProgram::speaksGerman()
{
    const TextFile scenario(
        R"({"events": [{"at": 0, "do": "cameraDown", "camera": "office/lobby"}]})");
    const Outcome outcome =
        run({QStringLiteral("--headless"), QStringLiteral("--language"), QStringLiteral("de"),
             QStringLiteral("--scenario"), scenario.path()});
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.has(QStringLiteral("neu       Kamera getrennt: Station: Office building NVR "
                                        "/ Kamera: Lobby  [3_office/lobby]")),
             qPrintable(outcome.lines.join(u'\n')));
    QVERIFY(outcome.has(QStringLiteral("Zusammenfassung")));
}

void tst_WorkbenchProgram::jsonIsAllThatIsPrinted()
{
    const QTemporaryDir directory;
    const TextFile scenario(
        R"({"events": [{"at": 0, "do": "cameraDown", "camera": "office/lobby"}]})");
    const Outcome outcome = run(options("--headless --format json --language de --scenario")
                                << scenario.path() << QStringLiteral("--screenshot")
                                << directory.filePath(QStringLiteral("x.png")));
    QCOMPARE(outcome.exitCode, 1);
    QCOMPARE(outcome.errors, QString());
    QStringList events;
    QJsonObject last;
    for (const QString &line : outcome.lines.mid(0, outcome.lines.size() - 1)) {
        last = QJsonDocument::fromJson(line.toUtf8()).object();
        QVERIFY2(
            QDateTime::fromString(last.value(QStringLiteral("time")).toString(), Qt::ISODateWithMs)
                .isValid(),
            qPrintable(line));
        events.append(last.value(QStringLiteral("event")).toString());
    }
    for (const char *const event : {"connection", "raised", "picture"})
        QVERIFY2(events.contains(QLatin1String(event)), event);
    QCOMPARE(events.constLast(), QStringLiteral("summary"));
    QVERIFY(!last.value(QStringLiteral("errors")).toArray().isEmpty());
    QCOMPARE(outcome.lines.constLast(), QString());
}

void tst_WorkbenchProgram::outputThatCannotBeWrittenIsAFailure()
{
    const QString full = QStringLiteral("/dev/full");
    if (!QFileInfo::exists(full))
        QSKIP("This system has no /dev/full.");
    const TextFile scenario(R"({"events": []})");
    QProcess program;
    program.setStandardOutputFile(full);
    program.start(QStringLiteral(WORKBENCH_PROGRAM), options("--headless --scenario")
                                                         << scenario.path());
    QVERIFY(program.waitForFinished(60'000));
    QCOMPARE(program.exitCode(), 3);
    QCOMPARE(program.readAllStandardError(),
             QByteArray("workbench: The output cannot be written.\n"));
}

void tst_WorkbenchProgram::metricsAreServedWhileItRuns()
{
    const TextFile scenario(R"({"events": [], "endAt": 60})");
    QProcess program;
    program.start(QStringLiteral(WORKBENCH_PROGRAM),
                  options("--headless --format json --metrics 0 --scenario") << scenario.path());
    static const QRegularExpression address(
        QStringLiteral("^Metrics are at http://127.0.0.1:(\\d+)/metrics\n"));
    QString errors;
    while (!address.match(errors).hasMatch() && program.waitForReadyRead(30'000))
        errors += QString::fromUtf8(program.readAllStandardError());
    QTcpSocket client;
    client.connectToHost(QHostAddress::LocalHost, address.match(errors).captured(1).toUShort());
    client.write("GET /metrics HTTP/1.1\r\nHost: localhost\r\n\r\n");
    QByteArray answer;
    while (!answer.contains("# EOF\n") && client.waitForReadyRead(30'000))
        answer += client.readAll();
    program.kill();
    program.waitForFinished();
    QVERIFY2(answer.contains("\nsystem_monitor_server_connected 1\n"), answer.constData());
}

void tst_WorkbenchProgram::portInUseIsRefused()
{
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress::LocalHost));
    const QString port = QString::number(other.serverPort());
    const Outcome outcome = run(options("--headless --metrics") << port);
    QCOMPARE(outcome.exitCode, 3);
    QCOMPARE(outcome.errors, QStringLiteral("workbench: --metrics: port %1 cannot be used: The "
                                            "bound address is already in use\n")
                                 .arg(port));
}

void tst_WorkbenchProgram::helpAndVersionNeedNothing()
{
    qputenv("QT_QPA_PLATFORM", "none-such");
    const Outcome help = run({QStringLiteral("--help")});
    const Outcome version = run({QStringLiteral("--version")});
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCOMPARE(help.exitCode, 0);
    QVERIFY(help.lines.value(0).startsWith(QStringLiteral("Usage: ")));
    QCOMPARE(version.exitCode, 0);
    QVERIFY(version.lines.value(0).startsWith(QStringLiteral("workbench ")));
}

void tst_WorkbenchProgram::wrongInputIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("message");
    const QByteArray none;
    QTest::newRow("unknown option")
        << options("--fast") << none << QStringLiteral("Unknown option 'fast'.");
    QTest::newRow("speed") << options("--speed never") << none
                           << QStringLiteral("--speed: expected a number greater than 0 and up to "
                                             "1000, found \"never\".");
    QTest::newRow("language") << options("--language xx") << none
                              << QStringLiteral("--language: expected en or de, found \"xx\".");
    QTest::newRow("loop without a window")
        << options("--headless --loop") << none << QStringLiteral("--loop: expected a window.");
    QTest::newRow("missing site")
        << options("--site /nowhere.json") << none
        << QStringLiteral("/nowhere.json: cannot be read: No such file or directory");
    QTest::newRow("site file") << options("--site FILE")
                               << QByteArray(R"({"name": "S", "stations": [{"id": 3}]})")
                               << QStringLiteral(
                                      "FILE: stations[0].id: expected a text, found the number 3");
    QTest::newRow("scenario file")
        << options("--scenario FILE")
        << QByteArray(R"({"events": [{"at": 0, "do": "cameraDown", "camera": "x"}]})")
        << QStringLiteral("FILE: events[0].camera: expected the id of a camera of the site, "
                          "found \"x\"");
    QTest::newRow("page")
        << options("--headless --screenshot FILE.png --record FILE.journal --page FILE")
        << QByteArray("import QtQuick\nItem {\n    width: 3 +\n}\n")
        << QStringLiteral("FILE: line 4, column 1: Expected token `numeric literal'");
    QTest::newRow("page of an unknown type")
        << options("--headless --page FILE")
        << QByteArray("import QtQuick\nItem {\n    Gauge {}\n}\n")
        << QStringLiteral("FILE: line 3, column 5: Gauge is not a type");
    QTest::newRow("log that is none")
        << options("--headless --log FILE") << QByteArray(4096, 'x')
        << QStringLiteral("FILE: cannot be used for the operational log: file is not a database");
    QTest::newRow("malformed file")
        << options("--scenario FILE") << QByteArray("{\n\"events\" []}")
        << QStringLiteral("FILE: line 2: expected valid JSON, found: missing name "
                          "separator");
}

void tst_WorkbenchProgram::wrongInputIsRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, file);
    QFETCH(QString, message);
    const TextFile input(file);
    arguments.replaceInStrings(QStringLiteral("FILE"), input.path());
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.exitCode, 2);
    QCOMPARE(outcome.errors, QStringLiteral("workbench: ")
                                 + message.replace(QStringLiteral("FILE"), input.path()) + u'\n');
    QCOMPARE(outcome.lines, QStringList{QString()});
    const QFileInfo inputFile(input.path());
    QCOMPARE(inputFile.dir().entryList(QDir::Files), QStringList{inputFile.fileName()});
}

void tst_WorkbenchProgram::pluginThatCannotBeLoadedIsNamed()
{
    const Outcome outcome = run(options("--headless --plugin /nowhere.so"));
    QCOMPARE(outcome.exitCode, 3);
    QVERIFY2(outcome.errors.contains(
                 QStringLiteral("workbench: /nowhere.so: cannot be loaded as a plug-in")),
             qPrintable(outcome.errors));
}

void tst_WorkbenchProgram::thresholdsComeFromTheEnvironment()
{
    const TextFile scenario(
        R"({"events": [{"at": 0, "do": "resources", "station": "gatehouse",
                        "cpu": 20, "memory": 20}]})");
    qputenv("TALO2_HIGH_MEM_USAGE", "20");
    const Outcome outcome =
        run({QStringLiteral("--headless"), QStringLiteral("--scenario"), scenario.path()});
    qunsetenv("TALO2_HIGH_MEM_USAGE");
    QVERIFY(outcome.has(QStringLiteral("raised    Memory usage over 20%: Station: Gatehouse NVR  "
                                       "[1_gatehouse]")));
}

QTEST_GUILESS_MAIN(tst_WorkbenchProgram)
#include "tst_WorkbenchProgram.moc"
