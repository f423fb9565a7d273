#include "HelpText.h"

namespace {

constexpr int LineWidth = 79;
constexpr int NameWidth = 26; // where the descriptions begin

QString nameText(const QCommandLineOption &option)
{
    QStringList names;
    const QStringList all = option.names();
    for (const QString &name : all)
        names.append((name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name);
    QString text = QStringLiteral("  ") + names.join(QStringLiteral(", "));
    if (!option.valueName().isEmpty())
        text += QStringLiteral(" <%1>").arg(option.valueName());
    return text;
}

QStringList wrapped(const QString &text, qsizetype width)
{
    QStringList lines{QString()};
    const QStringList words = text.split(u' ');
    for (const QString &word : words) {
        QString &line = lines.last();
        if (line.isEmpty())
            line = word;
        else if (line.size() + 1 + word.size() <= width)
            line += u' ' + word;
        else
            lines.append(word);
    }
    return lines;
}

QString optionText(const QCommandLineOption &option)
{
    const QString indent(NameWidth, u' ');
    const QString name = nameText(option);
    const QString description =
        wrapped(option.description(), LineWidth - NameWidth).join(u'\n' + indent) + u'\n';
    if (name.size() + 1 < NameWidth)
        return name.leftJustified(NameWidth) + description;
    return name + u'\n' + indent + description;
}

} // namespace

QString helpText(const OptionGroup &group)
{
    QString text = group.title + u'\n';
    for (const QCommandLineOption &option : group.options)
        text += optionText(option);
    return text;
}
