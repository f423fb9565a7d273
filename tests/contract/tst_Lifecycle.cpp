#include "ModelRoles.h"
#include "TestHost.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Creation, initialisation, pairing, server connections and the end.
class tst_Lifecycle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void constructionDoesNoWork();
    void initialisationSetsPrefixAndId();
    void initialisationCreatesEmptyModels();
    void initialisationAsksNothingOfTheHost();
    void thresholdComesFromTheEnvironment_data();
    void thresholdComesFromTheEnvironment();
    void thresholdsAreReadByEveryInitialisationAnew();
    void thresholdIsShownInTheResourceModel();
    void missingFrameworkStillInitialisesTheModels();
    void missingFrameworkSendsNothing();
    void missingFrameworkWithholdsWiringButDoesNotCrash();
    void missingFrameworkFreesTheContextOfTheSupportCheck();
    void pairingConnectsFourSignalsInOrderThenFetchesTheTopology();
    void pairingIsSkippedWhenTheHostSaysSo();
    void refusedConnectionDoesNotStopTheOthers_data();
    void refusedConnectionDoesNotStopTheOthers();
    void topologySignalsReachTheirSlots();
    void topologyObjectWithoutItemModelIsNoTopology_data();
    void topologyObjectWithoutItemModelIsNoTopology();
    void topologyPluginMayBeMissing();
    void serverConnectionAsksForTheSnoozeList();
    void serverDisconnectionEmptiesTheErrorList();
    void serverDisconnectionRemovesRowsFromTheLastToTheFirst();
    void serverDisconnectionOfAnEmptyListDoesNothing();
    void errorIsRaisedAnewAfterADisconnection();
    void snoozeListOutlivesADisconnection();
    void modelsDieWithThePlugin();
    void signalsOfTheTopologyAreHarmlessAfterTheEnd();
};

namespace {

constexpr auto ConnectAll = {
    "connect 1AA33B3D0AA047C9A202F1181284D2CD 2nodeStatusChanged(int, const QString &, bool) to "
    "{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415} 1monitorNodeStatus(int, const QString &, bool)",
    "connect 1AA33B3D0AA047C9A202F1181284D2CD 2deviceRemoved(const QString &) to "
    "{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415} 1removeCameraError(const QString &)",
    "connect 1AA33B3D0AA047C9A202F1181284D2CD 2stationRemoved(const QString &) to "
    "{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415} 1removeStationError(const QString &)",
    "connect 1AA33B3D0AA047C9A202F1181284D2CD 2camStatusRetrievedChanged(bool) to "
    "{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415} 1initNodeStatusErrorTimer(bool)",
};

QStringList pairingCalls()
{
    QStringList calls{u"ask whether to skip pair wiring"_s};
    for (const char *const connection : ConnectAll)
        calls.append(QString::fromLatin1(connection));
    calls.append(u"find 1AA33B3D0AA047C9A202F1181284D2CD"_s);
    calls.append(u"getStandardTopologyModel"_s);
    return calls;
}

struct Kind
{
    const char *variable;
    QByteArray ThresholdVariables::*value;
    int defaultThreshold;
    const char *errorName;
};

const Kind kinds[]{
    {"CPU", &ThresholdVariables::cpu, 90, "CPU utilization over %1%"},
    {"memory", &ThresholdVariables::memory, 90, "Memory usage over %1%"},
    {"network", &ThresholdVariables::network, 50, "Network usage over %1%"},
};

void report(TestHost &host, int kind, int usage)
{
    switch (kind) {
    case 0:
        host.invoke("monitorCPUUsage", u"st1"_s, usage);
        break;
    case 1:
        host.invoke("monitorMemoryUsage", u"st1"_s, usage);
        break;
    default:
        host.invoke("monitorNetworkUsage", u"st1"_s, usage, u"en0"_s);
    }
}

// Whether a walk of the topology finds a node: tells if the plug-in holds the model.
bool walkFindsTheDownCamera(TestHost &host)
{
    QStandardItem *const station = host.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door"_s, false);
    host.invoke("initNodeStatusError");
    return !host.errorKeys().isEmpty();
}

} // namespace

