#include "PluginSystemMonitor.h"

#include "CollectedTrace.h"
#include "HostedPlugin.h"
#include "ISystemResourceMonitor.h"
#include "PrintedValue.h"
#include "SystemErrorModel.h"
#include "SystemResourceModelControl.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// How the plug-in comes into being, meets its host and its pair plug-ins, and ends.
class tst_PluginSystemMonitor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void constructorDoesNoWork();

    void initialisationTellsNameAndId();
    void initialisationCallsTheVirtualInit();
    void initialisationKeepsHandleAndFramework();
    void hostWithoutAHandleIsServedAsAnyOther();
    void initialisationWithoutFrameworkMakesTheModels();
    void operationsThatSendReturnFalseWithoutFramework();
    void initialisationIsTraced();

    void variablesHaveTheirNames();
    void thresholdComesFromTheEnvironment_data();
    void thresholdComesFromTheEnvironment();
    void thresholdsAreReadOnce();
    void thresholdsAreShownInTheResourceRows();
    void samplesOfTheClientAreRelayed();
    void timersAreSingleShotAndIdle();
    void countTimerRecounts();
    void walkTimerWalksTheTopology();

    void pairingConnectsFourSignalsAndFetchesTheModel();
    void topologySignalsReachThePlugin();
    void pairingIsSkippedWhenTheHostSaysSo();
    void failedConnectionIsTracedAndTheOthersAreMade_data();
    void failedConnectionIsTracedAndTheOthersAreMade();
    void topologyModelStaysNullWhenThereIsNone_data();
    void topologyModelStaysNullWhenThereIsNone();
    void pairingAgainForgetsAModelThatIsGone();
    void pairingWithoutFrameworkFailsFourTimes();

    void connectionAsksForTheSnoozeList();
    void connectionWithoutFrameworkSendsNothing();
    void disconnectionEmptiesTheErrorListFromItsEnd();
    void disconnectionKeepsTheSnoozes();
    void disconnectionWithAnEmptyListDoesNothing();

    void destructionIsTraced();
    void destructionReleasesWhatThePluginOwns();
    void destructionGoesBackThroughTheMembers();
    void destructionLeavesTheHostsObjectsAlone();
    void proxiesOutliveThePlugin();
};

namespace {

constexpr const char *thresholdVariables[] = {"TALO2_HIGH_CPU_USAGE", "TALO2_HIGH_MEM_USAGE",
                                              "TALO2_HIGH_NET_USAGE"};

const QStringList connections{
    u"connect 1AA33B3D0AA047C9A202F1181284D2CD 2nodeStatusChanged(int, const QString &, bool) to "
    "{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415} 1monitorNodeStatus(int, const QString &, bool)"_s,
    u"connect 1AA33B3D0AA047C9A202F1181284D2CD 2deviceRemoved(const QString &) to "
    "{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415} 1removeCameraError(const QString &)"_s,
    u"connect 1AA33B3D0AA047C9A202F1181284D2CD 2stationRemoved(const QString &) to "
    "{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415} 1removeStationError(const QString &)"_s,
    u"connect 1AA33B3D0AA047C9A202F1181284D2CD 2camStatusRetrievedChanged(bool) to "
    "{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415} 1initNodeStatusErrorTimer(bool)"_s,
};

const QString connectionFailure = u"2 LoadPairPluginDone, ConnectPluginSignal fail"_s;

/// Remembers how Init() was called and answers as told.
class PluginWithOwnInit : public PluginSystemMonitor
{
public:
    explicit PluginWithOwnInit(bool answer)
        : m_answer(answer)
    { }

    bool Init(QQmlContext *context) override
    {
        contexts.append(context);
        idAtInit = pluginID();
        frameworkAtInit = m_framework;
        return m_answer;
    }

    QList<QQmlContext *> contexts;
    QString idAtInit;
    FrameworkWrapperBase *frameworkAtInit = nullptr;

private:
    bool m_answer;
};

/// The names of objects, in the order in which they are destroyed.
class Departures : public QObject
{
public:
    void watch(const QObject *object, const QString &name)
    {
        connect(object, &QObject::destroyed, this, [this, name] { names.append(name); });
    }

