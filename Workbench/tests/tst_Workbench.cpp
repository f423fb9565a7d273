#include "Workbench.h"

#include "DeliverEvents.h"
#include "PluginBase.h"
#include "ServerLink.h"
#include "WorkbenchFixture.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>

using namespace ScenarioAction;

namespace {

// A connection that comes when the test says so.
class LateLink : public ServerLink
{
public:
    const Site &site() const override { return m_site; }
    std::vector<::Snooze> snoozes() const override { return {}; }
    void open() override { }
    void close() override { setOpen(false); }
    void execute(const QString &, const QVariant &, const QString &, const Answer &) override { }
    void come() { setOpen(true); }

private:
    const Site m_site = testSite();
};

} // namespace

class tst_Workbench : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void initialisesAndPairsThePlugin();
    void connectsTheServerBeforeTheScenario();
    void deliversEventsOfTheServer();
    void mirrorsTheSiteInTheTopology();
    void topologyIsUnknownWithoutAConnection();
    void storageIsReportedWhenItChanges();
    void samplesBecomeReportsOfThisMachine();
    void answersCommandsThroughTheServer();
    void startsAgainWithTheSiteAsItWas();
    void siteOfAnotherProcessIsLearntWhenItIsConnected();
    void destroysThePluginFirst();

private:
    void play(const Scenario &scenario);
    QStringList takeLog();
    QStringList topology();

    std::unique_ptr<WorkbenchFixture> m_fixture;
};

void tst_Workbench::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
}

void tst_Workbench::cleanup()
{
    m_fixture.reset();
}

void tst_Workbench::play(const Scenario &scenario)
{
    m_fixture = std::make_unique<WorkbenchFixture>(
        QStringLiteral(TEST_PLUGIN_FOLDER "/FakeMonitorPlugin.so"), scenario);
}

QStringList tst_Workbench::takeLog()
{
    deliverEvents();
    QStringList log;
    QMetaObject::invokeMethod(m_fixture->host.plugin(), "takeLog", Q_RETURN_ARG(QStringList, log));
    return log;
}

// The ids of the nodes below the site, those that are down with a mark.
QStringList tst_Workbench::topology()
{
    QStringList ids;
    const auto model = qobject_cast<QAbstractItemModel *>(
        m_fixture->workbench.topology().getStandardTopologyModel());
    const std::function<void(const QModelIndex &)> visit = [&](const QModelIndex &parent) {
        for (int row = 0; row < model->rowCount(parent); ++row) {
            const QModelIndex index = model->index(row, 0, parent);
            const bool isUp = index.data(TopologyRole::Connected).toBool();
            if (parent.isValid())
                ids.append(index.data(TopologyRole::NodeId).toString()
                           + (isUp ? QString() : QStringLiteral(" down")));
            visit(index);
        }
    };
    visit({});
    return ids;
}

void tst_Workbench::initialisesAndPairsThePlugin()
{
    play({});
    QCOMPARE(takeLog(), QStringList({QStringLiteral("initialised"), QStringLiteral("paired")}));
    QVERIFY(!m_fixture->workbench.link().isOpen());
}

void tst_Workbench::connectsTheServerBeforeTheScenario()
{
    play({{{0, ReconnectCameras{}}}, {}, 0});
    const QSignalSpy finished(&m_fixture->workbench.driver(), &ScenarioDriver::finished);
    takeLog();
    m_fixture->workbench.start();
    m_fixture->clock.advance(0);
    QCOMPARE(takeLog(), QStringList({QStringLiteral("server connected"),
                                     QStringLiteral("reconnectDisconnectCameras")}));
    QCOMPARE(finished.size(), 1);
}

void tst_Workbench::deliversEventsOfTheServer()
{
    play({{{0, ReportReachingLimit{QStringLiteral("Main"), 87.5}},
           {1000, SetServerConnected{false}},
           {1000, ReportReachingLimit{QStringLiteral("Main"), 88.5}}},
          {},
          1000});
    m_fixture->workbench.start();
    m_fixture->clock.advance(500);
    QCOMPARE(takeLog().constLast(),
             QStringLiteral(R"(event ServerReachingLimited {"serverName": "Main", )"
                            R"("virtualSizePercentage": 87.5} from '')"));
    m_fixture->clock.advance(5000);
    QCOMPARE(takeLog(), QStringList{QStringLiteral("server disconnected")});
}

void tst_Workbench::mirrorsTheSiteInTheTopology()
{
    play({{{0, SetCameraConnected{QStringLiteral("north/c1"), false}},
           {0, RemoveCamera{QStringLiteral("north/c2")}},
           {0, RemoveStation{QStringLiteral("south")}}},
          {},
          0});
    m_fixture->workbench.start();
    m_fixture->clock.advance(0);
    QCOMPARE(topology(),
             QStringList({QStringLiteral("north"), QStringLiteral("north/c1 down"),
                          QStringLiteral("north/annex"), QStringLiteral("north/annex/c1"),
                          QStringLiteral("this-machine")}));
}

