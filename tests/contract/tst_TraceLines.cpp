#include "TestHost.h"
#include "TraceLines.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// What the plug-in writes to the platform's trace library, with the complete variant of it.
class tst_TraceLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void bothModulesRegisterOnce();
    void levelTestsCarryIdFileAndLine();
    void idIsReadAtEachMessage();
    void suppressedMessagesAreTestedButNotWritten();
    void initialisationIsTraced();
    void destructionIsTraced();
    void eventIsTraced_data();
    void eventIsTraced();
    void resourceReportIsTracedWithinItsEvent();
    void invalidResourceReportIsAnError();
    void invalidCapacityEventIsAnError();
    void operationsWithConfigurationAreTraced();
    void responsesAreNotTraced();
    void snoozeThatCannotBeLoggedIsAnError();
    void failedConnectionsAreErrors_data();
    void failedConnectionsAreErrors();
    void stationReportsAreTraced();
    void cameraReportsAreNotTraced();
    void startUpReportsAreTraced();
    void walkIsTraced();
    void walkWithoutTopologyIsNotTraced();
    void suppressedDisconnectionsAreTraced();
    void endOfASnoozeIsTraced();
    void idsAreWrittenAsTheyAre();
    void otherOperationsAreNotTraced();

private:
    TraceLines m_trace;
};

namespace {

QStringList inEvent(const QStringList &lines)
{
    return QStringList{u"5 EventProcessor, Enter"_s} + lines
           + QStringList{u"5 EventProcessor, Leave"_s};
}

QVariantMap node(const QString &id, int type)
{
    return {{u"nodeID"_s, id}, {u"type"_s, type}};
}

void report(TestHost &host, int type, const QString &id, bool connected)
{
    Q_EMIT host.topology.nodeStatusChanged(type, id, connected);
}

} // namespace

void tst_TraceLines::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
    QVERIFY(m_trace.journal());
}

void tst_TraceLines::cleanup()
{
    m_trace.take();
}

void tst_TraceLines::bothModulesRegisterOnce()
{
    const TestHost host;
    const TestHost another(TestHost::Loaded);
    const TraceJournal &journal = *m_trace.journal();
    QCOMPARE(journal.entryPointArguments, std::vector<int>({0, 0}));
    QCOMPARE(journal.registrations.size(), 2u);
    QStringList modules;
    for (const TraceJournal::Registration &registration : journal.registrations) {
        QCOMPARE(registration.context, journal.context);
        QCOMPARE(registration.constant, 19);
        QVERIFY(registration.moduleId);
        modules.append(QString::fromStdString(registration.moduleName));
    }
    QVERIFY(journal.registrations[0].moduleId != journal.registrations[1].moduleId);
    modules.sort();
    QCOMPARE(modules, QStringList({u"PluginSystemMonitor"_s, u"SystemResourceMonitor"_s}));
}

void tst_TraceLines::levelTestsCarryIdFileAndLine()
{
    TestHost host;
    host.event(u"SystemResChanged"_s, u"text"_s);
    report(host, 1, u"st1"_s, false);
    const TraceJournal &journal = *m_trace.journal();
    QVERIFY(journal.messages.size() > 5);
    for (const TraceJournal::Message &message : journal.messages) {
        QCOMPARE(message.context, journal.context);
        QCOMPARE(message.levelTest.context, journal.context);
        QCOMPARE(message.levelTest.moduleId(), m_trace.moduleID(u"PluginSystemMonitor"_s));
        QCOMPARE(message.levelTest.zero, 0);
        QVERIFY(QString::fromStdString(message.levelTest.file).endsWith(".cpp"_L1));
        const bool isLeave = QString::fromStdString(message.text).endsWith(", Leave"_L1);
        QCOMPARE(message.levelTest.line == 0, isLeave);
        QVERIFY(message.levelTest.line >= 0);
    }
}

void tst_TraceLines::idIsReadAtEachMessage()
{
    TestHost host;
    for (const TraceJournal::Registration &registration : m_trace.journal()->registrations) {
        if (registration.moduleName != "PluginSystemMonitor")
            continue;
        const int id = *registration.moduleId;
        for (const int newID : {0x1234, 1, id}) {
            m_trace.take();
            *registration.moduleId = newID;
            host.event(u"unknown"_s);
            QCOMPARE(m_trace.journal()->levelTests.size(), 2u);
            QCOMPARE(m_trace.journal()->levelTests[0].moduleAndLevel, (newID << 8) | 5);
            QCOMPARE(m_trace.journal()->levelTests[1].moduleAndLevel, (newID << 8) | 5);
        }
    }
}