    QStringList names;
};

} // namespace

void tst_PluginSystemMonitor::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
    for (const char *name : thresholdVariables)
        qunsetenv(name);
}

void tst_PluginSystemMonitor::constructorDoesNoWork()
{
    const CollectedTrace trace;
    TestedPlugin plugin;
    QCOMPARE(trace.questions().size(), 0);
    QCOMPARE(plugin.parent(), nullptr);
    QCOMPARE(plugin.children(), QObjectList());
    QCOMPARE(plugin.prefixName(), QString());
    QCOMPARE(plugin.pluginID(), QString());
    QCOMPARE(plugin.errorModel, nullptr);
    QVERIFY(!plugin.topologyModel);
    QVERIFY(!plugin.resourceModelControl);
    QVERIFY(!plugin.resourceMonitor);
    QCOMPARE(plugin.focusStationId, QString());
    QCOMPARE(plugin.stationErrors, QVariantList());
    QCOMPARE(plugin.snoozedDeviceList, QStringList());
    QVERIFY(!plugin.stationErrorNumberTimer.isActive());
    QVERIFY(!plugin.initNodeStatusTimer.isActive());
    QCOMPARE(plugin.stationErrorNumberTimer.parent(), nullptr);
    QCOMPARE(plugin.initNodeStatusTimer.parent(), nullptr);
    QCOMPARE(plugin.getSystemErrorModel(), nullptr);
    QCOMPARE(plugin.getSystemResourceModel(), nullptr);
}

// Initialisation

void tst_PluginSystemMonitor::initialisationTellsNameAndId()
{
    TestedPlugin plugin;
    QVERIFY(plugin.InitialPluginBase(nullptr, nullptr, nullptr));
    QCOMPARE(plugin.prefixName(), u"SystemMonitorPlugin"_s);
    QCOMPARE(plugin.pluginID(), u"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"_s);
}

void tst_PluginSystemMonitor::initialisationCallsTheVirtualInit()
{
    CallLog log;
    RecordingFramework host(log);
    int anything = 0;
    auto *context = reinterpret_cast<QQmlContext *>(&anything);
    for (const bool answer : {false, true}) {
        PluginWithOwnInit plugin(answer);
        QCOMPARE(plugin.InitialPluginBase(context, host.handle(), &host), answer);
        QCOMPARE(plugin.contexts, QList<QQmlContext *>{context});
        // Init() may use what the host handed over.
        QCOMPARE(plugin.idAtInit, u"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"_s);
        QCOMPARE(plugin.frameworkAtInit, &host);
    }
    QCOMPARE(log.lines(), QStringList());
}

void tst_PluginSystemMonitor::initialisationKeepsHandleAndFramework()
{
    HostedPlugin hosted(HostedPlugin::Initialised);
    hosted.plugin.LoadPairPluginDone();
    hosted.plugin.PluginServerConnected();
    hosted.plugin.setSnooze(u"st1"_s, 0, 4);
    hosted.plugin.initNodeStatusError();
    QVERIFY(!hosted.log.take().isEmpty());
    QVERIFY(hosted.host.allCallsHadTheHandle());
}

void tst_PluginSystemMonitor::hostWithoutAHandleIsServedAsAnyOther()
{
    CallLog log;
    RecordingFramework host(log);
    TopologyModel model;
    FakeTopologyPlugin topology(log);
    topology.model = &model;
    TestedPlugin plugin;
    host.registerPlugin(u"1AA33B3D0AA047C9A202F1181284D2CD"_s, &topology);
    host.registerPlugin(u"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"_s, &plugin);
    QVERIFY(plugin.InitialPluginBase(nullptr, nullptr, &host));
    QVERIFY(plugin.errorModel);
    plugin.LoadPairPluginDone();
    QCOMPARE(plugin.topologyModel, &model);
    plugin.PluginServerConnected();
    QVERIFY(plugin.setSnooze(u"st1"_s, 0, 4));
    QCOMPARE(
        log.take(),
        QStringList({u"ask whether to skip pair wiring"_s}) + connections
            + QStringList({u"find 1AA33B3D0AA047C9A202F1181284D2CD"_s,
                           u"getStandardTopologyModel"_s, u"send getSnoozeList invalid to \"\""_s,
                           u"send setSnooze {\"nodeID\": \"st1\", \"timestamp\": 0LL, "
                           "\"type\": 4} to \"\""_s}));
    for (const RequestedConnection &connection : host.connections())
        QCOMPARE(connection.handle, nullptr);
    for (const SentCommand &command : host.commands())
        QCOMPARE(command.handle, nullptr);
    Q_EMIT topology.nodeStatusChanged(1, u"st1"_s, false);
    QVERIFY(plugin.lists(StationDisconnected, u"st1"_s));
}

