#include "RealPrograms.h"

#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTest>

namespace {

constexpr int PatienceMs = 30'000;

// The package has the same name.
const QString ExporterProgram = QStringLiteral("prometheus-node-exporter");

} // namespace

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

Program::Program(const QString &program, const QStringList &arguments)
{
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.start(program, arguments);
    m_process.waitForStarted();
}

Program::~Program()
{
    m_process.kill();
    m_process.waitForFinished();
}

bool Program::printsALine()
{
    return QTest::qWaitFor([this] { return m_process.canReadLine(); }, PatienceMs);
}

bool hasExporter()
{
    return !QStandardPaths::findExecutable(ExporterProgram).isEmpty();
}

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

QByteArray siteWith(quint16 exporterPort, const QByteArray &cameras)
{
    QByteArray site = R"({"name": "S", "stations": [{"id": "recorder", "name": "Recorder",
                          "exporter": {"url": "http://127.0.0.1:PORT"}, "cameras": [CAMERAS]}]})";
    site.replace("PORT", QByteArray::number(exporterPort));
    return site.replace("CAMERAS", cameras);
}

HeadlessWorkbench::HeadlessWorkbench(const QByteArray &site, int cpuThreshold)
    : m_site(site)
    , m_scenario(R"({"events": [], "endAt": 600})")
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TALO2_HIGH_CPU_USAGE"), QString::number(cpuThreshold));
    m_process.setProcessEnvironment(environment);
    m_process.start(QStringLiteral(WORKBENCH_PROGRAM),
                    {QStringLiteral("--headless"), QStringLiteral("--site"), m_site.path(),
                     QStringLiteral("--scenario"), m_scenario.path()});
}

HeadlessWorkbench::~HeadlessWorkbench()
{
    m_process.kill();
    m_process.waitForFinished();
}

bool HeadlessWorkbench::prints(QStringList texts)
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
