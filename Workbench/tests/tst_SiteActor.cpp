#include "SiteActor.h"

#include "SiteServer.h"
#include "TestSite.h"
#include "VirtualClock.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace ScenarioAction;

class tst_SiteActor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void changesTheSite();
    void changesStorage();
    void reportsFromTheSite();
    void leavesOutWhatClientsDo();

private:
    void perform(const AnyScenarioAction &action) { SiteActor(*m_server).perform(action); }

    VirtualClock m_clock;
    std::unique_ptr<SiteServer> m_server;
};

void tst_SiteActor::init()
{
    m_server = std::make_unique<SiteServer>(testSite(), m_clock);
}

void tst_SiteActor::changesTheSite()
{
    perform(SetCameraConnected{QStringLiteral("north/c1"), false});
    perform(SetStationConnected{QStringLiteral("south"), false});
    perform(RemoveCamera{QStringLiteral("north/c2")});
    perform(RemoveStation{QStringLiteral("north/annex")});
    const Site &site = m_server->site();
    QVERIFY(!site.findCamera(QStringLiteral("north/c1"))->connected);
    QVERIFY(!site.findStation(QStringLiteral("south"))->connected);
    QVERIFY(!site.findCamera(QStringLiteral("north/c2")));
    QVERIFY(!site.findStation(QStringLiteral("north/annex")));
    perform(SetCameraConnected{QStringLiteral("north/c1"), true});
    perform(SetStationConnected{QStringLiteral("south"), true});
    QVERIFY(site.findCamera(QStringLiteral("north/c1"))->connected);
    QVERIFY(site.findStation(QStringLiteral("south"))->connected);
}

void tst_SiteActor::changesStorage()
{
    const QString north = QStringLiteral("north");
    perform(SetVolumeConnected{north, QStringLiteral("v2"), false});
    perform(SetRecordedDays{north, QStringLiteral("g1"), 4});
    perform(RenameRecordingGroup{north, QStringLiteral("g1"), QStringLiteral("Doors")});
    const Station &station = *m_server->site().findStation(north);
    QVERIFY(station.hasLostVolume());
    QCOMPARE(station.recordingGroups.at(0).recordedDays, 4);
    QCOMPARE(station.recordingGroups.at(0).name, QStringLiteral("Doors"));
    perform(SetVolumeConnected{north, QStringLiteral("v2"), true});
    QVERIFY(!station.hasLostVolume());
}

void tst_SiteActor::reportsFromTheSite()
{
    const QSignalSpy events(m_server.get(), &SiteServer::eventRaised);
    perform(SetResources{QStringLiteral("north"), {97, 12, {}}});
    perform(ReportReachingLimit{QStringLiteral("Main"), 87.5});
    QCoreApplication::sendPostedEvents();
    QCOMPARE(events.size(), 2);
    QCOMPARE(events.at(0).at(0).toString(), QStringLiteral("SystemResChanged"));
    QCOMPARE(events.at(1).at(0).toString(), QStringLiteral("ServerReachingLimited"));
    QCOMPARE(m_server->site().findStation(QStringLiteral("north"))->resources->cpuPercentage, 97);
}

void tst_SiteActor::leavesOutWhatClientsDo()
{
    m_server->setCameraConnected(QStringLiteral("north/c1"), false);
    const QSignalSpy events(m_server.get(), &SiteServer::eventRaised);
    perform(RetrieveStates{true});
    perform(SetServerConnected{false});
    perform(ScenarioAction::Snooze{QStringLiteral("north/c1"), 3, 30'000});
    perform(ReconnectCameras{});
    perform(ReconnectSubstations{});
    perform(FocusStation{QStringLiteral("north")});
    perform(CheckSupport{QStringLiteral("north")});
    QCoreApplication::sendPostedEvents();
    QCOMPARE(events.size(), 0);
    QVERIFY(!m_server->site().findCamera(QStringLiteral("north/c1"))->connected);
}

QTEST_GUILESS_MAIN(tst_SiteActor)
#include "tst_SiteActor.moc"