void tst_PluginSystemMonitor::initialisationWithoutFrameworkMakesTheModels()
{
    TestedPlugin plugin;
    QVERIFY(plugin.InitialPluginBase(nullptr, nullptr, nullptr));
    QCOMPARE(plugin.getSystemErrorModel(), plugin.errorModel);
    QVERIFY(plugin.errorModel);
    QCOMPARE(plugin.errorModel->parent(), &plugin);
    QCOMPARE(plugin.errorModel->rowCount(), 0);
    QCOMPARE(plugin.getSystemResourceModel(), plugin.resourceModelControl->model());
    QCOMPARE(plugin.resourceModelControl->parent(), &plugin);
    QCOMPARE(plugin.resourceModelControl->model()->rowCount(), 3);
    QVERIFY(plugin.resourceMonitor);
    QCOMPARE(plugin.resourceMonitor->parent(), nullptr);
}

void tst_PluginSystemMonitor::operationsThatSendReturnFalseWithoutFramework()
{
    TestedPlugin plugin;
    QVERIFY(plugin.InitialPluginBase(nullptr, nullptr, nullptr));
    plugin.addCameraError(u"st1/cam1"_s, CameraDisconnected, QString());
    plugin.addSystemError(u"st1"_s, StationDisconnected, QString(), QString());
    QVERIFY(!plugin.checkSupportSystemMonitor(u"st1"_s));
    QVERIFY(!plugin.setSnooze(u"st1"_s, 0, 4));
    QVariantList params{1};
    QVERIFY(!plugin.addOperationLog(u"AddDashboardSnooze"_s, params));
    plugin.reconnectDisconnectCameras();
    plugin.reconnectDisconnectSubstations();
    QCOMPARE(plugin.errorModel->rowCount(), 2);
}

void tst_PluginSystemMonitor::initialisationIsTraced()
{
    TestedPlugin plugin;
    const CollectedTrace trace;
    plugin.Init(nullptr);
    QCOMPARE(trace.lines(), QStringList({u"5 Init, Enter"_s, u"5 Init, Leave"_s}));
    QCOMPARE(trace.questions().first().file, u"PluginSystemMonitor.cpp"_s);
}

void tst_PluginSystemMonitor::variablesHaveTheirNames()
{
    QCOMPARE(ENV_HIGH_CPU_USAGE, "TALO2_HIGH_CPU_USAGE");
    QCOMPARE(ENV_HIGH_MEM_USAGE, "TALO2_HIGH_MEM_USAGE");
    QCOMPARE(ENV_HIGH_NET_USAGE, "TALO2_HIGH_NET_USAGE");
}

void tst_PluginSystemMonitor::thresholdComesFromTheEnvironment_data()
{
    QTest::addColumn<int>("variable");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("threshold");

    constexpr int defaults[] = {90, 90, 50};
    for (int variable = 0; variable < 3; ++variable) {
        const int byDefault = defaults[variable];
        const auto row = [variable](const char *name, const QByteArray &value, int threshold) {
            QTest::addRow("%s %s", thresholdVariables[variable], name)
                << variable << value << threshold;
        };
        row("unset", QByteArray(), byDefault);
        row("empty", "", byDefault);
        row("no number", "abc", byDefault);
        row("zero", "0", byDefault);
        row("negative", "-5", byDefault);
        row("too large", "2147483648", byDefault);
        row("much too large", "99999999999999999999", byDefault);
        row("fraction", "75.5", byDefault);
        row("with a unit", "75%", byDefault);
        row("hexadecimal", "0x4B", byDefault);
        row("not UTF-8", "\xff\xfe", byDefault);
        row("number", "75", 75);
        row("blanks around", "  80 ", 80);
        row("leading zero", "075", 75);
        row("sign", "+75", 75);
        row("above 100", "150", 150);
        row("largest", "2147483647", 2147483647);
        row("smallest", "1", 1);
    }
}

