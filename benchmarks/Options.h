#ifndef OPTIONS_H
#define OPTIONS_H

#include <QList>
#include <QString>
#include <QStringList>

/// A plug-in file and the name that it has in the tables.
struct MeasuredPlugin
{
    QString label;
    QString file;
};

/// What the command line asks for.
struct Options
{
    /// Ends the process with a message when an argument makes no sense.
    static Options fromArguments(const QStringList &arguments);

    bool isWanted(const QString &benchmark) const;

    QStringList benchmarks; ///< the names of the benchmarks to run; all when empty
    QList<int> sizes;       ///< the values of N, ascending
    QList<MeasuredPlugin> plugins;
    int runs = 0;             ///< how often a timed part is repeated at most
    double enoughSeconds = 0; ///< repetitions end when those of one part took this long
    double budgetSeconds = 0; ///< how long a timed part may be expected to take
    double idleSeconds = 0;   ///< how long an idle plug-in is watched
    QString outputFile;       ///< where the tables go besides the terminal; may be empty
};

#endif
