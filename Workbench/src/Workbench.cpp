#include "Workbench.h"

#include "LocalSite.h"
#include "PluginBase.h"
#include "PluginHost.h"
#include "PluginIds.h"
#include "ServerLink.h"

#include <utility>

Workbench::Workbench(PluginHost &host, QQmlContext *context, ServerLink &link, LocalSite *site,
                     Scenario scenario, OperationalLogStore &log, Clock &clock)
    : m_host(host)
    , m_link(link)
    , m_site(site)
    , m_framework([this](const QString &command, const QVariant &data, const QString &target,
                         const Framework::Answer &answer) {
        m_link.execute(command, data, target, answer);
    })
    , m_recording(m_framework, m_link)
    , m_logPlugin(log, clock)
    , m_driver(std::move(scenario), clock)
{
    wirePlugins(context);
    m_surface = std::make_unique<PluginSurface>(*host.plugin());
    m_errorWatch = std::make_unique<ErrorListWatch>(m_surface->errorModel());
    m_errorWait = std::make_unique<ErrorWait>(*m_errorWatch, m_driver);
    m_actor = std::make_unique<ScenarioActor>(ScenarioActor::Stage{
        site ? &site->actor() : nullptr, m_link, m_topology, *m_surface, clock});
    wireServer();
    if (site)
        wireSite(*site);
    connect(&m_driver, &ScenarioDriver::due, this, &Workbench::perform);
}

// The plug-in holds on to the framework and the topology model, so it goes before them.
Workbench::~Workbench()
{
    m_host.destroy();
}

void Workbench::start()
{
    m_link.close();
    if (m_site)
        m_site->reset();
    m_isScenarioDue = true;
    m_link.open();
    if (m_site)
        m_site->watch().start();
}

void Workbench::wirePlugins(QQmlContext *context)
{
    m_framework.registerPlugin(PluginIds::Topology, &m_topology);
    m_framework.registerPlugin(PluginIds::RecordingManagement, &m_recording);
    m_framework.registerPlugin(PluginIds::OperationalLog, &m_logPlugin);
    m_host.initialise(context, m_framework);
    m_host.pair();
}

void Workbench::wireServer()
{
    connect(&m_link, &ServerLink::opened, this, &Workbench::takeSite);
    connect(&m_link, &ServerLink::closed, this, [this] {
        m_topology.setSite({});
        m_host.serverDisconnected();
    });
    connect(&m_link, &ServerLink::nodeStatusChanged, &m_topology, &TopologyPlugin::setNodeStatus);
    connect(&m_link, &ServerLink::cameraRemoved, &m_topology, &TopologyPlugin::removeCamera);
    connect(&m_link, &ServerLink::stationRemoved, &m_topology, &TopologyPlugin::removeStation);
    connect(&m_link, &ServerLink::storageChanged, &m_recording,
            &RecordingManagementPlugin::reloadStorageUsageInfo);
    connect(&m_link, &ServerLink::eventRaised, this,
            [this](const QString &name, const QVariant &data, const QString &sourceId) {
                Q_EMIT eventArrived(name, data, sourceId);
                m_host.plugin()->EventProcessor(name, 0, 0, 0, data, sourceId);
            });
}

void Workbench::wireSite(LocalSite &site)
{
    connect(m_surface.get(), &PluginSurface::clientResourceChanged, &site.thisMachine(),
            &LocalStation::report);
    connect(&site.watch(), &SiteWatch::lost, this, &Workbench::nodeLost);
    connect(&site.watch(), &SiteWatch::back, this, &Workbench::nodeBack);
}

// A site in another process comes with all its states. They are announced from the event loop, when
// everyone has heard of the connection, unless it is lost by then.
void Workbench::takeSite()
{
    m_topology.setSite(m_link.site());
    m_host.serverConnected();
    if (!m_site)
        QMetaObject::invokeMethod(
            &m_topology,
            [this] {
                if (m_link.isOpen())
                    m_topology.announceStatesRetrieved(true);
            },
            Qt::QueuedConnection);
    if (std::exchange(m_isScenarioDue, false))
        m_driver.start();
}

void Workbench::perform(const AnyScenarioAction &action)
{
    if (const auto wait = std::get_if<ScenarioAction::AwaitError>(&action))
        m_errorWait->start(wait->key);
    else
        m_actor->perform(action);
}
