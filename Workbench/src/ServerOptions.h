#ifndef SERVEROPTIONS_H
#define SERVEROPTIONS_H

#include <QHostAddress>
#include <QString>
#include <QStringList>

/// What the user asks a site server for on its command line.
struct ServerOptions
{
    QString siteFile;     ///< a file, or a resource
    QString scenarioFile; ///< a file or a resource; empty for none
    QString storeFile;    ///< empty for none
    QString tokenFile;    ///< empty for none
    QString language;     ///< as Catalogues takes it
    QHostAddress address;
    quint16 port = 0; ///< 0 for any that is free
    bool wantsHelp = false;
    bool wantsVersion = false;
};

/// Reads the command line, whose first argument is the program's own name. Throws InputError.
ServerOptions parseServerOptions(const QStringList &arguments);

/// What the command line may hold, for the user. Needs an application object.
QString serverOptionsHelp();

#endif
