#include "WorkbenchCommandLine.h"

#include "ScenarioFile.h"

WorkbenchCommandLine::WorkbenchCommandLine()
    : headless(
        QStringLiteral("headless"),
        tr("Run without a window: play the scenario to its end, print each change of the error "
           "list, then a summary. This is what happens, too, when there is no display."))
    , scenario(QStringLiteral("scenario"),
               tr("What happens at the site: a JSON file, or the name of a bundled one (default, "
                  "everything, flap, storm, watch)."),
               tr("file"), QStringLiteral("default"))
    , speed(QStringLiteral("speed"),
            tr("How many seconds of the scenario pass in a real one. Snoozes and the times printed "
               "follow; the plug-in's own delays and the samples of this machine do not."),
            tr("number"), QStringLiteral("1"))
    , seed(QStringLiteral("seed"),
           tr("Decides which cameras a storm takes, and in which order. The same seed plays the "
              "same storm."),
           tr("number"), QString::number(DefaultScenarioSeed))
    , format(QStringLiteral("format"),
             tr("Without a window: print text, or json with one object a line for programs."),
             tr("name"), QStringLiteral("text"))
    , ignoreErrors(
          QStringLiteral("ignore-errors"),
          tr("Without a window: end with exit code 0 although errors are listed in the end."))
    , loop(QStringLiteral("loop"), tr("Start the scenario again whenever it has ended."))
    , screenshot(QStringLiteral("screenshot"),
                 tr("Save a picture of the dashboard, also without a window. The suffix names the "
                    "format."),
                 tr("file"))
    , screenshotAt(QStringLiteral("screenshot-at"),
                   tr("When to take it, in seconds of the scenario. Without this the scenario "
                      "decides, or it is taken at the end."),
                   tr("seconds"))
    , page(QStringLiteral("page"),
           tr("Show this QML file instead of the dashboard, with the same properties."), tr("file"))
    , log(QStringLiteral("log"),
          tr("Keep the operational log in this SQLite file. Without it the log is kept among the "
             "user's data, or only in memory when there is no window."),
          tr("file"))
    , metrics(
          QStringLiteral("metrics"),
          tr("Offer figures for monitoring, as OpenMetrics text at http://127.0.0.1:PORT/metrics. "
             "With 0 a free port is chosen. The address is printed on standard error."),
          tr("port"))
    , plugin(QStringLiteral("plugin"),
             tr("Load this plug-in file instead of the one that was built with this program."),
             tr("file"))
    , server(QStringLiteral("server"),
             tr("Show the site of this site-server instead of one in this program. The scenario is "
                "then watch unless --scenario is given, and only what clients and their users do "
                "is taken from it; its ids are checked with --site."),
             tr("ws://host:port"))
    , token(QStringLiteral("token-file"), tr("Give that server the token that is in this file."),
            tr("file"))
    , connectTimeout(QStringLiteral("connect-timeout"),
                     tr("Without a window: end with exit code 3 when there has been no connection "
                        "to that server for so long after the start. Without this it is waited "
                        "for."),
                     tr("seconds"))
    , store(
          QStringLiteral("store"),
          tr("Keep the snoozes of the site in this SQLite file, for the next time. Without it they "
             "end with the program."),
          tr("file"))
    , record(QStringLiteral("record"),
             tr("Write everything that the plug-in is given to this new file, to be replayed."),
             tr("file"))
    , replay(QStringLiteral("replay"),
             tr("Give the plug-in what such a file tells, instead of a site and a scenario. "
                "--speed max does so as fast as possible. The error list is printed in the end, "
                "and compared with the recorded one."),
             tr("file"))
{
    add({{tr("What is shown:"), {site, scenario, speed, seed, loop, replay, page, language}},
         {tr("Site server:"), {server, token, connectTimeout}},
         {tr("Files that are written:"), {screenshot, screenshotAt, log, store, record}},
         {tr("For scripts and monitoring:"), {headless, format, ignoreErrors, metrics}},
         {tr("Others:"), {plugin, help, version}}});
}

QString WorkbenchCommandLine::usageText() const
{
    const QStringList sections{
        tr("Usage: workbench [options]\n"),
        tr("Runs the system-monitor plug-in in a stand-in for its host: with a site of\n"
           "recording stations and cameras, a scenario of what happens there, and this\n"
           "machine's own load.\n"),
        optionsText(),
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
