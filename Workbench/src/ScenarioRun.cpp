#include "ScenarioRun.h"

#include "AccessToken.h"
#include "ConsoleReport.h"
#include "DashboardFeed.h"
#include "DashboardWindow.h"
#include "ExitCode.h"
#include "FileExport.h"
#include "HeadlessRun.h"
#include "JsonReport.h"
#include "OperationalLogReader.h"
#include "Preferences.h"
#include "RemoteServerLink.h"
#include "RunProgress.h"
#include "Screenshot.h"
#include "WindowRun.h"

#include <QStandardPaths>
#include <QTextStream>

namespace {

// Without a window a page of the user's is tried all the same.
bool isDashboardNeeded(const Options &options)
{
    return !options.isHeadless || !options.screenshotFile.isEmpty() || !options.pageFile.isEmpty();
}

std::unique_ptr<QQmlEngine> createEngine(const Options &options)
{
    if (!isDashboardNeeded(options))
        return nullptr;
    auto engine = std::make_unique<QQmlEngine>();
    DashboardWindow::expectLoadable(*engine, DashboardWindow::pageUrl(options.pageFile));
    return engine;
}

std::unique_ptr<Recording> openRecording(const Options &options, PluginHost &host,
                                         const Clock &clock)
{
    return options.recordFile.isEmpty()
               ? nullptr
               : std::make_unique<Recording>(options.recordFile, host, clock);
}

QString logFile(const Options &options)
{
    if (options.logFile || options.isHeadless)
        return options.logFile.value_or(QString());
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
           + QStringLiteral("/operational-log.sqlite");
}

std::unique_ptr<SnoozeStore> openStore(const Options &options)
{
    return options.storeFile.isEmpty() ? nullptr : std::make_unique<SnoozeStore>(options.storeFile);
}

std::unique_ptr<LocalSite> openSite(const Options &options, const Site &site, Clock &clock,
                                    SnoozeStore *store)
{
    return options.serverUrl.isEmpty() ? std::make_unique<LocalSite>(site, clock, store) : nullptr;
}

std::unique_ptr<ServerLink> openRemoteLink(const Options &options, Clock &clock)
{
    if (options.serverUrl.isEmpty())
        return nullptr;
    const AccessToken token =
        options.tokenFile.isEmpty() ? AccessToken() : AccessToken::fromFile(options.tokenFile);
    return std::make_unique<RemoteServerLink>(options.serverUrl, token, clock);
}

std::unique_ptr<MetricsServer> serveMetrics(const Options &options, Workbench &workbench)
{
    return options.metricsPort ? std::make_unique<MetricsServer>(workbench, *options.metricsPort)
                               : nullptr;
}

std::unique_ptr<RunReport> createReport(ReportFormat format, QTextStream &out, const Clock &clock)
{
    if (format == ReportFormat::Json)
        return std::make_unique<JsonReport>(out, clock);
    return std::make_unique<ConsoleReport>(out, clock);
}

} // namespace

ScenarioRun::ScenarioRun(const Options &options, const Site &site, Scenario scenario,
                         PluginHost &host)
    : m_options(options)
    , m_site(site)
    , m_engine(createEngine(options))
    , m_clock(options.speed)
    , m_recording(openRecording(options, host, m_clock))
    , m_log(logFile(options))
    , m_store(openStore(options))
    , m_local(openSite(options, site, m_clock, m_store.get()))
    , m_remote(openRemoteLink(options, m_clock))
    , m_workbench(host, m_engine ? m_engine->rootContext() : nullptr,
                  m_remote ? *m_remote : m_local->link(), m_local.get(), std::move(scenario), m_log,
                  m_clock)
    , m_metrics(serveMetrics(options, m_workbench))
{
    if (m_metrics) {
        const QString url = QStringLiteral("http://127.0.0.1:%1/metrics").arg(m_metrics->port());
        QTextStream(stderr) << tr("Metrics are at %1").arg(url) << Qt::endl;
    }
}

int ScenarioRun::exec()
{
    const int exitCode = m_engine ? playWithDashboard() : playHeadless(nullptr);
    if (m_recording)
        m_recording->finish();
    m_out.expectWritten();
    return exitCode;
}

int ScenarioRun::playWithDashboard()
{
    FileExport files(FileExport::usualFolder());
    OperationalLogReader logReader(m_log, m_workbench.logPlugin());
    Preferences preferences(m_options.isHeadless ? QString() : Preferences::usualFile());
    DashboardWindow window(*m_engine, m_workbench.surface().plugin(),
                           m_local ? m_site.name : m_options.serverUrl.toDisplayString(),
                           DashboardWindow::pageUrl(m_options.pageFile));
    DashboardFeed feed(m_workbench.link(), m_clock, m_options.speed, window);
    QObject::connect(&m_workbench.topology(), &TopologyPlugin::camStatusRetrievedChanged, &feed,
                     &DashboardFeed::takeStates);
    window.setFiles(files);
    window.setOperationalLog(logReader);
    window.setDark(preferences.isDark());
    QObject::connect(&window, &DashboardWindow::darkChanged,
                     [&preferences](bool isDark) { preferences.setDark(isDark); });
    window.setZoom(preferences.zoom());
    QObject::connect(&window, &DashboardWindow::zoomChanged,
                     [&preferences](double zoom) { preferences.setZoom(zoom); });
    Screenshot picture(window, m_options.screenshotFile);
    Screenshot *const screenshot = m_options.screenshotFile.isEmpty() ? nullptr : &picture;
    if (!m_options.isHeadless)
        return WindowRun(m_workbench, window, screenshot, m_options.isLooped).exec();
    window.show();
    return playHeadless(screenshot);
}

int ScenarioRun::playHeadless(Screenshot *screenshot)
{
    const std::unique_ptr<RunReport> report =
        createReport(m_options.format, m_out.stream(), m_clock);
    report->follow(m_workbench);
    const RunProgress progress(StatusLine::onStandardError(), m_workbench.driver());
    HeadlessRun run(m_workbench, *report, screenshot);
    if (m_options.connectTimeoutMs)
        run.limitConnecting(std::chrono::milliseconds(*m_options.connectTimeoutMs));
    const int code = run.exec();
    return code == ExitCode::ErrorsRemain && m_options.ignoresErrors ? ExitCode::Success : code;
}