void tst_PluginSystemMonitor::thresholdComesFromTheEnvironment()
{
    QFETCH(const int, variable);
    QFETCH(const QByteArray, value);
    QFETCH(const int, threshold);
    if (!value.isNull())
        qputenv(thresholdVariables[variable], value);

    TestedPlugin plugin;
    QVERIFY(plugin.Init(nullptr));
    QList<int> expected{90, 90, 50};
    expected[variable] = threshold;
    QCOMPARE(QList<int>({plugin.cpuThreshold, plugin.memoryThreshold, plugin.networkThreshold}),
             expected);
}

void tst_PluginSystemMonitor::thresholdsAreReadOnce()
{
    qputenv(ENV_HIGH_CPU_USAGE, "70");
    TestedPlugin plugin;
    QVERIFY(plugin.Init(nullptr));
    qputenv(ENV_HIGH_CPU_USAGE, "10");
    plugin.invoke("monitorCPUUsage", u"st1"_s, 69);
    QVERIFY(!plugin.lists(HighCpuUsage, u"st1"_s));
    QCOMPARE(plugin.getErrorName(HighCpuUsage), u"CPU utilization over 70%"_s);
}

void tst_PluginSystemMonitor::thresholdsAreShownInTheResourceRows()
{
    qputenv(ENV_HIGH_CPU_USAGE, "71");
    qputenv(ENV_HIGH_MEM_USAGE, "72");
    qputenv(ENV_HIGH_NET_USAGE, "73");
    TestedPlugin plugin;
    QVERIFY(plugin.Init(nullptr));
    QCOMPARE(printedResources(*plugin.resourceModelControl->model()),
             QStringList({u"type 0 title \"CPU usage\" subtitle \"\" threshold 71 bandwidth 0 "
                          "history 0 x 60"_s,
                          u"type 1 title \"Memory usage\" subtitle \"\" threshold 72 bandwidth 0 "
                          "history 0 x 60"_s,
                          u"type 2 title \"Network usage\" subtitle \"\" threshold 73 bandwidth 0 "
                          "history 0 x 60"_s}));
}

void tst_PluginSystemMonitor::samplesOfTheClientAreRelayed()
{
    CallLog log;
    TestedPlugin plugin;
    const SignalLog signalLog(&plugin, log);
    QVERIFY(plugin.Init(nullptr));
    Q_EMIT plugin.resourceMonitor->resourceChanged(12, 34, {{}});
    Q_EMIT plugin.resourceMonitor->resourceChanged(-100, 0, {});
    QCOMPARE(log.lines(), QStringList({u"clientResourceChanged(12, 34)"_s,
                                       u"clientResourceChanged(-100, 0)"_s}));
}

void tst_PluginSystemMonitor::timersAreSingleShotAndIdle()
{
    TestedPlugin plugin;
    QVERIFY(plugin.Init(nullptr));
    for (const QTimer *timer : {&plugin.stationErrorNumberTimer, &plugin.initNodeStatusTimer}) {
        QVERIFY(timer->isSingleShot());
        QVERIFY(!timer->isActive());
    }
}

void tst_PluginSystemMonitor::countTimerRecounts()
{
    HostedPlugin hosted;
    hosted.plugin.addSystemError(u"st1"_s, VolumeDisconnected, QString(), QString());
    expire(hosted.plugin.stationErrorNumberTimer);
    QCOMPARE(hosted.log.take(), QStringList{u"stationErrorListChanged()"_s});
    QCOMPARE(hosted.plugin.stationErrorList().size(), 1);
    QVERIFY(!hosted.plugin.stationErrorNumberTimer.isActive());
}

void tst_PluginSystemMonitor::walkTimerWalksTheTopology()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    hosted.plugin.invoke("initNodeStatusErrorTimer", true);
    expire(hosted.plugin.initNodeStatusTimer);
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st1"_s});
    QVERIFY(!hosted.plugin.initNodeStatusTimer.isActive());
}

