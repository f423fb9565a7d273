#ifndef WORKBENCHCOMMANDLINE_H
#define WORKBENCHCOMMANDLINE_H

#include "CommandLine.h"

/// The command line of the Workbench: its options, and what its help says of them.
class WorkbenchCommandLine : public CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(Options)

public:
    WorkbenchCommandLine();

    /// All that the command line may hold, with examples and exit codes, for the user.
    QString usageText() const;

    const QCommandLineOption headless;
    const QCommandLineOption scenario;
    const QCommandLineOption speed;
    const QCommandLineOption seed;
    const QCommandLineOption format;
    const QCommandLineOption ignoreErrors;
    const QCommandLineOption loop;
    const QCommandLineOption screenshot;
    const QCommandLineOption screenshotAt;
    const QCommandLineOption page;
    const QCommandLineOption log;
    const QCommandLineOption metrics;
    const QCommandLineOption plugin;
    const QCommandLineOption server;
    const QCommandLineOption token;
    const QCommandLineOption connectTimeout;
    const QCommandLineOption store;
    const QCommandLineOption record;
    const QCommandLineOption replay;
};

#endif
