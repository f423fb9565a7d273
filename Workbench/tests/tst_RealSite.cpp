#include "TextFile.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <memory>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr int PatienceMs = 30'000;

// Packages of the same names.
const QString ExporterProgram = QStringLiteral("prometheus-node-exporter");
const QString RtspProgram = QStringLiteral("rtsp-server-perl");

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

/// A program that runs until it is stopped or the test ends.
class Program
{
public:
    Program(const QString &program, const QStringList &arguments)
    {
        m_process.setStandardOutputFile(QProcess::nullDevice());
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start(program, arguments);
        m_process.waitForStarted();
    }

    ~Program()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

/// The Workbench, and what it has printed so far.
class HeadlessWorkbench
{
public:
    HeadlessWorkbench(const QByteArray &site, const char *cpuThreshold)
        : m_site(site)
        , m_scenario(R"({"events": [], "endAt": 600})")
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TALO2_HIGH_CPU_USAGE"),
                           QString::fromLatin1(cpuThreshold));
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(WORKBENCH_PROGRAM),
                        {QStringLiteral("--headless"), QStringLiteral("--site"), m_site.path(),
                         QStringLiteral("--scenario"), m_scenario.path()});
    }

    ~HeadlessWorkbench()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /// Waits for lines that are printed after those of the call before, in any order.
    bool prints(QStringList texts)
    {
        return QTest::qWaitFor(
            [this, &texts] {
                while (m_process.canReadLine() && !texts.isEmpty()) {
                    const QString line = QString::fromUtf8(m_process.readLine());
                    m_output.append(line);
                    texts.removeIf([&line](const QString &text) { return line.contains(text); });
                }
                return texts.isEmpty();
            },
            PatienceMs);
    }

    QByteArray output() const { return m_output.join(QString()).toUtf8(); }

private:
    TextFile m_site;
    TextFile m_scenario;
    QProcess m_process;
    QStringList m_output;
};

/// What the kernel tells of a machine whose load the test decides on.
class MachineFiles
{
public:
    MachineFiles()
    {
        write(QStringLiteral("meminfo"), "MemTotal: 1000 kB\nMemAvailable: 600 kB\n");
        write(QStringLiteral("net/dev"),
              "Inter-| Receive | Transmit\n"
              " face |bytes packets errs drop fifo frame compressed multicast"
              "|bytes packets errs drop fifo colls carrier compressed\n"
              "  eth0: 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0\n");
        spend();
        QObject::connect(&m_timer, &QTimer::timeout, [this] { spend(); });
        m_timer.start(100ms);
    }

    QString path() const { return m_directory.path(); }

    void setBusy(bool isBusy) { m_isBusy = isBusy; }

private:
    void spend()
    {
        (m_isBusy ? m_busy : m_idle) += 10;
        const QByteArray times =
            QByteArray::number(m_busy) + " 0 0 " + QByteArray::number(m_idle) + " 0 0 0 0 0 0\n";
        write(QStringLiteral("stat"), "cpu  " + times + "cpu0 " + times + "btime 1700000000\n");
    }

    void write(const QString &name, const QByteArray &text)
    {
        QDir(path()).mkpath(QFileInfo(name).path());
        QSaveFile file(m_directory.filePath(name)); // an exporter may be reading the one before
        file.open(QIODevice::WriteOnly);
        file.write(text);
        file.commit();
    }

    QTemporaryDir m_directory;
    QTimer m_timer;
    int m_busy = 0;
    int m_idle = 0;
    bool m_isBusy = false;
};

std::unique_ptr<Program> startExporter(quint16 port, const QString &machine)
{
    return std::make_unique<Program>(
        ExporterProgram,
        QStringList{QStringLiteral("--web.listen-address=127.0.0.1:%1").arg(port),
                    QStringLiteral("--path.procfs=") + machine,
                    QStringLiteral("--collector.disable-defaults"),
                    QStringLiteral("--collector.cpu"), QStringLiteral("--collector.meminfo"),
                    QStringLiteral("--collector.netdev"),
                    QStringLiteral("--no-collector.netdev.netlink")});
}

std::unique_ptr<Program> startRtspServer(quint16 port)
{
    const QString loopback = QStringLiteral("127.0.0.1");
    return std::make_unique<Program>(
        RtspProgram, QStringList{QStringLiteral("--clientport"), QString::number(port),
                                 QStringLiteral("--serverport"), QString::number(freePort()),
                                 QStringLiteral("--client_listen_address"), loopback,
                                 QStringLiteral("--source_listen_address"), loopback});
}

QByteArray siteWith(quint16 exporterPort, const QByteArray &cameras = {})
{
    QByteArray site = R"({"name": "S", "stations": [{"id": "recorder", "name": "Recorder",
                          "exporter": {"url": "http://127.0.0.1:PORT"}, "cameras": [CAMERAS]}]})";
    site.replace("PORT", QByteArray::number(exporterPort));
    return site.replace("CAMERAS", cameras);
}