// Pairing

void tst_PluginSystemMonitor::pairingConnectsFourSignalsAndFetchesTheModel()
{
    HostedPlugin hosted(HostedPlugin::Initialised);
    const CollectedTrace trace;
    hosted.plugin.LoadPairPluginDone();
    const QStringList expected =
        QStringList{u"ask whether to skip pair wiring"_s} + connections
        + QStringList{u"find 1AA33B3D0AA047C9A202F1181284D2CD"_s, u"getStandardTopologyModel"_s};
    QCOMPARE(hosted.log.take(), expected);
    for (const RequestedConnection &connection : hosted.host.connections())
        QCOMPARE(connection.flag, 0);
    QCOMPARE(hosted.plugin.topologyModel, &hosted.topologyModel);
    QCOMPARE(trace.lines(), QStringList());
}

void tst_PluginSystemMonitor::topologySignalsReachThePlugin()
{
    HostedPlugin hosted;
    Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam2"_s, false);
    Q_EMIT hosted.topology.nodeStatusChanged(1, u"st2"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList({u"3_st1/cam1"_s, u"3_st1/cam2"_s, u"4_st2"_s}));
    Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam2"_s, true);
    QCOMPARE(hosted.errorKeys(), QStringList({u"3_st1/cam1"_s, u"4_st2"_s}));
    Q_EMIT hosted.topology.deviceRemoved(u"st1/cam1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList{u"4_st2"_s});
    Q_EMIT hosted.topology.stationRemoved(u"st2"_s);
    QCOMPARE(hosted.errorKeys(), QStringList());
    Q_EMIT hosted.topology.camStatusRetrievedChanged(false);
    QVERIFY(hosted.plugin.initNodeStatusTimer.isActive());
}

void tst_PluginSystemMonitor::pairingIsSkippedWhenTheHostSaysSo()
{
    HostedPlugin hosted(HostedPlugin::Initialised);
    const CollectedTrace trace;
    hosted.host.skipsPairWiring = true;
    hosted.plugin.LoadPairPluginDone();
    QCOMPARE(hosted.log.take(), QStringList{u"ask whether to skip pair wiring"_s});
    QVERIFY(!hosted.plugin.topologyModel);
    QCOMPARE(trace.lines(), QStringList());
}

void tst_PluginSystemMonitor::failedConnectionIsTracedAndTheOthersAreMade_data()
{
    QTest::addColumn<QSet<int>>("refused");
    QTest::newRow("first") << QSet<int>{1};
    QTest::newRow("second") << QSet<int>{2};
    QTest::newRow("last") << QSet<int>{4};
    QTest::newRow("two") << QSet<int>{1, 3};
    QTest::newRow("all") << QSet<int>{1, 2, 3, 4};
}

void tst_PluginSystemMonitor::failedConnectionIsTracedAndTheOthersAreMade()
{
    QFETCH(const QSet<int>, refused);
    HostedPlugin hosted(HostedPlugin::Initialised);
    hosted.host.refusedConnections = refused;
    const CollectedTrace trace;
    hosted.plugin.LoadPairPluginDone();
    QCOMPARE(hosted.log.take().mid(1, 4), connections);
    QCOMPARE(trace.lines(), QStringList(refused.size(), connectionFailure));
    QCOMPARE(hosted.plugin.topologyModel, &hosted.topologyModel);
}

void tst_PluginSystemMonitor::topologyModelStaysNullWhenThereIsNone_data()
{
    using Spoil = void (*)(HostedPlugin &);
    QTest::addColumn<Spoil>("spoil");
    QTest::addColumn<QString>("warning");
    QTest::newRow("no plug-in") << Spoil([](HostedPlugin &hosted) {
        hosted.host.forgetPlugin(u"1AA33B3D0AA047C9A202F1181284D2CD"_s);
    }) << QString();
    QTest::newRow("plug-in without the method")
        << Spoil([](HostedPlugin &hosted) {
               hosted.host.registerPlugin(u"1AA33B3D0AA047C9A202F1181284D2CD"_s, &hosted.recording);
           })
        << u"QMetaObject::invokeMethod: No such method "
           "FakeRecordingPlugin::getStandardTopologyModel()"_s;
    QTest::newRow("no model") << Spoil([](HostedPlugin &hosted) {
        hosted.topology.model = nullptr;
    }) << QString();
    QTest::newRow("another kind of object")
        << Spoil([](HostedPlugin &hosted) { hosted.topology.model = &hosted.recording; })
        << QString();
}

void tst_PluginSystemMonitor::topologyModelStaysNullWhenThereIsNone()
{
    using Spoil = void (*)(HostedPlugin &);
    QFETCH(const Spoil, spoil);
    QFETCH(const QString, warning);
    HostedPlugin hosted(HostedPlugin::Initialised);
    spoil(hosted);
    hosted.host.refusedConnections = {1, 2, 3, 4};
    if (!warning.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
    hosted.plugin.LoadPairPluginDone();
    QVERIFY(!hosted.plugin.topologyModel);
}

void tst_PluginSystemMonitor::pairingAgainForgetsAModelThatIsGone()
{
    HostedPlugin hosted;
    QVERIFY(hosted.plugin.topologyModel);
    hosted.topology.model = nullptr;
    hosted.plugin.LoadPairPluginDone();
    QVERIFY(!hosted.plugin.topologyModel);
}

void tst_PluginSystemMonitor::pairingWithoutFrameworkFailsFourTimes()
{
    TestedPlugin plugin;
    QVERIFY(plugin.InitialPluginBase(nullptr, nullptr, nullptr));
    const CollectedTrace trace;
    plugin.LoadPairPluginDone();
    QCOMPARE(trace.lines(), QStringList(4, connectionFailure));
    QVERIFY(!plugin.topologyModel);
}

// The server's connection

void tst_PluginSystemMonitor::connectionAsksForTheSnoozeList()
{
    HostedPlugin hosted;
    hosted.plugin.PluginServerConnected();
    QCOMPARE(hosted.log.take(), QStringList{u"send getSnoozeList invalid to \"\""_s});
    const SentCommand &command = hosted.host.commands().first();
    QCOMPARE(command.senderID, u"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"_s);
    QCOMPARE(command.context, nullptr);
    QCOMPARE(command.flag, 0);
}

void tst_PluginSystemMonitor::connectionWithoutFrameworkSendsNothing()
{
    TestedPlugin plugin;
    QVERIFY(plugin.InitialPluginBase(nullptr, nullptr, nullptr));
    plugin.PluginServerConnected();
    QCOMPARE(plugin.snoozedDeviceList, QStringList());
}

void tst_PluginSystemMonitor::disconnectionEmptiesTheErrorListFromItsEnd()
{
    HostedPlugin hosted;
    for (const QString &station : {u"st1"_s, u"st2"_s, u"st3"_s})
        hosted.plugin.addSystemError(station, VolumeDisconnected, QString(), QString());
    QStringList removed;
    connect(hosted.plugin.errorModel, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [&](const QModelIndex &, int first, int last) {
                QCOMPARE(first, last);
                removed.append(hosted.errorKeys().at(first));
            });
    hosted.plugin.PluginServerDisconnected();
    QCOMPARE(removed, QStringList({u"5_st3"_s, u"5_st2"_s, u"5_st1"_s}));
    QCOMPARE(hosted.errorKeys(), QStringList());
    for (const QString &station : {u"st1"_s, u"st2"_s, u"st3"_s})
        QVERIFY(!hosted.plugin.lists(VolumeDisconnected, station));
    expire(hosted.plugin.stationErrorNumberTimer);
    QCOMPARE(hosted.plugin.stationErrorList(), QVariantList());
    QCOMPARE(hosted.log.take(), QStringList{u"stationErrorListChanged()"_s});
}

void tst_PluginSystemMonitor::disconnectionKeepsTheSnoozes()
{
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"st1"_s};
    hosted.plugin.PluginServerDisconnected();
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList{u"st1"_s});
}