void tst_TraceLines::suppressedMessagesAreTestedButNotWritten()
{
    TestHost host;
    m_trace.take();
    for (const int answer : {1, -1}) {
        m_trace.journal()->levelTestAnswer = answer;
        host.event(u"ServerReachingLimited"_s);
        m_trace.journal()->levelTestAnswer = 0;
        QCOMPARE(m_trace.journal()->levelTests.size(), 3u);
        QCOMPARE(m_trace.take(), QStringList());
    }
    host.event(u"ServerReachingLimited"_s);
    QCOMPARE(m_trace.take().size(), 3);
}

void tst_TraceLines::initialisationIsTraced()
{
    const TestHost host(TestHost::Initialised);
    QCOMPARE(m_trace.take(), QStringList({u"5 Init, Enter"_s, u"5 Init, Leave"_s}));
}

void tst_TraceLines::destructionIsTraced()
{
    {
        const TestHost host(TestHost::Loaded);
        QCOMPARE(m_trace.take(), QStringList());
    }
    QCOMPARE(m_trace.take(),
             QStringList({u"5 ~PluginSystemMonitor, Enter"_s, u"5 ~PluginSystemMonitor, Leave"_s}));
}

void tst_TraceLines::eventIsTraced_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("data");
    QTest::newRow("capacity") << u"ServerReachingLimited"_s << QVariant(QVariantMap());
    QTest::newRow("snooze") << u"SnoozeError"_s << QVariant(node(u"st1"_s, 4));
    QTest::newRow("expiry") << u"DeviceStillError"_s << QVariant(node(u"st1"_s, 4));
    QTest::newRow("release") << u"RemoveSnooze"_s << QVariant(u"st1"_s);
    QTest::newRow("unknown") << u"unknown"_s << QVariant();
    QTest::newRow("empty") << QString() << QVariant();
}

void tst_TraceLines::eventIsTraced()
{
    QFETCH(const QString, name);
    QFETCH(const QVariant, data);
    TestHost host;
    m_trace.take();
    host.event(name, data);
    QCOMPARE(m_trace.take(), inEvent({}));
}

void tst_TraceLines::resourceReportIsTracedWithinItsEvent()
{
    TestHost host;
    m_trace.take();
    host.event(u"SystemResChanged"_s, QVariantMap{{u"cpuPercentage"_s, 100}}, u"st1"_s);
    QCOMPARE(m_trace.take(), inEvent({u"5 handleSystemResChgEvent, Enter"_s,
                                      u"5 handleSystemResChgEvent, Leave"_s}));
}

void tst_TraceLines::invalidResourceReportIsAnError()
{
    TestHost host;
    m_trace.take();
    host.event(u"SystemResChanged"_s, QVariantList{1});
    QCOMPARE(m_trace.take(), inEvent({u"5 handleSystemResChgEvent, Enter"_s,
                                      u"2 handleSystemResChgEvent, event data is invalid"_s,
                                      u"5 handleSystemResChgEvent, Leave"_s}));
}

void tst_TraceLines::invalidCapacityEventIsAnError()
{
    TestHost host;
    m_trace.take();
    host.event(u"ServerReachingLimited"_s, QVariantHash());
    QCOMPARE(m_trace.take(),
             inEvent({u"2 handleServerReachingLimitedEvent, event data is invalid"_s}));
}

void tst_TraceLines::operationsWithConfigurationAreTraced()
{
    TestHost host;
    m_trace.take();
    host.plugin()->EventProcessorEx(u"SnoozeError"_s, nullptr, 0, 0, 0, {}, QString());
    QCOMPARE(m_trace.take(),
             QStringList({u"5 EventProcessorEx, Enter"_s, u"5 EventProcessorEx, Leave"_s}));
    host.plugin()->CommandProcessorEx(u"setSnooze"_s, nullptr, {}, nullptr, u"0"_s, QString(),
                                      false, QString());
    QCOMPARE(m_trace.take(),
             QStringList({u"5 CommandProcessorEx, Enter"_s, u"5 CommandProcessorEx, Leave"_s}));
}

void tst_TraceLines::responsesAreNotTraced()
{
    TestHost host;
    report(host, 1, u"st1"_s, false);
    m_trace.take();
    host.respond(u"getSnoozeList"_s, QStringList{u"st2"_s});
    host.respond(u"setSnooze"_s, node(u"st1"_s, 4));
    host.respond(u"isSupportSystemMonitor"_s, {}, u"0"_s, new QString(u"st1"_s));
    host.respond(u"unknown"_s);
    QCOMPARE(m_trace.take(), QStringList());
}