QByteArray doorAt(quint16 rtspPort)
{
    QByteArray camera = R"({"id": "door", "name": "Door", "connected": false,
                            "address": "rtsp://127.0.0.1:PORT/door"})";
    return camera.replace("PORT", QByteArray::number(rtspPort));
}

/// The time of this machine's processors so far: idle, and in all.
std::pair<double, double> processorTimes()
{
    QFile file(QStringLiteral("/proc/stat"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QList<QByteArray> fields = file.readLine().simplified().split(' ');
    double total = 0;
    for (qsizetype i = 1; i <= 8; ++i)
        total += fields.value(i).toDouble();
    return {fields.value(4).toDouble() + fields.value(5).toDouble(), total};
}

bool isMachineIdle()
{
    const auto [idleBefore, totalBefore] = processorTimes();
    QTest::qWait(500);
    const auto [idle, total] = processorTimes();
    return idle - idleBefore > 0.6 * (total - totalBefore);
}

} // namespace

/// The Workbench on real stations and cameras: programs that others have written.
class tst_RealSite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void loadOfAStationRaisesAnErrorUntilItRests();
    void loadOfThisMachineRaisesAnErrorUntilItRests();
    void whatGoesAwayIsDisconnectedUntilItIsBack();
};

void tst_RealSite::initTestCase()
{
    for (const QString &program : {ExporterProgram, RtspProgram}) {
        if (QStandardPaths::findExecutable(program).isEmpty())
            QSKIP(qPrintable(QStringLiteral("%1 is not installed.").arg(program)));
    }
}

void tst_RealSite::loadOfAStationRaisesAnErrorUntilItRests()
{
    const quint16 port = freePort();
    MachineFiles machine;
    const auto exporter = startExporter(port, machine.path());
    HeadlessWorkbench workbench(siteWith(port), "60");
    QVERIFY(workbench.prints({QStringLiteral("server    connected")}));
    machine.setBusy(true);
    QVERIFY2(workbench.prints({QStringLiteral(
                 "raised    CPU utilization over 60%: Station: Recorder  [0_recorder]")}),
             workbench.output());
    machine.setBusy(false);
    QVERIFY2(workbench.prints({QStringLiteral(
                 "cleared   CPU utilization over 60%: Station: Recorder  [0_recorder]")}),
             workbench.output());
}

void tst_RealSite::loadOfThisMachineRaisesAnErrorUntilItRests()
{
    if (!isMachineIdle())
        QSKIP("This machine has other work, its load would not come to rest.");
    const quint16 port = freePort();
    const auto exporter = startExporter(port, QStringLiteral("/proc"));
    HeadlessWorkbench workbench(siteWith(port), "80");
    std::vector<std::unique_ptr<Program>> loops;
    for (int i = 0; i < QThread::idealThreadCount(); ++i)
        loops.push_back(std::make_unique<Program>(
            QStringLiteral("sh"),
            QStringList{QStringLiteral("-c"), QStringLiteral("while :; do :; done")}));
    QVERIFY2(workbench.prints({QStringLiteral(
                 "raised    CPU utilization over 80%: Station: Recorder  [0_recorder]")}),
             workbench.output());
    loops.clear();
    const bool hasCleared = workbench.prints(
        {QStringLiteral("cleared   CPU utilization over 80%: Station: Recorder  [0_recorder]")});
    if (!hasCleared && !isMachineIdle())
        QSKIP("This machine has got other work, its load does not come to rest.");
    QVERIFY2(hasCleared, workbench.output());
}

void tst_RealSite::whatGoesAwayIsDisconnectedUntilItIsBack()
{
    const quint16 exporterPort = freePort();
    const quint16 rtspPort = freePort();
    const MachineFiles machine;
    auto exporter = startExporter(exporterPort, machine.path());
    auto rtspServer = startRtspServer(rtspPort);
    HeadlessWorkbench workbench(siteWith(exporterPort, doorAt(rtspPort)), "101");
    QVERIFY2(workbench.prints({QStringLiteral("watch     recorder/door answers")}),
             workbench.output());

    rtspServer.reset();
    exporter.reset();
    QVERIFY2(
        workbench.prints(
            {QStringLiteral("watch     recorder/door does not answer: Connection refused"),
             QStringLiteral("raised    Camera disconnected: Station: Recorder / Camera: Door  "
                            "[3_recorder/door]"),
             QStringLiteral("watch     recorder does not answer: Connection refused"),
             QStringLiteral("raised    Station disconnected: Station: Recorder  [4_recorder]")}),
        workbench.output());

    rtspServer = startRtspServer(rtspPort);
    exporter = startExporter(exporterPort, machine.path());
    QVERIFY2(
        workbench.prints(
            {QStringLiteral("watch     recorder/door answers"),
             QStringLiteral("cleared   Camera disconnected: Station: Recorder / Camera: Door  "
                            "[3_recorder/door]"),
             QStringLiteral("watch     recorder answers"),
             QStringLiteral("cleared   Station disconnected: Station: Recorder  [4_recorder]")}),
        workbench.output());
}

QTEST_GUILESS_MAIN(tst_RealSite)
#include "tst_RealSite.moc"
