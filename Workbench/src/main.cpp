#include "AccessToken.h"
#include "Catalogues.h"
#include "ConsoleReport.h"
#include "DashboardFeed.h"
#include "DashboardWindow.h"
#include "Display.h"
#include "ExitCode.h"
#include "FileExport.h"
#include "HeadlessRun.h"
#include "HostError.h"
#include "InputError.h"
#include "JournalPlayer.h"
#include "JournalReader.h"
#include "JsonReport.h"
#include "LocalSite.h"
#include "MetricsServer.h"
#include "OperationalLogReader.h"
#include "Options.h"
#include "PluginHost.h"
#include "Preferences.h"
#include "Recording.h"
#include "RemoteServerLink.h"
#include "ReplayRun.h"
#include "RunProgress.h"
#include "ScaledClock.h"
#include "ScenarioFile.h"
#include "Screenshot.h"
#include "SiteFile.h"
#include "SlowNotice.h"
#include "SnoozeStore.h"
#include "Thresholds.h"
#include "WindowRun.h"
#include "Workbench.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QProcessEnvironment>
#include <QQmlEngine>
#include <QStandardPaths>
#include <QTextStream>

#include <algorithm>
#include <memory>

namespace {

QStringList toStringList(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

bool runsHeadless(const Options &options)
{
    return options.isHeadless || !hasDisplay(QProcessEnvironment::systemEnvironment());
}

// Help, and what is said of a wrong option, needs no window system.
std::unique_ptr<QCoreApplication> createApplication(const Options &options, int &argc, char **argv)
{
    if (options.wantsHelp || options.wantsVersion)
        return std::make_unique<QCoreApplication>(argc, argv);
    if (runsHeadless(options))
        drawOffscreen();
    return std::make_unique<QGuiApplication>(argc, argv);
}

Site readSite(const Options &options)
{
    const SlowNotice notice(
        StatusLine::onStandardError(),
        QCoreApplication::translate("main", "reading %1").arg(options.siteFile));
    Site site = readSiteFile(options.siteFile);
    site.stations.push_back(LocalStation::station());
    return site;
}

Scenario readScenario(const Options &options, const Site &site)
{
    Scenario scenario = readScenarioFile(options.scenarioFile, site, options.seed);
    if (options.screenshotAtMs) {
        scenario.screenshotAtMs = options.screenshotAtMs;
        scenario.endMs = std::max(scenario.endMs, *options.screenshotAtMs);
    }
    return scenario;
}

QString logFile(const Options &options)
{
    if (options.logFile || runsHeadless(options))
        return options.logFile.value_or(QString());
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
           + QStringLiteral("/operational-log.sqlite");
}

QUrl pageUrl(const Options &options)
{
    return options.pageFile.isEmpty()
               ? DashboardWindow::dashboardUrl()
               : QUrl::fromLocalFile(QFileInfo(options.pageFile).absoluteFilePath());
}

std::unique_ptr<SnoozeStore> openStore(const Options &options)
{
    return options.storeFile.isEmpty() ? nullptr : std::make_unique<SnoozeStore>(options.storeFile);
}

// Null when the site is another process's.
std::unique_ptr<LocalSite> openSite(const Options &options, const Site &site, Clock &clock,
                                    SnoozeStore *store)
{
    return options.serverUrl.isEmpty() ? std::make_unique<LocalSite>(site, clock, store) : nullptr;
}

// Null when the site is in this process.
std::unique_ptr<ServerLink> openRemoteLink(const Options &options, Clock &clock)
{
    if (options.serverUrl.isEmpty())
        return nullptr;
    const AccessToken token =
        options.tokenFile.isEmpty() ? AccessToken() : AccessToken::fromFile(options.tokenFile);
    return std::make_unique<RemoteServerLink>(options.serverUrl, token, clock);
}

// Null when the user wants no journal.
std::unique_ptr<Recording> openRecording(const Options &options, PluginHost &host,
                                         const Clock &clock)
{
    return options.recordFile.isEmpty()
               ? nullptr
               : std::make_unique<Recording>(options.recordFile, host, clock);
}

// Passes on the exit code of the run that has ended.
int finished(Recording *recording, int exitCode)
{
    if (recording)
        recording->finish();
    return exitCode;
}

// Null when nobody asks for metrics.
std::unique_ptr<MetricsServer> serveMetrics(const Options &options, Workbench &workbench)
{
    if (!options.metricsPort)
        return nullptr;
    auto server = std::make_unique<MetricsServer>(workbench, *options.metricsPort);
    const QString url = QStringLiteral("http://127.0.0.1:%1/metrics").arg(server->port());
    QTextStream(stderr) << QCoreApplication::translate("main", "Metrics are at %1").arg(url)
                        << Qt::endl;
    return server;
}

std::unique_ptr<RunReport> createReport(ReportFormat format, QTextStream &out, const Clock &clock)
{
    if (format == ReportFormat::Json)
        return std::make_unique<JsonReport>(out, clock);
    return std::make_unique<ConsoleReport>(out, clock);
}

int playHeadless(const Options &options, const Scenario &scenario, Workbench &workbench,
                 const Clock &clock, Screenshot *screenshot)
{
    QTextStream out(stdout);
    const std::unique_ptr<RunReport> report = createReport(options.format, out, clock);
    report->follow(workbench);
    const RunProgress progress(StatusLine::onStandardError(), clock, scenario.endMs);
    const int code = HeadlessRun(workbench, *report, screenshot).exec();
    return code == ExitCode::ErrorsRemain && options.ignoresErrors ? ExitCode::Success : code;
}

int play(const Options &options, Catalogues &catalogues)
{
    const bool isHeadless = runsHeadless(options);
    if (isHeadless && options.isLooped)
        throw InputError(QCoreApplication::translate("main", "--loop: expected a window."));
    if (!isHeadless && options.format != ReportFormat::Text)
        throw InputError(
            QCoreApplication::translate("main", "--format: expected --headless as well."));
    const Site site = readSite(options);
    const Scenario scenario = readScenario(options, site);

    PluginHost host(options.pluginFile.isEmpty() ? defaultPluginFile() : options.pluginFile);
    catalogues.installNew();
    ScaledClock clock(options.speed);
    const std::unique_ptr<Recording> recording = openRecording(options, host, clock);
    OperationalLogStore log(logFile(options));
    const bool wantsPicture = !options.screenshotFile.isEmpty();
    std::unique_ptr<QQmlEngine> engine;
    if (!isHeadless || wantsPicture)
        engine = std::make_unique<QQmlEngine>();
    const std::unique_ptr<SnoozeStore> store = openStore(options);
    const std::unique_ptr<LocalSite> local = openSite(options, site, clock, store.get());
    const std::unique_ptr<ServerLink> remote = openRemoteLink(options, clock);
    Workbench workbench(host, engine ? engine->rootContext() : nullptr,
                        remote ? *remote : local->link(), local.get(), scenario, log, clock);
    const std::unique_ptr<MetricsServer> metrics = serveMetrics(options, workbench);
    if (!engine)
        return finished(recording.get(),
                        playHeadless(options, scenario, workbench, clock, nullptr));

    FileExport files(FileExport::usualFolder());
    OperationalLogReader logReader(log, workbench.logPlugin());
    Preferences preferences(isHeadless ? QString() : Preferences::usualFile());
    DashboardWindow window(*engine, workbench.surface().plugin(),
                           local ? site.name : options.serverUrl.toString(), pageUrl(options));
    DashboardFeed feed(workbench.link(), window);
    QObject::connect(&workbench.topology(), &TopologyPlugin::camStatusRetrievedChanged, &feed,
                     &DashboardFeed::takeStates);
    if (local)
        window.setServerTime(clock.nowMs(), options.speed);
    window.setFiles(files);
    window.setOperationalLog(logReader);
    window.setDark(preferences.isDark());
    QObject::connect(&window, &DashboardWindow::darkChanged,
                     [&preferences](bool isDark) { preferences.setDark(isDark); });
    Screenshot picture(window, options.screenshotFile);
    Screenshot *const screenshot = wantsPicture ? &picture : nullptr;
    if (!isHeadless)
        return finished(recording.get(),
                        WindowRun(workbench, window, screenshot, options.isLooped).exec());
    window.show();
    return finished(recording.get(), playHeadless(options, scenario, workbench, clock, screenshot));
}

int replay(const Options &options, Catalogues &catalogues)
{
    const Journal journal = readJournal(options.replayFile);
    PluginHost host(options.pluginFile.isEmpty() ? defaultPluginFile() : options.pluginFile);
    if (journal.pluginId != host.pluginId())
        throw InputError(QCoreApplication::translate(
                             "main", "%1: expected a journal of plug-in %2, found one of %3")
                             .arg(journal.fileName, host.pluginId(), journal.pluginId));
    catalogues.installNew();
    setThresholdsOfEnvironment(journal.thresholds);
    ScaledClock clock(options.speed);
    const std::unique_ptr<QQmlEngine> engine =
        runsHeadless(options) ? nullptr : std::make_unique<QQmlEngine>();
    JournalPlayer player(*host.plugin(), engine ? engine->rootContext() : nullptr, journal,
                         options.isFast ? nullptr : &clock);
    std::unique_ptr<DashboardWindow> window;
    if (engine) {
        window = std::make_unique<DashboardWindow>(*engine, *host.plugin(), journal.fileName,
                                                   pageUrl(options));
        window->show();
    }
    QTextStream out(stdout);
    const int code = ReplayRun(player, journal, out, window != nullptr).exec();
    window.reset();
    host.destroy();
    return code;
}

int run(int argc, char **argv)
{
    const QStringList arguments = toStringList(argc, argv);
    const Options options = parseOptions(arguments);
    const std::unique_ptr<QCoreApplication> application = createApplication(options, argc, argv);
    Catalogues catalogues(options.language);
    if (options.wantsHelp)
        QTextStream(stdout) << optionsHelp();
    else if (options.wantsVersion)
        QTextStream(stdout) << "workbench " WORKBENCH_VERSION "\n";
    else
        return options.replayFile.isEmpty() ? play(options, catalogues)
                                            : replay(options, catalogues);
    return ExitCode::Success;
}

void complain(const QString &message)
{
    QTextStream(stderr) << "workbench: " << message << '\n';
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(WORKBENCH_VERSION));
    try {
        return run(argc, argv);
    } catch (const InputError &error) {
        complain(error.message());
        return ExitCode::BadInput;
    } catch (const HostError &error) {
        complain(error.message());
        return ExitCode::Failure;
    }
}