void tst_Lifecycle::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_Lifecycle::constructionDoesNoWork()
{
    TestHost host(TestHost::Loaded);
    QVERIFY(!host.errors());
    QVERIFY(!host.resources());
    QVERIFY(host.object()->children().isEmpty());
    QCOMPARE(host.plugin()->prefixName(), QString());
    QCOMPARE(host.plugin()->pluginID(), QString());
    QCOMPARE(host.object()->property("focusStationResource"), QVariant(QString()));
    QCOMPARE(host.object()->property("stationErrorList"), QVariant(QVariantList()));
}

void tst_Lifecycle::initialisationSetsPrefixAndId()
{
    const TestHost host(TestHost::Initialised);
    QCOMPARE(host.plugin()->prefixName(), u"SystemMonitorPlugin"_s);
    QCOMPARE(host.plugin()->pluginID(), u"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"_s);
}

void tst_Lifecycle::initialisationCreatesEmptyModels()
{
    TestHost host(TestHost::Initialised);
    QCOMPARE(host.errors()->rowCount(), 0);
    QCOMPARE(host.errors()->metaObject()->className(), "SystemErrorModel");
    QCOMPARE(host.errors()->parent(), host.object());
    QCOMPARE(host.resources()->rowCount(), 3);
    const QAbstractItemModelTester tester(host.errors());
}

void tst_Lifecycle::initialisationAsksNothingOfTheHost()
{
    TestHost host(TestHost::Loaded);
    QVERIFY(host.initialise());
    QCOMPARE(host.log.take(), QStringList());
}

void tst_Lifecycle::thresholdComesFromTheEnvironment_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("threshold");

    struct Value
    {
        const char *name;
        QByteArray text;
        int threshold; // 0 for the default
    };
    const Value values[]{
        {"unset", {}, 0},
        {"empty", "", 0},
        {"not a number", "abc", 0},
        {"zero", "0", 0},
        {"negative", "-5", 0},
        {"too large", "2147483648", 0},
        {"much too large", "99999999999999999999", 0},
        {"fraction", "75.5", 0},
        {"unit", "75%", 0},
        {"hexadecimal", "0x50", 0},
        {"blank", "   ", 0},
        {"valid", "75", 75},
        {"smallest", "1", 1},
        {"blanks around it", " 80 ", 80},
        {"tab and line end", "\t80\n", 80},
        {"leading zeros", "0080", 80},
        {"over a hundred", "150", 150},
        {"largest", "2147483647", 2147483647},
    };
    for (int kind = 0; kind < 3; ++kind) {
        for (const Value &value : values) {
            QTest::addRow("%s, %s", kinds[kind].variable, value.name)
                << kind << value.text
                << (value.threshold == 0 ? kinds[kind].defaultThreshold : value.threshold);
        }
    }
}

void tst_Lifecycle::thresholdComesFromTheEnvironment()
{
    QFETCH(const int, kind);
    QFETCH(const QByteArray, value);
    QFETCH(const int, threshold);
    ThresholdVariables variables;
    variables.*kinds[kind].value = value;
    TestHost host(TestHost::Initialised, variables);

    report(host, kind, threshold - 1);
    QCOMPARE(host.errors()->rowCount(), 0);
    report(host, kind, threshold);
    QCOMPARE(host.errors()->rowCount(), 1);
    QCOMPARE(host.error(0, ErrorRole::Name).toString(),
             QString::fromLatin1(kinds[kind].errorName).arg(threshold));
}

void tst_Lifecycle::thresholdsAreReadByEveryInitialisationAnew()
{
    {
        TestHost host(TestHost::Initialised, {"10", "20", "30"});
        host.invoke("monitorCPUUsage", u"st1"_s, 15);
        QCOMPARE(host.errors()->rowCount(), 1);
    }
    TestHost host(TestHost::Initialised);
    host.invoke("monitorCPUUsage", u"st1"_s, 15);
    QCOMPARE(host.errors()->rowCount(), 0);
}

void tst_Lifecycle::thresholdIsShownInTheResourceModel()
{
    TestHost host(TestHost::Initialised, {"10", "20", "30"});
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(host.resources()->index(row, 0).data(ResourceRole::Threshold),
                 QVariant(10 * (row + 1)));
    }
}

void tst_Lifecycle::missingFrameworkStillInitialisesTheModels()
{
    TestHost host(TestHost::Loaded);
    QVERIFY(host.plugin()->InitialPluginBase(nullptr, nullptr, nullptr));
    QVERIFY(host.errors());
    QCOMPARE(host.resources()->rowCount(), 3);
    host.invoke("monitorVolumeStatus", u"st1"_s);
    QCOMPARE(host.errors()->rowCount(), 1);
}

