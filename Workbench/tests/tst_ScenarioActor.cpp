#include "ScenarioActor.h"

#include "AheadLink.h"
#include "FakeMonitor.h"
#include "PluginSurface.h"
#include "SignalLog.h"
#include "SiteActor.h"
#include "TestSite.h"
#include "TopologyPlugin.h"
#include "VirtualClock.h"

#include <QTest>

#include <memory>

using namespace ScenarioAction;

class tst_ScenarioActor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void leavesTheSiteToItsActor();
    void doesWithoutASite();
    void opensAndClosesTheLink();
    void announcesRetrievedStates();
    void doesWhatTheUserDoes();
    void snoozeIsRoundedUpToWholeSeconds();
    void snoozeEndsByTheClockOfTheServer();

private:
    void perform(const AnyScenarioAction &action) { m_actor->perform(action); }

    CallLog m_log;
    std::unique_ptr<VirtualClock> m_clock;
    std::unique_ptr<FakeMonitor> m_monitor;
    std::unique_ptr<SiteServer> m_server;
    std::unique_ptr<SiteActor> m_siteActor;
    std::unique_ptr<LocalServerLink> m_link;
    std::unique_ptr<TopologyPlugin> m_topology;
    std::unique_ptr<PluginSurface> m_surface;
    std::unique_ptr<ScenarioActor> m_actor;
};

void tst_ScenarioActor::init()
{
    m_log.take();
    m_clock = std::make_unique<VirtualClock>();
    m_monitor = std::make_unique<FakeMonitor>(m_log);
    m_server = std::make_unique<SiteServer>(testSite(), *m_clock);
    m_link = std::make_unique<LocalServerLink>(*m_server);
    m_topology = std::make_unique<TopologyPlugin>();
    m_surface = std::make_unique<PluginSurface>(*m_monitor);
    m_siteActor = std::make_unique<SiteActor>(*m_server);
    m_actor = std::make_unique<ScenarioActor>(
        ScenarioActor::Stage{m_siteActor.get(), *m_link, *m_topology, *m_surface, *m_clock});
}

void tst_ScenarioActor::cleanup()
{
    m_surface.reset();
    m_link.reset();
    m_server.reset();
}

void tst_ScenarioActor::leavesTheSiteToItsActor()
{
    perform(SetCameraConnected{QStringLiteral("north/c1"), false});
    QVERIFY(!m_server->site().findCamera(QStringLiteral("north/c1"))->connected);
}

void tst_ScenarioActor::doesWithoutASite()
{
    ScenarioActor actor({nullptr, *m_link, *m_topology, *m_surface, *m_clock});
    actor.perform(SetCameraConnected{QStringLiteral("north/c1"), false});
    QVERIFY(m_server->site().findCamera(QStringLiteral("north/c1"))->connected);
    actor.perform(ReconnectCameras{});
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("reconnectDisconnectCameras")});
}

void tst_ScenarioActor::opensAndClosesTheLink()
{
    perform(SetServerConnected{true});
    QVERIFY(m_link->isOpen());
    perform(SetServerConnected{false});
    QVERIFY(!m_link->isOpen());
}

void tst_ScenarioActor::announcesRetrievedStates()
{
    const SignalLog emitted(m_topology.get(), m_log);
    perform(RetrieveStates{true});
    perform(RetrieveStates{false});
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("camStatusRetrievedChanged(true)"),
                                        QStringLiteral("camStatusRetrievedChanged(false)")}));
}

void tst_ScenarioActor::doesWhatTheUserDoes()
{
    perform(ReconnectCameras{});
    perform(ReconnectSubstations{});
    perform(CheckSupport{QStringLiteral("south")});
    perform(FocusStation{QStringLiteral("north")});
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("reconnectDisconnectCameras"),
                                        QStringLiteral("reconnectDisconnectSubstations"),
                                        QStringLiteral("checkSupportSystemMonitor south")}));
    QCOMPARE(m_monitor->property("focusStationResource").toString(), QStringLiteral("north"));
}

void tst_ScenarioActor::snoozeIsRoundedUpToWholeSeconds()
{
    const qint64 start = VirtualClock::StartMs / 1000;
    perform(ScenarioAction::Snooze{QStringLiteral("north/c1"), 3, 30'000});
    perform(ScenarioAction::Snooze{QStringLiteral("south"), 4, 30'001});
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("setSnooze north/c1 %1 3").arg(start + 30),
                                        QStringLiteral("setSnooze south %1 4").arg(start + 31)}));
}

void tst_ScenarioActor::snoozeEndsByTheClockOfTheServer()
{
    AheadLink link(*m_server);
    ScenarioActor actor({nullptr, link, *m_topology, *m_surface, *m_clock});
    actor.perform(ScenarioAction::Snooze{QStringLiteral("south"), 4, 30'000});
    const qint64 end = (VirtualClock::StartMs + AheadLink::AheadMs) / 1000 + 30;
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("setSnooze south %1 4").arg(end)});
}

QTEST_GUILESS_MAIN(tst_ScenarioActor)
#include "tst_ScenarioActor.moc"
