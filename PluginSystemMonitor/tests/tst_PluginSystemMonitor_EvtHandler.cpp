#include "CollectedTrace.h"
#include "HostedPlugin.h"
#include "ISystemResourceMonitor.h"
#include "PrintedValue.h"
#include "SystemErrorModel.h"
#include "SystemResourceModelControl.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

using namespace Qt::Literals::StringLiterals;

/// What the server and the client machine report of resources, and who gets to see it.
class tst_PluginSystemMonitor_EvtHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void reportThatIsNoMapIsDropped_data();
    void reportThatIsNoMapIsDropped();
    void reportIsTracedAtEntryAndExit();
    void reportGoesThroughTheThresholdRules();
    void everyStationsReportGoesThroughTheRules();
    void missingFiguresReadAsZero();
    void figuresAreConvertedToWholePercents_data();
    void figuresAreConvertedToWholePercents();
    void networkEntriesAreJudgedInTheirOrder();
    void networkEntriesThatAreNoMapsReadAsNothing();

    void focusedStationsReportReachesTheModel();
    void otherStationsReportsDoNotReachTheModel_data();
    void otherStationsReportsDoNotReachTheModel();
    void emptyFocusMatchesAnEmptySource();
    void modelIsUpToDateWhenTheSignalComes();
    void errorsAreUpToDateWhenTheModelMoves();
    void networkListIsPassedOnAsReceived();
    void missingNetworkListIsPassedOnEmpty();
    void fractionsAreJudgedWholeButKept();

    void focusIsEmptyAtFirst();
    void newFocusStartsTheModelOver();
    void sameFocusChangesNothing();
    void focusIsAProperty();

    void monitorsSamplesAreRelayed();
    void samplesOfAnotherThreadAreRelayedInThePluginsOwn();
    void replacedMonitorIsReleased();
    void replacedMonitorHeldElsewhereIsStillRelayed();
    void monitorInstalledTwiceIsRelayedTwice();
    void monitorMayBeTakenAway();
    void resourceModelIsHandedOut();

    void capacityWarningIsPassedOn_data();
    void capacityWarningIsPassedOn();
    void everyCapacityWarningIsPassedOn();
    void capacityWarningThatIsNoMapIsDropped_data();
    void capacityWarningThatIsNoMapIsDropped();
};

namespace {

QVariantMap usage(const QString &interfaceName, const QVariant &percentage,
                  const QVariant &bandwidth = 0)
{
    return {{u"networkInterface"_s, interfaceName},
            {u"networkPercentage"_s, percentage},
            {u"networkBandwidth"_s, bandwidth}};
}

QVariantMap report(const QVariant &cpu, const QVariant &memory, const QVariantList &network = {})
{
    return {
        {u"cpuPercentage"_s, cpu}, {u"memPercentage"_s, memory}, {u"networkUsageList"_s, network}};
}

// Everything that is not exactly a map of variants by strings.
void addOtherTypes()
{
    QTest::addColumn<QVariant>("data");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("string") << QVariant(u"cpuPercentage"_s);
    QTest::newRow("number") << QVariant(95);
    QTest::newRow("list") << QVariant(QVariantList{report(95, 95)});
    QTest::newRow("hash") << QVariant(
        QVariantHash{{u"cpuPercentage"_s, 95}, {u"serverName"_s, u"Server"_s}});
}

QString newest(const HostedPlugin &hosted, int row)
{
    return printedValue(hosted.plugin.resourceModelControl->model()
                            ->index(row, 0)
                            .data(SystemResourceModelItem::UsageListRole)
                            .toList()
                            .last());
}

} // namespace

void tst_PluginSystemMonitor_EvtHandler::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

// Reports and thresholds

void tst_PluginSystemMonitor_EvtHandler::reportThatIsNoMapIsDropped_data()
{
    addOtherTypes();
}