void tst_Lifecycle::missingFrameworkSendsNothing()
{
    TestHost host(TestHost::Loaded);
    QVERIFY(host.plugin()->InitialPluginBase(nullptr, nullptr, nullptr));
    host.invoke("monitorNodeStatus", 0, u"st1/cam1"_s, false);
    host.invoke("monitorNodeStatus", 1, u"st2"_s, false);

    QVERIFY(!host.ask<bool>("setSnooze", u"st1/cam1"_s, qlonglong(1), 3));
    QVERIFY(!host.ask<bool>("checkSupportSystemMonitor", u"st1"_s));
    host.invoke("reconnectDisconnectCameras");
    host.invoke("reconnectDisconnectSubstations");
    host.plugin()->PluginServerConnected();
    QCOMPARE(host.errors()->rowCount(), 2);
    host.plugin()->PluginServerDisconnected();
    QCOMPARE(host.errors()->rowCount(), 0);
    QCOMPARE(host.log.take(), QStringList());
}

void tst_Lifecycle::missingFrameworkWithholdsWiringButDoesNotCrash()
{
    TestHost host(TestHost::Loaded);
    QVERIFY(host.plugin()->InitialPluginBase(nullptr, nullptr, nullptr));
    host.plugin()->LoadPairPluginDone();
    QVERIFY(!walkFindsTheDownCamera(host));
    QCOMPARE(host.log.take(), QStringList());
}

void tst_Lifecycle::missingFrameworkFreesTheContextOfTheSupportCheck()
{
    TestHost host(TestHost::Loaded);
    QVERIFY(host.plugin()->InitialPluginBase(nullptr, nullptr, nullptr));
    const QString stationID = QString::number(1);
    QVERIFY(stationID.isDetached());
    QVERIFY(!host.ask<bool>("checkSupportSystemMonitor", stationID));
    QVERIFY(stationID.isDetached());
}

void tst_Lifecycle::pairingConnectsFourSignalsInOrderThenFetchesTheTopology()
{
    TestHost host(TestHost::Initialised);
    host.plugin()->LoadPairPluginDone();
    QCOMPARE(host.log.take(), pairingCalls());
    QVERIFY(walkFindsTheDownCamera(host));
}

void tst_Lifecycle::pairingIsSkippedWhenTheHostSaysSo()
{
    TestHost host(TestHost::Initialised);
    host.framework.skipsPairWiring = true;
    host.plugin()->LoadPairPluginDone();
    QCOMPARE(host.log.take(), QStringList{u"ask whether to skip pair wiring"_s});
    QVERIFY(!walkFindsTheDownCamera(host));
}

void tst_Lifecycle::refusedConnectionDoesNotStopTheOthers_data()
{
    QTest::addColumn<QSet<int>>("refused");
    QTest::newRow("second") << QSet<int>{2};
    QTest::newRow("first and last") << QSet<int>{1, 4};
    QTest::newRow("all") << QSet<int>{1, 2, 3, 4};
}

void tst_Lifecycle::refusedConnectionDoesNotStopTheOthers()
{
    QFETCH(const QSet<int>, refused);
    TestHost host(TestHost::Initialised);
    host.framework.refusedConnections = refused;
    host.plugin()->LoadPairPluginDone();
    QCOMPARE(host.log.take(), pairingCalls());
    QVERIFY(walkFindsTheDownCamera(host));
}

void tst_Lifecycle::topologySignalsReachTheirSlots()
{
    TestHost host;
    Q_EMIT host.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    Q_EMIT host.topology.nodeStatusChanged(0, u"st2/cam1"_s, false);
    Q_EMIT host.topology.nodeStatusChanged(1, u"st3"_s, false);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s, u"3_st2/cam1"_s, u"4_st3"_s}));

    Q_EMIT host.topology.deviceRemoved(u"st1/cam1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"3_st2/cam1"_s, u"4_st3"_s}));
    Q_EMIT host.topology.stationRemoved(u"st2"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"4_st3"_s}));
    Q_EMIT host.topology.nodeStatusChanged(1, u"st3"_s, true);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_Lifecycle::topologyObjectWithoutItemModelIsNoTopology_data()
{
    QTest::addColumn<bool>("hasObject");
    QTest::newRow("no object") << false;
    QTest::newRow("object of another class") << true;
}

