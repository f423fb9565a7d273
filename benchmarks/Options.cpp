#include "Options.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void refuse(const QString &value)
{
    std::fprintf(stderr, "This value makes no sense: %s (see --help)\n", qUtf8Printable(value));
    std::exit(EXIT_FAILURE);
}

double positiveNumber(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || number <= 0)
        refuse(text);
    return number;
}

int positiveInteger(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number <= 0)
        refuse(text);
    return number;
}

QList<int> sizesIn(const QString &text)
{
    QList<int> sizes;
    const QStringList words = text.split(QLatin1Char(','));
    for (const QString &word : words)
        sizes.append(positiveInteger(word));
    std::sort(sizes.begin(), sizes.end());
    return sizes;
}

MeasuredPlugin pluginIn(const QString &text)
{
    const qsizetype sign = text.indexOf(QLatin1Char('='));
    const QFileInfo file(text.mid(sign + 1));
    if (!file.isFile())
        refuse(text);
    return {sign < 0 ? file.completeBaseName() : text.left(sign), file.absoluteFilePath()};
}

} // namespace

Options Options::fromArguments(const QStringList &arguments)
{
    const QCommandLineOption scenario(
        QStringLiteral("scenario"),
        QStringLiteral("The benchmarks to run, of a to l, load, memory, idle and sampler."),
        QStringLiteral("a,b,..."));
    const QCommandLineOption size(QStringLiteral("n"), QStringLiteral("The values of N."),
                                  QStringLiteral("1000,..."),
                                  QStringLiteral("1000,5000,20000,100000"));
    const QCommandLineOption plugin(
        QStringLiteral("plugin"),
        QStringLiteral("A plug-in file to measure in place of the one that was built along; may be "
                       "given several times, with a name for the tables."),
        QStringLiteral("[name=]file"), QStringLiteral("plug-in=" PLUGIN_FILE));
    const QCommandLineOption runs(QStringLiteral("runs"),
                                  QStringLiteral("Repetitions at most, of which the best counts."),
                                  QStringLiteral("count"), QStringLiteral("5"));
    const QCommandLineOption enough(
        QStringLiteral("enough"),
        QStringLiteral("The repetitions end when those of one timed part took this long together."),
        QStringLiteral("seconds"), QStringLiteral("2"));
    const QCommandLineOption budget(
        QStringLiteral("budget"),
        QStringLiteral("A scenario that will probably take longer is left out."),
        QStringLiteral("seconds"), QStringLiteral("60"));
    const QCommandLineOption idle(QStringLiteral("idle"),
                                  QStringLiteral("How long the idle plug-in is watched."),
                                  QStringLiteral("seconds"), QStringLiteral("10"));
    const QCommandLineOption output(QStringLiteral("output"),
                                    QStringLiteral("A Markdown file for the tables."),
                                    QStringLiteral("file"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Measures the plug-in beside what bare Qt needs for the same changes."));
    parser.addHelpOption();
    parser.addOptions({scenario, size, plugin, runs, enough, budget, idle, output});
    parser.process(arguments);

    Options options;
    options.benchmarks = parser.value(scenario).split(QLatin1Char(','), Qt::SkipEmptyParts);
    options.sizes = sizesIn(parser.value(size));
    const QStringList plugins = parser.values(plugin);
    for (const QString &text : plugins)
        options.plugins.append(pluginIn(text));
    options.runs = positiveInteger(parser.value(runs));
    options.enoughSeconds = positiveNumber(parser.value(enough));
    options.budgetSeconds = positiveNumber(parser.value(budget));
    options.idleSeconds = positiveNumber(parser.value(idle));
    options.outputFile = parser.value(output);
    return options;
}

bool Options::isWanted(const QString &benchmark) const
{
    return benchmarks.isEmpty() || benchmarks.contains(benchmark);
}
