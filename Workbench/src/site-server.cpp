#include "AccessToken.h"
#include "Catalogues.h"
#include "CommandLine.h"
#include "ExitCode.h"
#include "InputError.h"
#include "ScaledClock.h"
#include "ScenarioDriver.h"
#include "ScenarioFile.h"
#include "ServerGate.h"
#include "ServerOptions.h"
#include "SiteActor.h"
#include "SiteFile.h"
#include "SiteServer.h"
#include "SiteWatch.h"
#include "SnoozeStore.h"

#include <QTextStream>

#include <memory>

namespace {

void complain(const QString &message)
{
    QTextStream(stderr) << "site-server: " << message << '\n';
}

std::unique_ptr<SnoozeStore> openStore(const ServerOptions &options)
{
    return options.storeFile.isEmpty() ? nullptr : std::make_unique<SnoozeStore>(options.storeFile);
}

AccessToken readToken(const ServerOptions &options)
{
    return options.tokenFile.isEmpty() ? AccessToken() : AccessToken::fromFile(options.tokenFile);
}

Scenario readScenario(const ServerOptions &options, const Site &site)
{
    return options.scenarioFile.isEmpty() ? Scenario()
                                          : readScenarioFile(options.scenarioFile, site);
}

// The reason is for who runs the server; its clients hear that the node is disconnected.
void tellOfSilence(const SiteWatch &watch)
{
    QObject::connect(&watch, &SiteWatch::lost, [](const QString &nodeId, const QString &reason) {
        complain(QCoreApplication::translate("site-server", "%1 does not answer: %2")
                     .arg(nodeId, reason));
    });
    QObject::connect(&watch, &SiteWatch::back, [](const QString &nodeId) {
        complain(QCoreApplication::translate("site-server", "%1 answers").arg(nodeId));
    });
}

int serve(const ServerOptions &options)
{
    const Site site = readSiteFile(options.siteFile);
    const AccessToken token = readToken(options);
    ScaledClock clock;
    ScenarioDriver driver(readScenario(options, site), clock);
    const std::unique_ptr<SnoozeStore> store = openStore(options);
    SiteServer server(site, clock, store.get());
    SiteActor actor(server);
    SiteWatch watch(server, site);
    tellOfSilence(watch);
    QObject::connect(&driver, &ScenarioDriver::due, &server,
                     [&actor](const AnyScenarioAction &action) { actor.perform(action); });

    ServerGate gate(server, token, clock);
    if (!gate.listen(options.address, options.port)) {
        complain(QCoreApplication::translate("site-server", "--listen: %1, port %2: %3")
                     .arg(options.address.toString())
                     .arg(options.port)
                     .arg(gate.errorText()));
        return ExitCode::Failure;
    }
    QTextStream(stdout)
        << QCoreApplication::translate("site-server", "listening on %1").arg(gate.url().toString())
        << Qt::endl;
    driver.start();
    watch.start();
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("site-server"));
    QCoreApplication::setApplicationVersion(QStringLiteral(WORKBENCH_VERSION));
    try {
        const QStringList arguments = QCoreApplication::arguments();
        const Catalogues catalogues(CommandLine::languageOf(arguments));
        const ServerOptions options = parseServerOptions(arguments);
        if (options.wantsHelp)
            QTextStream(stdout) << serverOptionsHelp();
        else if (options.wantsVersion)
            QTextStream(stdout) << "site-server " WORKBENCH_VERSION "\n";
        else
            return serve(options);
        return ExitCode::Success;
    } catch (const InputError &error) {
        complain(error.message());
        return ExitCode::BadInput;
    }
}
