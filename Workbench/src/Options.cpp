#include "Options.h"

#include "BundledFile.h"
#include "CommandLine.h"
#include "InputError.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>

namespace {

constexpr double MaxSpeed = 1000;
constexpr double MaxSeconds = 86'400;

class OptionParser
{
    Q_DECLARE_TR_FUNCTIONS(Options)

public:
    OptionParser();

    Options parse(const QStringList &arguments);
    QString help() const;

private:
    void readSite(Options &options) const;
    void readReplay(Options &options) const;
    void readServer(Options &options) const;
    void readView(Options &options) const;
    void readReports(Options &options) const;
    void expectWithoutServer(const QCommandLineOption &option) const;
    double number(const QCommandLineOption &option, double greatest) const;
    quint32 seed() const;
    ReportFormat format() const;
    quint16 metricsPort() const;

    const QCommandLineOption m_headless{
        QStringLiteral("headless"),
        tr("Run without a window: play the scenario to its end, print each change of the error "
           "list, then a summary. This is what happens, too, when there is no display.")};
    const QCommandLineOption m_scenario{
        QStringLiteral("scenario"),
        tr("What happens at the site: a JSON file, or the name of a bundled one (default, "
           "everything, flap, storm)."),
        tr("file"), QStringLiteral("default")};
    const QCommandLineOption m_speed{
        QStringLiteral("speed"),
        tr("How many seconds of the scenario pass in a real one. Snoozes and the times printed "
           "follow; the plug-in's own delays and the samples of this machine do not."),
        tr("number"), QStringLiteral("1")};
    const QCommandLineOption m_seed{
        QStringLiteral("seed"),
        tr("Decides which cameras a storm takes, and in which order. The same seed plays the same "
           "storm."),
        tr("number"), QString::number(DefaultScenarioSeed)};
    const QCommandLineOption m_format{
        QStringLiteral("format"),
        tr("Without a window: print text, or json with one object a line for programs."),
        tr("name"), QStringLiteral("text")};
    const QCommandLineOption m_ignoreErrors{
        QStringLiteral("ignore-errors"),
        tr("Without a window: end with exit code 0 although errors are listed in the end.")};
    const QCommandLineOption m_loop{QStringLiteral("loop"),
                                    tr("Start the scenario again whenever it has ended.")};
    const QCommandLineOption m_screenshot{
        QStringLiteral("screenshot"),
        tr("Save a picture of the dashboard, also without a window. The suffix names the format."),
        tr("file")};
    const QCommandLineOption m_screenshotAt{
        QStringLiteral("screenshot-at"),
        tr("When to take it, in seconds of the scenario. Without this the scenario decides, or it "
           "is taken at the end."),
        tr("seconds")};
    const QCommandLineOption m_page{
        QStringLiteral("page"),
        tr("Show this QML file instead of the dashboard, with the same properties."), tr("file")};
    const QCommandLineOption m_log{
        QStringLiteral("log"),
        tr("Keep the operational log in this SQLite file. Without it the log is kept among the "
           "user's data, or only in memory when there is no window."),
        tr("file")};
    const QCommandLineOption m_metrics{
        QStringLiteral("metrics"),
        tr("Offer figures for monitoring, as OpenMetrics text at http://127.0.0.1:PORT/metrics. "
           "With 0 a free port is chosen. The address is printed on standard error."),
        tr("port")};
    const QCommandLineOption m_plugin{
        QStringLiteral("plugin"),
        tr("Load this plug-in file instead of the one that was built with this program."),
        tr("file")};
    const QCommandLineOption m_server{
        QStringLiteral("server"),
        tr("Show the site of this site-server instead of one in this program. The scenario is then "
           "watch unless --scenario is given, and only what clients and their users do is taken "
           "from it; its ids are checked with --site."),
        tr("ws://host:port")};
    const QCommandLineOption m_token{QStringLiteral("token-file"),
                                     tr("Give that server the token that is in this file."),
                                     tr("file")};
    const QCommandLineOption m_store{
        QStringLiteral("store"),
        tr("Keep the snoozes of the site in this SQLite file, for the next time. Without it they "
           "end with the program."),
        tr("file")};
    const QCommandLineOption m_record{
        QStringLiteral("record"),
        tr("Write everything that the plug-in is given to this new file, to be replayed."),
        tr("file")};
    const QCommandLineOption m_replay{
        QStringLiteral("replay"),
        tr("Give the plug-in what such a file tells, instead of a site and a scenario. --speed max "
           "does so as fast as possible. The error list is printed in the end, and "
           "compared with the recorded one."),
        tr("file")};
    CommandLine m_line;
};

OptionParser::OptionParser()
{
    m_line.add(
        {{tr("What is shown:"),
          {m_line.site, m_scenario, m_speed, m_seed, m_loop, m_replay, m_page, m_line.language}},
         {tr("Site server:"), {m_server, m_token}},
         {tr("Files that are written:"), {m_screenshot, m_screenshotAt, m_log, m_store, m_record}},
         {tr("For scripts and monitoring:"), {m_headless, m_format, m_ignoreErrors, m_metrics}},
         {tr("Others:"), {m_plugin, m_line.help, m_line.version}}});
}

Options OptionParser::parse(const QStringList &arguments)
{
    m_line.parse(arguments);
    Options options;
    options.wantsHelp = m_line.isSet(m_line.help);
    options.wantsVersion = m_line.isSet(m_line.version);
    options.language = m_line.value(m_line.language);
    options.pluginFile = m_line.value(m_plugin);
    readSite(options);
    readReplay(options);
    readServer(options);
    readView(options);
    readReports(options);
    return options;
}

void OptionParser::readSite(Options &options) const
{
    options.siteFile = m_line.file(m_line.site, QStringLiteral("sites"));
    const bool onlyWatches = m_line.isSet(m_server) && !m_line.isSet(m_scenario);
    options.scenarioFile = onlyWatches
                               ? bundledOrFile(QStringLiteral("scenarios"), QStringLiteral("watch"))
                               : m_line.file(m_scenario, QStringLiteral("scenarios"));
    options.seed = seed();
    options.isLooped = m_line.isSet(m_loop);
    options.storeFile = m_line.value(m_store);
}

void OptionParser::readReplay(Options &options) const
{
    options.recordFile = m_line.value(m_record);
    options.replayFile = m_line.value(m_replay);
    const bool isReplay = !options.replayFile.isEmpty();
    options.isFast = isReplay && m_line.value(m_speed) == QStringLiteral("max");
    if (!options.isFast)
        options.speed = number(m_speed, MaxSpeed);
    if (!isReplay)
        return;
    for (const QCommandLineOption &other :
         {m_record, m_line.site, m_scenario, m_seed, m_loop, m_screenshot, m_server, m_store, m_log,
          m_format, m_ignoreErrors, m_metrics}) {
        if (m_line.isSet(other))
            throw InputError(
                tr("--%1: expected without --replay.").arg(other.names().constFirst()));
    }
}

void OptionParser::readServer(Options &options) const
{
    options.tokenFile = m_line.value(m_token);
    if (!m_line.isSet(m_server)) {
        if (!options.tokenFile.isEmpty())
            throw InputError(tr("--token-file: expected --server URL as well."));
        return;
    }
    const QString text = m_line.value(m_server);
    options.serverUrl = QUrl(text, QUrl::StrictMode);
    const QStringList schemes{QStringLiteral("ws"), QStringLiteral("wss")};
    if (!options.serverUrl.isValid() || !schemes.contains(options.serverUrl.scheme())
        || options.serverUrl.host().isEmpty())
        throw InputError(
            tr("--server: expected an address such as ws://127.0.0.1:8765, found \"%1\".")
                .arg(text));
    expectWithoutServer(m_store);
    expectWithoutServer(m_speed);
}

// The snoozes and the clock are that server's.
void OptionParser::expectWithoutServer(const QCommandLineOption &option) const
{
    if (m_line.isSet(option))
        throw InputError(tr("--%1: expected without --server.").arg(option.names().constFirst()));
}

void OptionParser::readView(Options &options) const
{
    options.pageFile = m_line.value(m_page);
    if (m_line.isSet(m_page) && !QFileInfo(options.pageFile).isFile())
        throw InputError(tr("--page: expected a QML file, found \"%1\".").arg(options.pageFile));
    options.screenshotFile = m_line.value(m_screenshot);
    if (!m_line.isSet(m_screenshotAt))
        return;
    if (options.screenshotFile.isEmpty())
        throw InputError(tr("--screenshot-at: expected --screenshot FILE as well."));
    options.screenshotAtMs = std::llround(number(m_screenshotAt, MaxSeconds) * 1000.0);
}

void OptionParser::readReports(Options &options) const
{
    options.isHeadless = m_line.isSet(m_headless);
    options.format = format();
    options.ignoresErrors = m_line.isSet(m_ignoreErrors);
    if (m_line.isSet(m_metrics))
        options.metricsPort = metricsPort();
    if (m_line.isSet(m_log))
        options.logFile = m_line.value(m_log);
}

QString OptionParser::help() const
{
    const QStringList sections{
        tr("Usage: workbench [options]\n"),
        tr("Runs the system-monitor plug-in in a stand-in for its host: with a site of\n"
           "recording stations and cameras, a scenario of what happens there, and this\n"
           "machine's own load.\n"),
        m_line.optionsText(),
        tr("Examples:\n"
           "  workbench\n"
           "      show the dashboard with the bundled site and scenario\n"
           "  workbench --headless --scenario everything --speed 6\n"
           "      print every kind of happening, six times as fast\n"
           "  workbench --site large --scenario flap\n"
           "      let ten thousand cameras flap for a minute\n"
           "  workbench --headless --screenshot picture.png\n"
           "      save a picture of the dashboard as well\n"
           "  workbench --server ws://127.0.0.1:8765\n"
           "      show the site of a site-server\n"
           "  workbench --headless --format json --ignore-errors\n"
           "      print one JSON object a line for a program to read\n"),
        tr("Exit codes:\n"
           "  0  all went well\n"
           "  1  errors are listed at the end of a run without a window\n"
           "  2  an option or a file is wrong\n"
           "  3  the work could not be done\n")};
    return sections.join(u'\n');
}

double OptionParser::number(const QCommandLineOption &option, double greatest) const
{
    bool isNumber = false;
    const QString text = m_line.value(option);
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !(number > 0 && number <= greatest))
        throw InputError(tr("--%1: expected a number greater than 0 and up to %2, found \"%3\".")
                             .arg(option.names().constFirst())
                             .arg(greatest)
                             .arg(text));
    return number;
}

