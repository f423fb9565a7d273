#ifndef OPTIONS_H
#define OPTIONS_H

#include "ScenarioFile.h"

#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

/// How a run without a window tells what happens.
enum class ReportFormat { Text, Json };

/// What the user asks for on the command line.
struct Options
{
    QString siteFile;                     ///< a file, or a resource
    QString scenarioFile;                 ///< a file, or a resource
    QString pluginFile;                   ///< empty for defaultPluginFile()
    QString pageFile;                     ///< empty for the dashboard
    QString recordFile;                   ///< a new journal; empty for none
    QString replayFile;                   ///< a journal to play instead of a scenario, or empty
    QString screenshotFile;               ///< empty for none
    std::optional<qint64> screenshotAtMs; ///< of the scenario; the scenario decides without it
    std::optional<QString> logFile;
    std::optional<quint16> metricsPort;  ///< 0 for one that is free
    QUrl serverUrl;                      ///< empty for a server in this process
    QString tokenFile;                   ///< for the server, empty for none
    std::optional<int> connectTimeoutMs; ///< without a window; it waits for the server without it
    QString storeFile;                   ///< of the server in this process, empty for none
    QString language;
    ReportFormat format = ReportFormat::Text; ///< without a window
    double speed = 1.0;
    quint32 seed = DefaultScenarioSeed;
    bool isFast = false; ///< replays as fast as possible, whatever the speed
    bool isHeadless = false;
    bool isLooped = false;
    bool ignoresErrors = false; ///< in the exit code
    bool wantsHelp = false;
    bool wantsVersion = false;
};

/// Reads the command line, whose first argument is the program's own name. Throws InputError.
Options parseOptions(const QStringList &arguments);

/// What the command line may hold, for the user. Needs an application object.
QString optionsHelp();

/// The plug-in that was built or installed with this program, found relative to it. Needs an
/// application object.
QString defaultPluginFile();

#endif
