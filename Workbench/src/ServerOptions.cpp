#include "ServerOptions.h"

#include "CommandLine.h"
#include "InputError.h"

#include <QUrl>

namespace {

class OptionParser
{
    Q_DECLARE_TR_FUNCTIONS(ServerOptions)

public:
    OptionParser();

    ServerOptions parse(const QStringList &arguments);
    QString help() const;

private:
    void readAddress(ServerOptions &options) const;

    const QCommandLineOption m_scenario{
        QStringLiteral("scenario"),
        tr("Let happen at the site what a scenario tells: a JSON file, or the name of a bundled "
           "one (default, everything, flap, storm). What it tells of clients and their users is "
           "left out. Without this nothing happens but what clients ask for."),
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
    CommandLine m_line;
};

OptionParser::OptionParser()
{
    m_line.add({{tr("What is served:"), {m_line.site, m_scenario, m_store}},
                {tr("To whom:"), {m_listen, m_token}},
                {tr("Others:"), {m_line.language, m_line.help, m_line.version}}});
}

ServerOptions OptionParser::parse(const QStringList &arguments)
{
    m_line.parse(arguments);
    ServerOptions options;
    options.wantsHelp = m_line.isSet(m_line.help);
    options.wantsVersion = m_line.isSet(m_line.version);
    options.language = m_line.value(m_line.language);
    options.siteFile = m_line.file(m_line.site, QStringLiteral("sites"));
    if (m_line.isSet(m_scenario))
        options.scenarioFile = m_line.file(m_scenario, QStringLiteral("scenarios"));
    options.storeFile = m_line.value(m_store);
    options.tokenFile = m_line.value(m_token);
    readAddress(options);
    return options;
}

QString OptionParser::help() const
{
    const QStringList sections{
        tr("Usage: site-server [options]\n"),
        tr("Serves a simulated video-surveillance site to Workbenches: the states of its\n"
           "stations, cameras, volumes and recordings, and the snoozes, which all its\n"
           "clients share. It runs until it is ended.\n"),
        m_line.optionsText(),
        tr("Examples:\n"
           "  site-server --store snoozes.sqlite\n"
           "      serve the bundled site on this machine\n"
           "  workbench --server ws://127.0.0.1:8765\n"
           "      show it, in another terminal\n"),
        tr("Exit codes:\n"
           "  2  an option or a file is wrong\n"
           "  3  the work could not be done\n")};
    return sections.join(u'\n');
}

void OptionParser::readAddress(ServerOptions &options) const
{
    const QString text = m_line.value(m_listen);
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
