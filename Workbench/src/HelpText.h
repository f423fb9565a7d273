#ifndef HELPTEXT_H
#define HELPTEXT_H

#include <QCommandLineOption>
#include <QList>
#include <QString>

/// Options that belong together.
struct OptionGroup
{
    QString title;
    QList<QCommandLineOption> options;
};

/// The options of a group with what they do, under its title, for a terminal of 80 columns.
QString helpText(const OptionGroup &group);

#endif
