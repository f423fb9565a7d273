#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include "HelpText.h"

#include <QCommandLineParser>
#include <QCoreApplication>

/// The command line of a program: its own options, and those that every program here has.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    CommandLine();

    const QCommandLineOption site;
    const QCommandLineOption language;
    const QCommandLineOption help;
    const QCommandLineOption version;

    /// Adds options, in the order in which the help names them.
    void add(const QList<OptionGroup> &groups);

    /// The value of the option for the language, whatever else stands on a command line: what is
    /// said of the rest is said in that language.
    static QString languageOf(const QStringList &arguments);

    /// Reads a command line, whose first argument is the program's own name. Throws InputError for
    /// an option that there is not, for one without its value, and for what is none.
    void parse(const QStringList &arguments);

    bool isSet(const QCommandLineOption &option) const { return m_parser.isSet(option); }
    /// The option's default when it is not set.
    QString value(const QCommandLineOption &option) const { return m_parser.value(option); }
    /// The same for what may be the name of a bundled file.
    ///
    /// @param folder as bundledOrFile() takes it
    QString file(const QCommandLineOption &option, const QString &folder) const;

    /// The options that were added, under the titles of their groups.
    QString optionsText() const;

private:
    void expectValue(const QCommandLineOption &option) const;

    QCommandLineParser m_parser;
    QList<OptionGroup> m_groups;
};

#endif