void tst_Workbench::topologyIsUnknownWithoutAConnection()
{
    play({{{0, SetServerConnected{false}},
           {1000, RemoveStation{QStringLiteral("north")}},
           {1000, SetCameraConnected{QStringLiteral("south/c1"), false}},
           {2000, SetServerConnected{true}}},
          {},
          2000});
    m_fixture->workbench.start();
    m_fixture->clock.advance(0);
    QCOMPARE(topology(), QStringList());
    m_fixture->clock.advance(2000);
    QCOMPARE(topology(), QStringList({QStringLiteral("south"), QStringLiteral("south/c1 down"),
                                      QStringLiteral("this-machine")}));
}

void tst_Workbench::storageIsReportedWhenItChanges()
{
    play({{{0, SetVolumeConnected{QStringLiteral("south"), QStringLiteral("none"), false}},
           {0, SetVolumeConnected{QStringLiteral("north"), QStringLiteral("v1"), false}}},
          {},
          0});
    m_fixture->workbench.start();
    takeLog();
    m_fixture->clock.advance(0);
    QCOMPARE(takeLog(), QStringList({QStringLiteral("monitorVolumeStatus north"),
                                     QStringLiteral("monitorSufficientRecordingGroup north g1")}));
}

void tst_Workbench::samplesBecomeReportsOfThisMachine()
{
    play({});
    m_fixture->workbench.start();
    takeLog();
    Q_EMIT m_fixture->workbench.surface().clientResourceChanged(12, 34);
    const QString line = takeLog().value(0);
    QVERIFY2(line.startsWith(QStringLiteral(
                 R"(event SystemResChanged {"cpuPercentage": 12, "memPercentage": 34, )")),
             qPrintable(line));
    QVERIFY(line.endsWith(QStringLiteral("from 'this-machine'")));
}

void tst_Workbench::answersCommandsThroughTheServer()
{
    play({});
    Framework &framework = m_fixture->workbench.framework();
    m_fixture->workbench.start();
    takeLog();
    framework.SendCommand(framework.handle(), m_fixture->host.pluginId(),
                          QStringLiteral("getSnoozeList"), {}, nullptr, 0, {});
    QCOMPARE(takeLog(), QStringList{QStringLiteral("response getSnoozeList QStringList[] 0")});
}

void tst_Workbench::startsAgainWithTheSiteAsItWas()
{
    play({{{0, RemoveStation{QStringLiteral("north")}}}, {}, 0});
    m_fixture->workbench.start();
    const QStringList before = topology();
    m_fixture->clock.advance(0);
    takeLog();
    m_fixture->workbench.start();
    QCOMPARE(topology(), before);
    QCOMPARE(takeLog(), QStringList({QStringLiteral("server disconnected"),
                                     QStringLiteral("server connected")}));
}

void tst_Workbench::siteOfAnotherProcessIsLearntWhenItIsConnected()
{
    play({});
    VirtualClock clock;
    LateLink link;
    PluginHost host(QStringLiteral(TEST_PLUGIN_FOLDER "/FakeMonitorPlugin.so"));
    OperationalLogStore log{QString()};
    Workbench workbench(
        host, nullptr, link, nullptr,
        {{{0, SetCameraConnected{QStringLiteral("north/c1"), false}}, {0, ReconnectCameras{}}},
         {},
         0},
        log, clock);
    const QSignalSpy retrieved(&workbench.topology(), &TopologyPlugin::camStatusRetrievedChanged);
    const QSignalSpy due(&workbench.driver(), &ScenarioDriver::due);
    workbench.start();
    clock.advance(5000);
    QCOMPARE(retrieved.size(), 0);
    QCOMPARE(due.size(), 0);
    link.come();
    clock.advance(0);
    QCOMPARE(retrieved.size(), 1);
    QCOMPARE(due.size(), 2);
    link.close();
    link.come();
    clock.advance(0);
    QCOMPARE(retrieved.size(), 2);
    QCOMPARE(due.size(), 2);
    link.close();
    link.come();
    link.close();
    clock.advance(0);
    QCOMPARE(retrieved.size(), 2);
}

void tst_Workbench::destroysThePluginFirst()
{
    play({});
    Workbench &workbench = m_fixture->workbench;
    QPointer<QObject> modelAtTheEnd;
    connect(m_fixture->host.plugin(), &QObject::destroyed, this, [&workbench, &modelAtTheEnd] {
        modelAtTheEnd = workbench.topology().getStandardTopologyModel();
        QVERIFY(modelAtTheEnd);
    });
    const QPointer<QObject> plugin = m_fixture->host.plugin();
    m_fixture.reset();
    QVERIFY(!plugin);
    QVERIFY(!modelAtTheEnd);
}

QTEST_GUILESS_MAIN(tst_Workbench)
#include "tst_Workbench.moc"