void tst_Lifecycle::topologyObjectWithoutItemModelIsNoTopology()
{
    QFETCH(const bool, hasObject);
    TestHost host(TestHost::Initialised);
    QObject other;
    host.topology.model = hasObject ? &other : nullptr;
    host.plugin()->LoadPairPluginDone();
    QCOMPARE(host.log.take(), pairingCalls());
    QVERIFY(!walkFindsTheDownCamera(host));
}

void tst_Lifecycle::topologyPluginMayBeMissing()
{
    TestHost host(TestHost::Initialised);
    host.framework.forgetPlugin(PluginID::Topology);
    host.plugin()->LoadPairPluginDone();
    QCOMPARE(host.framework.connections().size(), 4);
    QCOMPARE(host.log.take().constLast(), u"find 1AA33B3D0AA047C9A202F1181284D2CD"_s);
    QVERIFY(!walkFindsTheDownCamera(host));
}

void tst_Lifecycle::serverConnectionAsksForTheSnoozeList()
{
    TestHost host;
    host.plugin()->PluginServerConnected();
    host.plugin()->PluginServerConnected();
    const QString request = u"send getSnoozeList invalid to \"\""_s;
    QCOMPARE(host.log.take(), QStringList({request, request}));
    QCOMPARE(host.framework.commands().first().context, nullptr);
    QCOMPARE(host.framework.commands().first().senderID, PluginID::SystemMonitor);
}

void tst_Lifecycle::serverDisconnectionEmptiesTheErrorList()
{
    TestHost host;
    const QAbstractItemModelTester tester(host.errors());
    Q_EMIT host.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    Q_EMIT host.topology.nodeStatusChanged(1, u"st2"_s, false);
    host.invoke("monitorCPUUsage", u"st3"_s, 100);
    host.plugin()->PluginServerDisconnected();
    QCOMPARE(host.errorKeys(), QStringList());
    host.invoke("updateStationErrorNumber");
    QCOMPARE(host.object()->property("stationErrorList").toList(), QVariantList());
}

void tst_Lifecycle::serverDisconnectionRemovesRowsFromTheLastToTheFirst()
{
    TestHost host;
    for (const QString &station : {u"a"_s, u"b"_s, u"c"_s})
        host.invoke("monitorVolumeStatus", station);
    QList<int> removed;
    connect(host.errors(), &QAbstractItemModel::rowsRemoved, this,
            [&removed](const QModelIndex &, int first, int last) {
                QCOMPARE(first, last);
                removed.append(first);
            });
    host.plugin()->PluginServerDisconnected();
    QCOMPARE(removed, QList<int>({2, 1, 0}));
}

void tst_Lifecycle::serverDisconnectionOfAnEmptyListDoesNothing()
{
    TestHost host;
    const QSignalSpy removed(host.errors(), &QAbstractItemModel::rowsRemoved);
    const QSignalSpy reset(host.errors(), &QAbstractItemModel::modelReset);
    host.plugin()->PluginServerDisconnected();
    QCOMPARE(removed.size() + reset.size(), 0);
    QCOMPARE(host.log.take(), QStringList());
}

void tst_Lifecycle::errorIsRaisedAnewAfterADisconnection()
{
    TestHost host;
    host.invoke("monitorVolumeStatus", u"st1"_s);
    host.plugin()->PluginServerDisconnected();
    host.invoke("monitorVolumeStatus", u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"5_st1"_s}));
}

void tst_Lifecycle::snoozeListOutlivesADisconnection()
{
    TestHost host;
    host.respond(u"getSnoozeList"_s, QStringList{u"st1"_s});
    host.plugin()->PluginServerDisconnected();
    Q_EMIT host.topology.nodeStatusChanged(1, u"st1"_s, false);
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_Lifecycle::modelsDieWithThePlugin()
{
    QPointer<QObject> errors;
    QPointer<QObject> resources;
    {
        TestHost host;
        errors = host.errors();
        resources = host.resources();
        QVERIFY(errors && resources);
    }
    QVERIFY(!errors);
    QVERIFY(!resources);
}

void tst_Lifecycle::signalsOfTheTopologyAreHarmlessAfterTheEnd()
{
    TestHost host;
    delete host.object();
    Q_EMIT host.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    Q_EMIT host.topology.camStatusRetrievedChanged(true);
    QCOMPARE(host.log.take(), QStringList());
}

QTEST_GUILESS_MAIN(tst_Lifecycle)
#include "tst_Lifecycle.moc"