void tst_TraceLines::snoozeThatCannotBeLoggedIsAnError()
{
    TestHost host;
    m_trace.take();
    host.respond(u"setSnooze"_s, node(u"st1"_s, 4));
    host.respond(u"setSnooze"_s, {}, u"1"_s);
    const QString line = u"2 CommandProcessor, Add operation log failed. Can't find snooze item in "
                         u"system error model"_s;
    QCOMPARE(m_trace.take(), QStringList({line, line}));
    QCOMPARE(host.log.take(),
             QStringList({u"setSnoozeResponse(true)"_s, u"setSnoozeResponse(false)"_s}));
}

void tst_TraceLines::failedConnectionsAreErrors_data()
{
    QTest::addColumn<QSet<int>>("refused");
    QTest::addColumn<bool>("hasFramework");
    QTest::addColumn<int>("failures");
    QTest::newRow("none") << QSet<int>() << true << 0;
    QTest::newRow("second") << QSet<int>{2} << true << 1;
    QTest::newRow("all") << QSet<int>{1, 2, 3, 4} << true << 4;
    QTest::newRow("no framework") << QSet<int>() << false << 4;
}

void tst_TraceLines::failedConnectionsAreErrors()
{
    QFETCH(const QSet<int>, refused);
    QFETCH(const bool, hasFramework);
    QFETCH(const int, failures);
    TestHost host(TestHost::Loaded);
    QVERIFY(host.plugin()->InitialPluginBase(nullptr, host.framework.handle(),
                                             hasFramework ? host.framework.framework() : nullptr));
    host.framework.refusedConnections = refused;
    m_trace.take();
    host.plugin()->LoadPairPluginDone();
    QCOMPARE(m_trace.take(),
             QStringList(failures, u"2 LoadPairPluginDone, ConnectPluginSignal fail"_s));
}

void tst_TraceLines::stationReportsAreTraced()
{
    TestHost host;
    m_trace.take();
    report(host, 1, u"st1"_s, false);
    report(host, 1, u"st1"_s, false);
    const QString lost = u"3 Station disconnect remove all error on [st1]"_s;
    QCOMPARE(m_trace.take(), QStringList({lost, lost}));
    report(host, 1, u"st1"_s, true);
    QCOMPARE(m_trace.take(), QStringList());
    report(host, 1, u"st1"_s, true);
    QCOMPARE(m_trace.take(), QStringList({u"2 Station connect but error is not existed [st1]"_s}));
    report(host, 2, u"st1"_s, false);
    QCOMPARE(m_trace.take(), QStringList());
}

void tst_TraceLines::cameraReportsAreNotTraced()
{
    TestHost host;
    m_trace.take();
    for (const bool connected : {true, false, false, true, true}) {
        report(host, 0, u"st1/cam1"_s, connected);
        host.invoke("monitorNodeStatusForInit", 0, u"st1/cam2"_s, connected, u"Door"_s);
    }
    QCOMPARE(m_trace.take(), QStringList());
}

void tst_TraceLines::startUpReportsAreTraced()
{
    TestHost host;
    m_trace.take();
    const auto startUp = [&host](bool connected) {
        host.invoke("monitorNodeStatusForInit", 1, u"st1"_s, connected, u"Lobby"_s);
    };
    startUp(false);
    QCOMPARE(m_trace.take(), QStringList());
    startUp(false);
    QCOMPARE(m_trace.take(),
             QStringList({u"2 Station disconnect but error is already existed [st1]"_s}));
    startUp(true);
    QCOMPARE(m_trace.take(), QStringList());
    startUp(true);
    QCOMPARE(m_trace.take(), QStringList({u"2 Station connect but error is not existed [st1]"_s}));
}

void tst_TraceLines::walkIsTraced()
{
    TestHost host;
    QStandardItem *const station = host.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door"_s, false);
    host.topologyModel.addStation(u"st2"_s, u"Yard"_s);
    m_trace.take();
    Q_EMIT host.topology.camStatusRetrievedChanged(false);
    QCOMPARE(m_trace.take(), QStringList({u"3 === Start initial node status ==="_s}));
    host.invoke("initNodeStatusError");
    QCOMPARE(m_trace.take(), QStringList({u"3 === Init node status start ==="_s,
                                          u"2 Station connect but error is not existed [st1]"_s,
                                          u"2 Station connect but error is not existed [st2]"_s,
                                          u"3 === Init node status finish ==="_s}));
    host.topologyModel.clear();
    host.invoke("initNodeStatusError");
    QCOMPARE(m_trace.take(), QStringList({u"3 === Init node status start ==="_s,
                                          u"3 === Init node status finish ==="_s}));
}