void tst_PluginSystemMonitor_EvtHandler::reportThatIsNoMapIsDropped()
{
    QFETCH(const QVariant, data);
    HostedPlugin hosted;
    hosted.plugin.handleSystemResChgEvent(report(95, 95), u"st1"_s);
    hosted.plugin.setFocusStationResource(u"st1"_s);
    hosted.log.take();
    CollectedTrace trace(TraceLog::InfoLevel);
    hosted.plugin.handleSystemResChgEvent(data, u"st1"_s);
    QCOMPARE(trace.take(), QStringList{u"2 handleSystemResChgEvent, event data is invalid"_s});
    // Not even read as zeros, which would have cleared the errors.
    QCOMPARE(hosted.errorKeys(), QStringList({u"0_st1"_s, u"1_st1"_s}));
    QCOMPARE(hosted.log.take(), QStringList());
    QCOMPARE(newest(hosted, 0), u"0"_s);
}

void tst_PluginSystemMonitor_EvtHandler::reportIsTracedAtEntryAndExit()
{
    HostedPlugin hosted;
    CollectedTrace trace;
    hosted.plugin.handleSystemResChgEvent(report(1, 2), u"st1"_s);
    QCOMPARE(trace.take(), QStringList({u"5 handleSystemResChgEvent, Enter"_s,
                                        u"5 handleSystemResChgEvent, Leave"_s}));
    hosted.plugin.handleSystemResChgEvent(u"no map"_s, u"st1"_s);
    QCOMPARE(trace.questions().first().file, u"PluginSystemMonitor_EvtHandler.cpp"_s);
    QCOMPARE(trace.take(), QStringList({u"5 handleSystemResChgEvent, Enter"_s,
                                        u"2 handleSystemResChgEvent, event data is invalid"_s,
                                        u"5 handleSystemResChgEvent, Leave"_s}));
}

