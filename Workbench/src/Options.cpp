#include "Options.h"

#include "BundledFile.h"
#include "InputError.h"
#include "WorkbenchCommandLine.h"

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
    Options parse(const QStringList &arguments);

private:
    void readSite(Options &options) const;
    void readReplay(Options &options) const;
    void readServer(Options &options) const;
    void readView(Options &options) const;
    void readReports(Options &options) const;
    void expectWithServer(const QCommandLineOption &option) const;
    void expectWithoutServer(const QCommandLineOption &option) const;
    double number(const QCommandLineOption &option, double greatest) const;
    qint64 milliseconds(const QCommandLineOption &option) const;
    quint32 seed() const;
    ReportFormat format() const;
    quint16 metricsPort() const;

    WorkbenchCommandLine m_line;
};

Options OptionParser::parse(const QStringList &arguments)
{
    m_line.parse(arguments);
    Options options;
    options.wantsHelp = m_line.isSet(m_line.help);
    options.wantsVersion = m_line.isSet(m_line.version);
    options.language = m_line.value(m_line.language);
    options.pluginFile = m_line.value(m_line.plugin);
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
    const bool onlyWatches = m_line.isSet(m_line.server) && !m_line.isSet(m_line.scenario);
    options.scenarioFile = onlyWatches
                               ? bundledOrFile(QStringLiteral("scenarios"), QStringLiteral("watch"))
                               : m_line.file(m_line.scenario, QStringLiteral("scenarios"));
    options.seed = seed();
    options.isLooped = m_line.isSet(m_line.loop);
    options.storeFile = m_line.value(m_line.store);
}

void OptionParser::readReplay(Options &options) const
{
    options.recordFile = m_line.value(m_line.record);
    options.replayFile = m_line.value(m_line.replay);
    const bool isReplay = !options.replayFile.isEmpty();
    options.isFast = isReplay && m_line.value(m_line.speed) == QStringLiteral("max");
    if (!options.isFast)
        options.speed = number(m_line.speed, MaxSpeed);
    if (!isReplay)
        return;
    for (const QCommandLineOption &other :
         {m_line.record, m_line.site, m_line.scenario, m_line.seed, m_line.loop, m_line.screenshot,
          m_line.server, m_line.store, m_line.log, m_line.format, m_line.ignoreErrors,
          m_line.metrics}) {
        if (m_line.isSet(other))
            throw InputError(
                tr("--%1: expected without --replay.").arg(other.names().constFirst()));
    }
}

void OptionParser::readServer(Options &options) const
{
    options.tokenFile = m_line.value(m_line.token);
    if (!m_line.isSet(m_line.server)) {
        expectWithServer(m_line.token);
        expectWithServer(m_line.connectTimeout);
        return;
    }
    const QString text = m_line.value(m_line.server);
    options.serverUrl = QUrl(text, QUrl::StrictMode);
    const QStringList schemes{QStringLiteral("ws"), QStringLiteral("wss")};
    if (!options.serverUrl.isValid() || !schemes.contains(options.serverUrl.scheme())
        || options.serverUrl.host().isEmpty())
        throw InputError(
            tr("--server: expected an address such as ws://127.0.0.1:8765, found \"%1\".")
                .arg(text));
    expectWithoutServer(m_line.store);
    expectWithoutServer(m_line.speed);
    if (m_line.isSet(m_line.connectTimeout))
        options.connectTimeoutMs = static_cast<int>(milliseconds(m_line.connectTimeout));
}

void OptionParser::expectWithServer(const QCommandLineOption &option) const
{
    if (m_line.isSet(option))
        throw InputError(
            tr("--%1: expected --server URL as well.").arg(option.names().constFirst()));
}

// The snoozes and the clock are that server's.
void OptionParser::expectWithoutServer(const QCommandLineOption &option) const
{
    if (m_line.isSet(option))
        throw InputError(tr("--%1: expected without --server.").arg(option.names().constFirst()));
}

void OptionParser::readView(Options &options) const
{
    options.pageFile = m_line.value(m_line.page);
    if (m_line.isSet(m_line.page) && !QFileInfo(options.pageFile).isFile())
        throw InputError(tr("--page: expected a QML file, found \"%1\".").arg(options.pageFile));
    options.screenshotFile = m_line.value(m_line.screenshot);
    if (!m_line.isSet(m_line.screenshotAt))
        return;
    if (options.screenshotFile.isEmpty())
        throw InputError(tr("--screenshot-at: expected --screenshot FILE as well."));
    options.screenshotAtMs = milliseconds(m_line.screenshotAt);
}

void OptionParser::readReports(Options &options) const
{
    options.isHeadless = m_line.isSet(m_line.headless);
    options.format = format();
    options.ignoresErrors = m_line.isSet(m_line.ignoreErrors);
    if (m_line.isSet(m_line.metrics))
        options.metricsPort = metricsPort();
    if (m_line.isSet(m_line.log))
        options.logFile = m_line.value(m_line.log);
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

// Of an option in seconds.
qint64 OptionParser::milliseconds(const QCommandLineOption &option) const
{
    return std::llround(number(option, MaxSeconds) * 1000.0);
}

quint32 OptionParser::seed() const
{
    bool isNumber = false;
    const QString text = m_line.value(m_line.seed);
    const quint32 seed = text.toUInt(&isNumber);
    if (!isNumber)
        throw InputError(
            tr("--seed: expected a whole number from 0 to 4294967295, found \"%1\".").arg(text));
    return seed;
}

ReportFormat OptionParser::format() const
{
    const QString name = m_line.value(m_line.format);
    if (name == QStringLiteral("text"))
        return ReportFormat::Text;
    if (name == QStringLiteral("json"))
        return ReportFormat::Json;
    throw InputError(tr("--format: expected text or json, found \"%1\".").arg(name));
}

quint16 OptionParser::metricsPort() const
{
    bool isPort = false;
    const QString text = m_line.value(m_line.metrics);
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
    return WorkbenchCommandLine().usageText();
}

QString defaultPluginFile()
{
    const QDir program(QCoreApplication::applicationDirPath());
    QString built = program.filePath(QStringLiteral(WORKBENCH_BUILT_PLUGIN));
    if (QFile::exists(built))
        return built;
    return program.filePath(QStringLiteral(WORKBENCH_INSTALLED_PLUGIN));
}