quint32 OptionParser::seed() const
{
    bool isNumber = false;
    const QString text = m_line.value(m_seed);
    const quint32 seed = text.toUInt(&isNumber);
    if (!isNumber)
        throw InputError(
            tr("--seed: expected a whole number from 0 to 4294967295, found \"%1\".").arg(text));
    return seed;
}

ReportFormat OptionParser::format() const
{
    const QString name = m_line.value(m_format);
    if (name == QStringLiteral("text"))
        return ReportFormat::Text;
    if (name == QStringLiteral("json"))
        return ReportFormat::Json;
    throw InputError(tr("--format: expected text or json, found \"%1\".").arg(name));
}

quint16 OptionParser::metricsPort() const
{
    bool isPort = false;
    const QString text = m_line.value(m_metrics);
    const quint16 port = text.toUShort(&isPort);
    if (!isPort)
        throw InputError(tr("--metrics: expected a port from 0 to 65535, found \"%1\".").arg(text));
    return port;
}

} // namespace

Options parseOptions(const QStringList &arguments)
{
    return OptionParser().parse(arguments);
}

QString optionsHelp()
{
    return OptionParser().help();
}

QString defaultPluginFile()
{
    const QDir program(QCoreApplication::applicationDirPath());
    QString built = program.filePath(QStringLiteral(WORKBENCH_BUILT_PLUGIN));
    if (QFile::exists(built))
        return built;
    return program.filePath(QStringLiteral(WORKBENCH_INSTALLED_PLUGIN));
}