void tst_TraceLines::walkWithoutTopologyIsNotTraced()
{
    TestHost host(TestHost::Initialised);
    m_trace.take();
    host.invoke("initNodeStatusError");
    QCOMPARE(m_trace.take(), QStringList());
}

void tst_TraceLines::suppressedDisconnectionsAreTraced()
{
    TestHost host;
    host.respond(u"getSnoozeList"_s, QStringList{u"st1"_s, u"st1/cam1"_s});
    m_trace.take();
    report(host, 1, u"st1"_s, false);
    QCOMPARE(m_trace.take(), QStringList({u"3 Station disconnect remove all error on [st1]"_s,
                                          u"3 Snooze station disconnection error st1"_s}));
    report(host, 0, u"st1/cam1"_s, false);
    QCOMPARE(m_trace.take(), QStringList({u"3 Snooze camera disconnection error st1/cam1"_s}));
    host.invoke("monitorNodeStatusForInit", 1, u"st1"_s, false, u"Lobby"_s);
    QCOMPARE(m_trace.take(), QStringList({u"3 Snooze station disconnection error st1"_s}));
}

void tst_TraceLines::endOfASnoozeIsTraced()
{
    TestHost host;
    host.respond(u"getSnoozeList"_s, QStringList{u"st1"_s, u"st2"_s});
    m_trace.take();
    host.event(u"RemoveSnooze"_s, u"st1"_s);
    QCOMPARE(m_trace.take(), inEvent({u"3 Delete this Snooze and it wll show up next time st1"_s}));
    host.event(u"DeviceStillError"_s, node(u"st2"_s, 4));
    QCOMPARE(m_trace.take(), inEvent({u"3 Delete this Snooze and it wll show up next time st2"_s}));
    host.event(u"RemoveSnooze"_s, u"st2"_s);
    QCOMPARE(m_trace.take(), inEvent({}));
}

void tst_TraceLines::idsAreWrittenAsTheyAre()
{
    TestHost host;
    const QString id = u"%s %n 100% 駅/ü"_s;
    m_trace.take();
    report(host, 1, id, true);
    QCOMPARE(m_trace.take(),
             QStringList({u"2 Station connect but error is not existed [%1]"_s.arg(id)}));
    host.respond(u"getSnoozeList"_s, QStringList{id});
    report(host, 0, id, false);
    QCOMPARE(m_trace.take(), QStringList({u"3 Snooze camera disconnection error "_s + id}));
}

void tst_TraceLines::otherOperationsAreNotTraced()
{
    TestHost host;
    QObject parent;
    m_trace.take();
    host.plugin()->LoadClientOnlyPluginDone();
    host.plugin()->LoadPairPluginDone();
    host.plugin()->PluginServerConnected();
    host.invoke("monitorCPUUsage", u"st1"_s, 100);
    host.invoke("monitorMemoryUsage", u"st1"_s, 100);
    host.invoke("monitorNetworkUsage", u"st1"_s, 100, u"en0"_s);
    host.invoke("monitorVolumeStatus", u"st1"_s);
    host.invoke("removeVolumeError", u"st1"_s);
    host.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"Vault"_s, u"g1"_s);
    host.invoke("monitorSufficientRecordingGroup", u"st1"_s, u"g1"_s);
    host.invoke("updateStationErrorNumber");
    host.invoke("removeCameraError", u"st1/cam1"_s);
    host.invoke("removeStationError", u"st1"_s);
    host.invoke("reconnectDisconnectCameras");
    host.invoke("reconnectDisconnectSubstations");
    host.ask<bool>("setSnooze", u"st1"_s, qlonglong(0), 4);
    host.ask<QObject *>("getSystemErrorSortFilterModel", &parent);
    host.errors();
    host.resources();
    host.object()->setProperty("focusStationResource", u"st1"_s);
    host.plugin()->PluginServerDisconnected();
    QCOMPARE(m_trace.take(), QStringList());
}

QTEST_GUILESS_MAIN(tst_TraceLines)
#include "tst_TraceLines.moc"