void tst_PluginSystemMonitor_EvtHandler::reportGoesThroughTheThresholdRules()
{
    HostedPlugin hosted;
    hosted.plugin.handleSystemResChgEvent(report(90, 90, {usage(u"en0"_s, 50)}), u"st1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList({u"0_st1"_s, u"1_st1"_s, u"2_st1_en0"_s}));
    hosted.plugin.handleSystemResChgEvent(report(89, 89, {usage(u"en0"_s, 49)}), u"st1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList());
}

void tst_PluginSystemMonitor_EvtHandler::everyStationsReportGoesThroughTheRules()
{
    HostedPlugin hosted;
    hosted.plugin.setFocusStationResource(u"st1"_s);
    hosted.plugin.handleSystemResChgEvent(report(95, 0), u"st1"_s);
    hosted.plugin.handleSystemResChgEvent(report(95, 0), u"st2"_s);
    hosted.plugin.handleSystemResChgEvent(report(95, 0), QString());
    QCOMPARE(hosted.errorKeys(), QStringList({u"0_st1"_s, u"0_st2"_s, u"0_"_s}));
}

void tst_PluginSystemMonitor_EvtHandler::missingFiguresReadAsZero()
{
    HostedPlugin hosted;
    hosted.plugin.handleSystemResChgEvent(report(95, 95, {usage(u"en0"_s, 95)}), u"st1"_s);
    hosted.plugin.handleSystemResChgEvent(QVariantMap(), u"st1"_s);
    // Without a list there is nothing to say of the interface.
    QCOMPARE(hosted.errorKeys(), QStringList{u"2_st1_en0"_s});
    hosted.plugin.handleSystemResChgEvent(
        report(0, 0, {QVariantMap{{u"networkInterface"_s, u"en0"_s}}}), u"st1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList());
}

void tst_PluginSystemMonitor_EvtHandler::figuresAreConvertedToWholePercents_data()
{
    QTest::addColumn<QVariant>("figure");
    QTest::addColumn<bool>("isHigh");
    QTest::newRow("text") << QVariant(u"90"_s) << true;
    QTest::newRow("text below") << QVariant(u"89"_s) << false;
    QTest::newRow("no number") << QVariant(u"high"_s) << false;
    QTest::newRow("rounded up") << QVariant(89.5) << true;
    QTest::newRow("rounded down") << QVariant(89.4) << false;
    QTest::newRow("wide") << QVariant(qint64(90)) << true;
}

void tst_PluginSystemMonitor_EvtHandler::figuresAreConvertedToWholePercents()
{
    QFETCH(const QVariant, figure);
    QFETCH(const bool, isHigh);
    HostedPlugin hosted;
    hosted.plugin.handleSystemResChgEvent(report(figure, figure), u"st1"_s);
    QCOMPARE(hosted.errorKeys(), isHigh ? QStringList({u"0_st1"_s, u"1_st1"_s}) : QStringList());
}

void tst_PluginSystemMonitor_EvtHandler::networkEntriesAreJudgedInTheirOrder()
{
    HostedPlugin hosted;
    hosted.plugin.handleSystemResChgEvent(
        report(0, 0, {usage(u"en1"_s, 60), usage(u"en0"_s, 70), usage(u"en1"_s, 10)}), u"st1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList{u"2_st1_en0"_s});
    hosted.plugin.handleSystemResChgEvent(report(0, 0, {usage(u"en3"_s, 60), usage(u"en2"_s, 70)}),
                                          u"st1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList({u"2_st1_en0"_s, u"2_st1_en3"_s, u"2_st1_en2"_s}));
}

void tst_PluginSystemMonitor_EvtHandler::networkEntriesThatAreNoMapsReadAsNothing()
{
    HostedPlugin hosted;
    hosted.plugin.addSystemError(u"st1"_s, HighNetworkUsage, QString(), QString());
    hosted.plugin.handleSystemResChgEvent(report(0, 0, {u"en0"_s}), u"st1"_s);
    // An interface without a name, at zero.
    QCOMPARE(hosted.errorKeys(), QStringList());

    QVariantMap data = report(95, 0);
    data.insert(u"networkUsageList"_s, u"no list"_s);
    hosted.plugin.handleSystemResChgEvent(data, u"st1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList{u"0_st1"_s});
}

// The focused station's model

void tst_PluginSystemMonitor_EvtHandler::focusedStationsReportReachesTheModel()
{
    HostedPlugin hosted;
    hosted.plugin.setFocusStationResource(u"st1"_s);
    hosted.log.take();
    hosted.plugin.handleSystemResChgEvent(report(12, 34, {usage(u"en0"_s, 5, 1000)}), u"st1"_s);
    QCOMPARE(hosted.log.take(),
             QStringList{u"systemResourceChanged(12, 34, [{\"networkBandwidth\": 1000, "
                         "\"networkInterface\": \"en0\", \"networkPercentage\": 5}])"_s});
    QCOMPARE(newest(hosted, 0), u"12"_s);
    QCOMPARE(newest(hosted, 1), u"34"_s);
    QCOMPARE(newest(hosted, 2), u"5.0"_s);
}

void tst_PluginSystemMonitor_EvtHandler::otherStationsReportsDoNotReachTheModel_data()
{
    QTest::addColumn<QString>("station");
    QTest::newRow("other") << u"st2"_s;
    QTest::newRow("longer") << u"st10"_s;
    QTest::newRow("shorter") << u"st"_s;
    QTest::newRow("other case") << u"ST1"_s;
    QTest::newRow("none") << QString();
}

void tst_PluginSystemMonitor_EvtHandler::otherStationsReportsDoNotReachTheModel()
{
    QFETCH(const QString, station);
    HostedPlugin hosted;
    hosted.plugin.setFocusStationResource(u"st1"_s);
    hosted.log.take();
    hosted.plugin.handleSystemResChgEvent(report(95, 34, {usage(u"en0"_s, 5)}), station);
    QCOMPARE(hosted.errorKeys(), QStringList{u"0_"_s + station});
    QCOMPARE(hosted.log.take(), QStringList());
    QCOMPARE(newest(hosted, 0), u"0"_s);
    QCOMPARE(newest(hosted, 2), u"0"_s);
}

void tst_PluginSystemMonitor_EvtHandler::emptyFocusMatchesAnEmptySource()
{
    HostedPlugin hosted;
    hosted.plugin.handleSystemResChgEvent(report(1, 2), u"st1"_s);
    QCOMPARE(hosted.log.take(), QStringList());
    hosted.plugin.handleSystemResChgEvent(report(3, 4), QString());
    QCOMPARE(hosted.log.take(), QStringList{u"systemResourceChanged(3, 4, [])"_s});
    QCOMPARE(newest(hosted, 0), u"3"_s);
}

void tst_PluginSystemMonitor_EvtHandler::modelIsUpToDateWhenTheSignalComes()
{
    HostedPlugin hosted;
    QStringList seen;
    connect(&hosted.plugin, &PluginSystemMonitor::systemResourceChanged, this,
            [&] { seen.append(newest(hosted, 0)); });
    hosted.plugin.handleSystemResChgEvent(report(12, 0), QString());
    QCOMPARE(seen, QStringList{u"12"_s});
}

void tst_PluginSystemMonitor_EvtHandler::errorsAreUpToDateWhenTheModelMoves()
{
    HostedPlugin hosted;
    QStringList seen;
    connect(hosted.plugin.resourceModelControl->model(), &QAbstractItemModel::dataChanged, this,
            [&] { seen = hosted.errorKeys(); });
    hosted.plugin.handleSystemResChgEvent(report(95, 95, {usage(u"en0"_s, 95)}), QString());
    QCOMPARE(seen, QStringList({u"0_"_s, u"1_"_s, u"2__en0"_s}));
}

void tst_PluginSystemMonitor_EvtHandler::networkListIsPassedOnAsReceived()
{
    HostedPlugin hosted;
    const QVariantList list{QVariantMap{{u"networkInterface"_s, 7}, {u"speed"_s, u"fast"_s}},
                            u"no map"_s, QVariant()};
    QVariantList received;
    connect(&hosted.plugin, &PluginSystemMonitor::systemResourceChanged, this,
            [&](int, int, const QVariantList &networkList) { received = networkList; });
    hosted.plugin.handleSystemResChgEvent(report(0, 0, list), QString());
    QCOMPARE(received, list);
}

void tst_PluginSystemMonitor_EvtHandler::missingNetworkListIsPassedOnEmpty()
{
    HostedPlugin hosted;
    hosted.plugin.handleSystemResChgEvent(QVariantMap(), QString());
    QCOMPARE(hosted.log.take(), QStringList{u"systemResourceChanged(0, 0, [])"_s});
}

void tst_PluginSystemMonitor_EvtHandler::fractionsAreJudgedWholeButKept()
{
    HostedPlugin hosted;
    hosted.plugin.handleSystemResChgEvent(report(0, 0, {usage(u"en0"_s, 49.75)}), QString());
    QCOMPARE(hosted.errorKeys(), QStringList{u"2__en0"_s});
    QCOMPARE(newest(hosted, 2), u"49.75"_s);
    hosted.plugin.handleSystemResChgEvent(report(0, 0, {usage(u"en0"_s, 49.25)}), QString());
    QCOMPARE(hosted.errorKeys(), QStringList());
    QCOMPARE(newest(hosted, 2), u"49.25"_s);
}

// Focus

void tst_PluginSystemMonitor_EvtHandler::focusIsEmptyAtFirst()
{
    const HostedPlugin hosted;
    QCOMPARE(hosted.plugin.focusStationResource(), QString());
}

void tst_PluginSystemMonitor_EvtHandler::newFocusStartsTheModelOver()
{
    HostedPlugin hosted;
    hosted.plugin.handleSystemResChgEvent(report(12, 34, {usage(u"en0"_s, 5), usage(u"en1"_s, 6)}),
                                          QString());
    hosted.log.take();
    const QAbstractItemModel *model = hosted.plugin.resourceModelControl->model();
    QCOMPARE(model->rowCount(), 4);
    int rowsAtSignal = 0;
    connect(&hosted.plugin, &PluginSystemMonitor::focusStationResourceChanged, this,
            [&] { rowsAtSignal = model->rowCount(); });

    hosted.plugin.setFocusStationResource(u"st1"_s);
    QCOMPARE(hosted.log.take(), QStringList{u"focusStationResourceChanged(\"st1\")"_s});
    QCOMPARE(hosted.plugin.focusStationResource(), u"st1"_s);
    QCOMPARE(rowsAtSignal, 3);
    QCOMPARE(newest(hosted, 0), u"0"_s);
    // The rows of the interfaces are laid out anew.
    hosted.plugin.handleSystemResChgEvent(
        report(1, 2, {usage(u"a"_s, 1), usage(u"b"_s, 2), usage(u"c"_s, 3)}), u"st1"_s);
    QCOMPARE(model->rowCount(), 5);
}

void tst_PluginSystemMonitor_EvtHandler::sameFocusChangesNothing()
{
    HostedPlugin hosted;
    hosted.plugin.setFocusStationResource(QString());
    QCOMPARE(hosted.log.take(), QStringList());
    const QSignalSpy resets(hosted.plugin.resourceModelControl->model(),
                            &QAbstractItemModel::modelReset);
    hosted.plugin.setFocusStationResource(u"st1"_s);
    hosted.plugin.setFocusStationResource(u"st1"_s);
    QCOMPARE(hosted.log.take(), QStringList{u"focusStationResourceChanged(\"st1\")"_s});
    QCOMPARE(resets.size(), 1);
    // Ids that differ in case alone are two stations.
    hosted.plugin.setFocusStationResource(u"ST1"_s);
    QCOMPARE(hosted.log.take(), QStringList{u"focusStationResourceChanged(\"ST1\")"_s});
}

void tst_PluginSystemMonitor_EvtHandler::focusIsAProperty()
{
    HostedPlugin hosted;
    QVERIFY(hosted.plugin.setProperty("focusStationResource", u"st1"_s));
    QCOMPARE(hosted.plugin.property("focusStationResource"), QVariant(u"st1"_s));
    QCOMPARE(hosted.log.take(), QStringList{u"focusStationResourceChanged(\"st1\")"_s});
}

// The client's monitor

void tst_PluginSystemMonitor_EvtHandler::monitorsSamplesAreRelayed()
{
    HostedPlugin hosted;
    const auto monitor = QSharedPointer<ISystemResourceMonitor>::create();
    hosted.plugin.setSystemResourceMonitor(monitor);
    QCOMPARE(hosted.plugin.resourceMonitor, monitor);
    Q_EMIT monitor->resourceChanged(12, 34, {});
    Q_EMIT monitor->resourceChanged(12, 34, {{}});
    QCOMPARE(hosted.log.take(), QStringList(2, u"clientResourceChanged(12, 34)"_s));
}

void tst_PluginSystemMonitor_EvtHandler::samplesOfAnotherThreadAreRelayedInThePluginsOwn()
{
    HostedPlugin hosted;
    const auto monitor = QSharedPointer<ISystemResourceMonitor>::create();
    hosted.plugin.setSystemResourceMonitor(monitor);
    const QThread *relayThread = nullptr;
    connect(
        &hosted.plugin, &PluginSystemMonitor::clientResourceChanged, this,
        [&relayThread] { relayThread = QThread::currentThread(); }, Qt::DirectConnection);
    QThread thread;
    monitor->moveToThread(&thread);
    QMetaObject::invokeMethod(monitor.data(), [&monitor, &thread] {
        Q_EMIT monitor->resourceChanged(12, 34, {});
        thread.quit();
    });
    thread.start();
    QVERIFY(thread.wait());
    QCOMPARE(hosted.log.take(), QStringList());
    QCoreApplication::sendPostedEvents(&hosted.plugin);
    QCOMPARE(hosted.log.take(), QStringList{u"clientResourceChanged(12, 34)"_s});
    QCOMPARE(relayThread, hosted.plugin.thread());
}

void tst_PluginSystemMonitor_EvtHandler::replacedMonitorIsReleased()
{
    HostedPlugin hosted;
    const QWeakPointer<ISystemResourceMonitor> previous = hosted.plugin.resourceMonitor;
    QVERIFY(previous);
    hosted.plugin.setSystemResourceMonitor(QSharedPointer<ISystemResourceMonitor>::create());
    QVERIFY(!previous);
}

void tst_PluginSystemMonitor_EvtHandler::replacedMonitorHeldElsewhereIsStillRelayed()
{
    HostedPlugin hosted;
    const auto first = QSharedPointer<ISystemResourceMonitor>::create();
    hosted.plugin.setSystemResourceMonitor(first);
    hosted.plugin.setSystemResourceMonitor(QSharedPointer<ISystemResourceMonitor>::create());
    Q_EMIT first->resourceChanged(1, 2, {});
    QCOMPARE(hosted.log.take(), QStringList{u"clientResourceChanged(1, 2)"_s});
}

void tst_PluginSystemMonitor_EvtHandler::monitorInstalledTwiceIsRelayedTwice()
{
    HostedPlugin hosted;
    const auto monitor = QSharedPointer<ISystemResourceMonitor>::create();
    hosted.plugin.setSystemResourceMonitor(monitor);
    hosted.plugin.setSystemResourceMonitor(monitor);
    Q_EMIT monitor->resourceChanged(1, 2, {});
    QCOMPARE(hosted.log.take(), QStringList(2, u"clientResourceChanged(1, 2)"_s));
}

void tst_PluginSystemMonitor_EvtHandler::monitorMayBeTakenAway()
{
    HostedPlugin hosted;
    hosted.plugin.setSystemResourceMonitor({});
    QVERIFY(!hosted.plugin.resourceMonitor);
    QCOMPARE(hosted.log.take(), QStringList());
}

void tst_PluginSystemMonitor_EvtHandler::resourceModelIsHandedOut()
{
    HostedPlugin hosted;
    QCOMPARE(hosted.plugin.getSystemResourceModel(), hosted.plugin.resourceModelControl->model());
    QCOMPARE(hosted.plugin.getSystemResourceModel(), hosted.plugin.getSystemResourceModel());
}

// Capacity

void tst_PluginSystemMonitor_EvtHandler::capacityWarningIsPassedOn_data()
{
    QTest::addColumn<QVariantMap>("data");
    QTest::addColumn<QString>("signal");
    const QString name = u"serverName"_s;
    const QString percentage = u"virtualSizePercentage"_s;
    QTest::newRow("both") << QVariantMap{{name, u"Server"_s}, {percentage, 92.5}}
                          << u"notifyServerReachingLimited(\"Server\", 92.5)"_s;
    QTest::newRow("no percentage")
        << QVariantMap{{name, u"Server"_s}} << u"notifyServerReachingLimited(\"Server\", 0.0)"_s;
    QTest::newRow("no name") << QVariantMap{{percentage, 92.5}}
                             << u"notifyServerReachingLimited(\"\", 92.5)"_s;
    QTest::newRow("empty") << QVariantMap() << u"notifyServerReachingLimited(\"\", 0.0)"_s;
    QTest::newRow("above 100") << QVariantMap{{name, u"Server"_s}, {percentage, 250}}
                               << u"notifyServerReachingLimited(\"Server\", 250.0)"_s;
    QTest::newRow("negative") << QVariantMap{{name, u"Server"_s}, {percentage, -0.125}}
                              << u"notifyServerReachingLimited(\"Server\", -0.125)"_s;
    QTest::newRow("text") << QVariantMap{{name, 7}, {percentage, u"97.5"_s}}
                          << u"notifyServerReachingLimited(\"7\", 97.5)"_s;
}

void tst_PluginSystemMonitor_EvtHandler::capacityWarningIsPassedOn()
{
    QFETCH(const QVariantMap, data);
    QFETCH(const QString, signal);
    HostedPlugin hosted;
    const CollectedTrace trace;
    hosted.plugin.handleServerReachingLimitedEvent(data);
    QCOMPARE(hosted.log.take(), QStringList{signal});
    QCOMPARE(hosted.errorKeys(), QStringList());
    QCOMPARE(trace.lines(), QStringList());
}

void tst_PluginSystemMonitor_EvtHandler::everyCapacityWarningIsPassedOn()
{
    HostedPlugin hosted;
    const QVariantMap data{{u"serverName"_s, u"Server"_s}, {u"virtualSizePercentage"_s, 90}};
    hosted.plugin.handleServerReachingLimitedEvent(data);
    hosted.plugin.handleServerReachingLimitedEvent(data);
    QCOMPARE(hosted.log.take(), QStringList(2, u"notifyServerReachingLimited(\"Server\", 90.0)"_s));
}

void tst_PluginSystemMonitor_EvtHandler::capacityWarningThatIsNoMapIsDropped_data()
{
    addOtherTypes();
}

void tst_PluginSystemMonitor_EvtHandler::capacityWarningThatIsNoMapIsDropped()
{
    QFETCH(const QVariant, data);
    HostedPlugin hosted;
    const CollectedTrace trace;
    hosted.plugin.handleServerReachingLimitedEvent(data);
    QCOMPARE(trace.lines(),
             QStringList{u"2 handleServerReachingLimitedEvent, event data is invalid"_s});
    QCOMPARE(hosted.log.take(), QStringList());
}

QTEST_GUILESS_MAIN(tst_PluginSystemMonitor_EvtHandler)
#include "tst_PluginSystemMonitor_EvtHandler.moc"