void tst_PluginSystemMonitor::disconnectionWithAnEmptyListDoesNothing()
{
    HostedPlugin hosted;
    const CollectedTrace trace;
    hosted.plugin.PluginServerDisconnected();
    QCOMPARE(hosted.log.take(), QStringList());
    QCOMPARE(trace.lines(), QStringList());
    QVERIFY(!hosted.plugin.stationErrorNumberTimer.isActive());
}

// Destruction

void tst_PluginSystemMonitor::destructionIsTraced()
{
    const CollectedTrace trace;
    {
        const TestedPlugin plugin;
    }
    QCOMPARE(trace.lines(),
             QStringList({u"5 ~PluginSystemMonitor, Enter"_s, u"5 ~PluginSystemMonitor, Leave"_s}));
}

void tst_PluginSystemMonitor::destructionReleasesWhatThePluginOwns()
{
    QPointer<QObject> errors;
    QPointer<QObject> resources;
    QWeakPointer<ISystemResourceMonitor> monitor;
    {
        TestedPlugin plugin;
        QVERIFY(plugin.Init(nullptr));
        plugin.addSystemError(u"st1"_s, VolumeDisconnected, QString(), QString());
        errors = plugin.getSystemErrorModel();
        resources = plugin.getSystemResourceModel();
        monitor = plugin.resourceMonitor;
        QVERIFY(errors && resources && monitor);
    }
    QVERIFY(!errors);
    QVERIFY(!resources);
    QVERIFY(!monitor);
}

