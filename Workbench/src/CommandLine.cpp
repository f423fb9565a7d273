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

void CommandLine::parse(const QStringList &arguments)
{
    if (!m_parser.parse(arguments))
        throw InputError(m_parser.errorText());
    if (!m_parser.positionalArguments().isEmpty())
        throw InputError(tr("Expected options only, found \"%1\".")
                             .arg(m_parser.positionalArguments().constFirst()));
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
