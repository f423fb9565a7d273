#include "ServerOptions.h"

#include "BundledFile.h"
#include "InputError.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QUrl>

namespace {

class OptionParser
{
    Q_DECLARE_TR_FUNCTIONS(ServerOptions)

public:
    OptionParser();

    ServerOptions parse(const QStringList &arguments);
    QString help() const { return m_parser.helpText(); }

private:
    void readAddress(ServerOptions &options) const;

    const QCommandLineOption m_site{
        QStringLiteral("site"),
        tr("The site: a JSON file, or the name of a bundled one (default, real)."), tr("file"),
        QStringLiteral("default")};
    const QCommandLineOption m_scenario{
        QStringLiteral("scenario"),
        tr("Let happen at the site what a scenario tells: a JSON file, or the name of a bundled "
           "one (default, everything). What it tells of clients and their users is left out. "
           "Without this nothing happens but what clients ask for."),
        tr("file")};
    const QCommandLineOption m_store{
        QStringLiteral("store"),
        tr("Keep the snoozes in this SQLite file, so that they outlive the server. Without it they "
           "end with the server."),
        tr("file")};
    const QCommandLineOption m_listen{
        QStringLiteral("listen"),
        tr("Where clients connect: an address of this machine and a port, 0 for any free one. "
           "Other than on a loopback address, this needs --token-file."),
        tr("address:port"), QStringLiteral("127.0.0.1:8765")};
    const QCommandLineOption m_token{
        QStringLiteral("token-file"),
        tr("Turn away clients that do not give the token that is in this file: 16 to 1024 "
           "characters in one line. It travels as it is; see docs/site-protocol.md for "
           "encryption."),
        tr("file")};
    const QCommandLineOption m_help{{QStringLiteral("h"), QStringLiteral("help")},
                                    tr("Print this help.")};
    const QCommandLineOption m_version{{QStringLiteral("v"), QStringLiteral("version")},
                                       tr("Print the version.")};
    QCommandLineParser m_parser;
};

OptionParser::OptionParser()
{
    m_parser.setApplicationDescription(
        tr("Serves a simulated video-surveillance site to Workbenches: the states of its stations, "
           "cameras, volumes and recordings, and the snoozes, which all its clients share. It runs "
           "until it is ended.\n"
           "\n"
           "  site-server --store snoozes.sqlite          serve the bundled site on this machine\n"
           "  workbench --server ws://127.0.0.1:8765      show it, in another terminal\n"
           "\n"
           "Exit codes: 1 the work could not be done, 2 an option or a file is wrong."));
    m_parser.addOptions({m_site, m_scenario, m_store, m_listen, m_token, m_help, m_version});
}

ServerOptions OptionParser::parse(const QStringList &arguments)
{
    if (!m_parser.parse(arguments))
        throw InputError(m_parser.errorText());
    if (!m_parser.positionalArguments().isEmpty())
        throw InputError(tr("Expected options only, found \"%1\".")
                             .arg(m_parser.positionalArguments().constFirst()));
    ServerOptions options;
    options.wantsHelp = m_parser.isSet(m_help);
    options.wantsVersion = m_parser.isSet(m_version);
    options.siteFile = bundledOrFile(QStringLiteral("sites"), m_parser.value(m_site));
    if (m_parser.isSet(m_scenario))
        options.scenarioFile =
            bundledOrFile(QStringLiteral("scenarios"), m_parser.value(m_scenario));
    options.storeFile = m_parser.value(m_store);
    options.tokenFile = m_parser.value(m_token);
    readAddress(options);
    return options;
}

void OptionParser::readAddress(ServerOptions &options) const
{
    const QString text = m_parser.value(m_listen);
    const QUrl url(QStringLiteral("ws://") + text, QUrl::StrictMode);
    const bool isPlain = url.isValid() && url.path().isEmpty() && !url.hasQuery()
                         && !url.hasFragment() && url.userInfo().isEmpty();
    options.address = QHostAddress(url.host());
    const int port = url.port();
    if (!isPlain || options.address.isNull() || port < 0)
        throw InputError(tr("--listen: expected an address and a port, such as 127.0.0.1:8765 or "
                            "[::1]:8765, found \"%1\".")
                             .arg(text));
    options.port = static_cast<quint16>(port);
    if (!options.address.isLoopback() && options.tokenFile.isEmpty())
        throw InputError(tr("--listen: expected --token-file FILE as well, since %1 can be reached "
                            "from other machines.")
                             .arg(options.address.toString()));
}

} // namespace

ServerOptions parseServerOptions(const QStringList &arguments)
{
    return OptionParser().parse(arguments);
}

QString serverOptionsHelp()
{
    return OptionParser().help();
}
