#include "RealPrograms.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <memory>

using namespace std::chrono_literals;

namespace {

// The system's own, which has the packages of the system.
const QString Python = QStringLiteral("/usr/bin/python3");

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
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { spend(); });
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

bool hasRtspServer()
{
    return QProcess::execute(
               Python, {QStringLiteral("-c"),
                        QStringLiteral("import gi; gi.require_version('GstRtspServer', '1.0')")})
           == 0;
}

QByteArray doorAt(quint16 rtspPort)
{
    QByteArray camera = R"({"id": "door", "name": "Door", "connected": false,
                            "address": "rtsp://127.0.0.1:PORT/door"})";
    return camera.replace("PORT", QByteArray::number(rtspPort));
}

} // namespace

/// The Workbench on real stations and cameras: programs that others have written, a camera that
/// GStreamer plays among them.
class tst_RealSite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void loadOfAStationRaisesAnErrorUntilItRests();
    void whatGoesAwayIsDisconnectedUntilItIsBack();

private:
    std::unique_ptr<Program> startRtspServer(quint16 port) const;

    QTemporaryDir m_directory;
};

void tst_RealSite::initTestCase()
{
    if (!hasExporter())
        QSKIP("prometheus-node-exporter is not installed.");
    if (!hasRtspServer())
        QSKIP("gir1.2-gst-rtsp-server-1.0 or python3-gi is not installed.");
    // Not the one among the user's files.
    qputenv("GST_REGISTRY", QFile::encodeName(m_directory.filePath(QStringLiteral("registry"))));
}

std::unique_ptr<Program> tst_RealSite::startRtspServer(quint16 port) const
{
    return std::make_unique<Program>(
        Python, QStringList{QFINDTESTDATA("data/rtsp-server.py"), QString::number(port)});
}

void tst_RealSite::loadOfAStationRaisesAnErrorUntilItRests()
{
    const quint16 port = freePort();
    MachineFiles machine;
    const auto exporter = startExporter(port, machine.path());
    HeadlessWorkbench workbench(siteWith(port), 60);
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

void tst_RealSite::whatGoesAwayIsDisconnectedUntilItIsBack()
{
    const quint16 exporterPort = freePort();
    const quint16 rtspPort = freePort();
    const MachineFiles machine;
    auto exporter = startExporter(exporterPort, machine.path());
    auto rtspServer = startRtspServer(rtspPort);
    QVERIFY(rtspServer->printsALine());
    HeadlessWorkbench workbench(siteWith(exporterPort, doorAt(rtspPort)), 101);
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