void tst_PluginSystemMonitor::destructionGoesBackThroughTheMembers()
{
    Departures departures;
    {
        TestedPlugin plugin;
        QVERIFY(plugin.Init(nullptr));
        departures.watch(plugin.errorModel, u"error list"_s);
        departures.watch(plugin.resourceModelControl.data(), u"resources"_s);
        departures.watch(&plugin.indexMap, u"index"_s);
        departures.watch(&plugin.stationErrorNumberTimer, u"count timer"_s);
        departures.watch(&plugin.initNodeStatusTimer, u"walk timer"_s);
        departures.watch(plugin.resourceMonitor.data(), u"monitor"_s);
    }
    // The list is the plug-in's child: children go when the members are gone.
    QCOMPARE(departures.names, QStringList({u"monitor"_s, u"walk timer"_s, u"count timer"_s,
                                            u"index"_s, u"resources"_s, u"error list"_s}));
}

void tst_PluginSystemMonitor::destructionLeavesTheHostsObjectsAlone()
{
    CallLog log;
    RecordingFramework host(log);
    TopologyModel model;
    FakeTopologyPlugin topology(log);
    topology.model = &model;
    host.registerPlugin(u"1AA33B3D0AA047C9A202F1181284D2CD"_s, &topology);
    const auto monitor = QSharedPointer<ISystemResourceMonitor>::create();
    {
        TestedPlugin plugin;
        host.registerPlugin(u"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"_s, &plugin);
        QVERIFY(plugin.InitialPluginBase(nullptr, host.handle(), &host));
        plugin.setSystemResourceMonitor(monitor);
        plugin.LoadPairPluginDone();
        QCOMPARE(plugin.topologyModel, &model);
    }
    // Nothing of these reaches a plug-in that is gone.
    model.addStation(u"st1"_s, u"Lobby"_s);
    Q_EMIT topology.nodeStatusChanged(1, u"st1"_s, false);
    Q_EMIT monitor->resourceChanged(1, 2, {});
    QCOMPARE(model.top()->rowCount(), 1);
}

void tst_PluginSystemMonitor::proxiesOutliveThePlugin()
{
    QObject parent;
    QAbstractItemModel *proxy = nullptr;
    {
        TestedPlugin plugin;
        QVERIFY(plugin.Init(nullptr));
        plugin.addSystemError(u"st1"_s, VolumeDisconnected, QString(), QString());
        proxy = qobject_cast<QAbstractItemModel *>(plugin.getSystemErrorSortFilterModel(&parent));
        QCOMPARE(proxy->rowCount(), 1);
    }
    QCOMPARE(proxy->rowCount(), 0);
}

QTEST_GUILESS_MAIN(tst_PluginSystemMonitor)
#include "tst_PluginSystemMonitor.moc"
