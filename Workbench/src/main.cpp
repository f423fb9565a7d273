#include "Catalogues.h"
#include "CommandLine.h"
#include "DashboardWindow.h"
#include "Display.h"
#include "EnvironmentThresholds.h"
#include "ExitCode.h"
#include "HostError.h"
#include "InputError.h"
#include "JournalPlayer.h"
#include "JournalReader.h"
#include "LocalStation.h"
#include "Options.h"
#include "PluginHost.h"
#include "Preferences.h"
#include "ReplayFeed.h"
#include "ReplayRun.h"
#include "ScaledClock.h"
#include "ScenarioFile.h"
#include "ScenarioRun.h"
#include "SiteFile.h"
#include "SlowNotice.h"
#include "StandardOutput.h"

#include <QGuiApplication>
#include <QProcessEnvironment>
#include <QQmlEngine>
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

// What is said of a wrong option needs an application to be translated.
Options readOptions(const QStringList &arguments, int &argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Catalogues catalogues(CommandLine::languageOf(arguments));
    return parseOptions(arguments);
}

// Help needs no window system.
std::unique_ptr<QCoreApplication> createApplication(const Options &options, int &argc, char **argv)
{
    if (options.wantsHelp || options.wantsVersion)
        return std::make_unique<QCoreApplication>(argc, argv);
    if (options.isHeadless)
        drawOffscreen();
    return std::make_unique<QGuiApplication>(argc, argv);
}

SlowNotice whileReading(const QString &fileName)
{
    return SlowNotice(StatusLine::onStandardError(),
                      QCoreApplication::translate("main", "reading %1").arg(fileName));
}

Site readSite(const Options &options)
{
    const SlowNotice notice = whileReading(options.siteFile);
    Site site = readSiteFile(options.siteFile);
    site.stations.push_back(LocalStation::station());
    return site;
}

Scenario readScenario(const Options &options, const Site &site)
{
    const SlowNotice notice = whileReading(options.scenarioFile);
    Scenario scenario = readScenarioFile(options.scenarioFile, site, options.seed);
    if (options.screenshotAtMs) {
        scenario.screenshotAtMs = options.screenshotAtMs;
        scenario.endMs = std::max(scenario.endMs, *options.screenshotAtMs);
    }
    return scenario;
}

void expectFittingOptions(const Options &options)
{
    if (options.isHeadless && options.isLooped)
        throw InputError(QCoreApplication::translate("main", "--loop: expected a window."));
    if (!options.isHeadless && options.format != ReportFormat::Text)
        throw InputError(
            QCoreApplication::translate("main", "--format: expected --headless as well."));
    if (!options.isHeadless && options.connectTimeoutMs)
        throw InputError(
            QCoreApplication::translate("main", "--connect-timeout: expected --headless as well."));
}

QString pluginFile(const Options &options)
{
    return options.pluginFile.isEmpty() ? defaultPluginFile() : options.pluginFile;
}

int play(const Options &options, Catalogues &catalogues)
{
    expectFittingOptions(options);
    const Site site = readSite(options);
    Scenario scenario = readScenario(options, site);
    PluginHost host(pluginFile(options));
    catalogues.installNew();
    return ScenarioRun(options, site, std::move(scenario), host).exec();
}

Journal readRecording(const Options &options)
{
    const SlowNotice notice = whileReading(options.replayFile);
    return readJournal(options.replayFile);
}

int replay(const Options &options, Catalogues &catalogues)
{
    const Journal journal = readRecording(options);
    PluginHost host(pluginFile(options));
    if (journal.pluginId != host.pluginId())
        throw InputError(QCoreApplication::translate(
                             "main", "%1: expected a journal of plug-in %2, found one of %3")
                             .arg(journal.fileName, host.pluginId(), journal.pluginId));
    catalogues.installNew();
    setThresholdsOfEnvironment(journal.thresholds);
    ScaledClock clock(options.speed);
    const std::unique_ptr<QQmlEngine> engine =
        options.isHeadless ? nullptr : std::make_unique<QQmlEngine>();
    const QUrl page = DashboardWindow::pageUrl(options.pageFile);
    if (engine)
        DashboardWindow::expectLoadable(*engine, page);
    JournalPlayer player(*host.plugin(), engine ? engine->rootContext() : nullptr, journal,
                         options.isFast ? nullptr : &clock);
    std::unique_ptr<DashboardWindow> window;
    std::unique_ptr<ReplayFeed> feed;
    const Preferences preferences(engine ? Preferences::usualFile() : QString());
    if (engine) {
        window = std::make_unique<DashboardWindow>(*engine, *host.plugin(), journal.fileName, page);
        feed = std::make_unique<ReplayFeed>(player, *window);
        window->setDark(preferences.isDark());
        window->setZoom(preferences.zoom());
        window->show();
    }
    StandardOutput out;
    const int code = ReplayRun(player, journal, out.stream(), window != nullptr).exec();
    feed.reset();
    window.reset();
    host.destroy();
    out.expectWritten();
    return code;
}

int run(int argc, char **argv)
{
    const QStringList arguments = toStringList(argc, argv);
    Options options = readOptions(arguments, argc, argv);
    if (!hasDisplay(QProcessEnvironment::systemEnvironment()))
        options.isHeadless = true;
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
