#include "CommandLine.h"

#include "BundledFile.h"
#include "InputError.h"

CommandLine::CommandLine()
    : site(QStringLiteral("site"),
           tr("The site: a JSON file, or the name of a bundled one (default, large, real)."),
           tr("file"), QStringLiteral("default"))
    , language(QStringLiteral("language"), tr("The language of all texts: en or de."), tr("code"),
               QStringLiteral("en"))
    , help({QStringLiteral("h"), QStringLiteral("help")}, tr("Print this help."))
    , version({QStringLiteral("v"), QStringLiteral("version")}, tr("Print the version."))
{ }

void CommandLine::add(const QList<OptionGroup> &groups)
{
    m_groups += groups;
    for (const OptionGroup &group : groups)
        m_parser.addOptions(group.options);
}

QString CommandLine::languageOf(const QStringList &arguments)
{
    CommandLine line;
    line.m_parser.addOption(line.language);
    // That the other options are unknown here is no mistake of the user's.
    line.m_parser.parse(arguments);
    return line.value(line.language);
}

void CommandLine::parse(const QStringList &arguments)
{
    if (!m_parser.parse(arguments))
        throw InputError(m_parser.errorText());
    if (!m_parser.positionalArguments().isEmpty())
        throw InputError(tr("Expected options only, found \"%1\".")
                             .arg(m_parser.positionalArguments().constFirst()));
    // A shell variable that is not set must not count as an option that is not given.
    for (const OptionGroup &group : std::as_const(m_groups)) {
        for (const QCommandLineOption &option : group.options)
            expectValue(option);
    }
}

void CommandLine::expectValue(const QCommandLineOption &option) const
{
    if (isSet(option) && !option.valueName().isEmpty() && value(option).isEmpty())
        throw InputError(tr("--%1: expected a value.").arg(option.names().constLast()));
}

QString CommandLine::file(const QCommandLineOption &option, const QString &folder) const
{
    return bundledOrFile(folder, value(option));
}

QString CommandLine::optionsText() const
{
    QStringList texts;
    for (const OptionGroup &group : m_groups)
        texts.append(helpText(group));
    return texts.join(u'\n');
}
