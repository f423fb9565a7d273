#include "ModelRoles.h"
#include "TestHost.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// Who ends first, and what is then still under way.
class tst_LifeAndDeath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pluginMayEndWhileItsTimersRun();
    void pluginMayEndBeforeItsAnswersCome();
    void pluginMayEndInTheMidstOfItsLife_data();
    void pluginMayEndInTheMidstOfItsLife();
    void pluginMayBeDeletedLaterByItsWatcher();
    void topologyModelMayEndFirst();
    void topologyModelMayEndWhileTheWalkIsDue();
    void otherPluginsMayEndFirst();
    void frameworkMayEndBeforeThePlugin();
    void hostMayReplaceTheOtherPlugins();
    void viewsMayEndAtAnyTime();
    void viewsMayOutliveThePlugin();
    void nextInstanceKnowsNothingOfTheFirst();
    void contextIsFreedOnce();
};

namespace {

QVariantMap report(int percentage)
{
    return {
        {u"cpuPercentage"_s, percentage},
        {u"memPercentage"_s, percentage},
        {u"networkUsageList"_s, QVariantList{QVariantMap{{u"networkInterface"_s, u"en0"_s},
                                                         {u"networkPercentage"_s, percentage}}}}};
}

/// Everything that a plug-in can hold: errors, snoozes, a focus, counts, running timers.
void fill(TestHost &host)
{
    QStandardItem *const station = host.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door"_s, false);
    host.object()->setProperty("focusStationResource", u"st1"_s);
    host.event(u"SystemResChanged"_s, report(99), u"st1"_s);
    host.invoke("initNodeStatusError");
    host.invoke("monitorVolumeStatus", u"st2"_s);
    host.respond(u"getSnoozeList"_s, QStringList{u"st3"_s});
    Q_EMIT host.topology.camStatusRetrievedChanged(true);
}

QSortFilterProxyModel *newView(TestHost &host, QObject *owner)
{
    return qobject_cast<QSortFilterProxyModel *>(
        host.ask<QObject *>("getSystemErrorSortFilterModel", owner));
}

} // namespace

void tst_LifeAndDeath::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_LifeAndDeath::pluginMayEndWhileItsTimersRun()
{
    TestHost host;
    fill(host);
    host.log.take();
    delete host.object();
    // Longer than the recount and the sampler would have waited.
    QTest::qWait(1500);
    QCOMPARE(host.log.take(), QStringList());
}

void tst_LifeAndDeath::pluginMayEndBeforeItsAnswersCome()
{
    TestHost host;
    host.plugin()->PluginServerConnected();
    host.ask<bool>("checkSupportSystemMonitor", u"st1"_s);
    host.ask<bool>("setSnooze", u"st1"_s, qlonglong(1), 4);
    // The host keeps what it was given for its answer.
    const std::unique_ptr<QString> context(
        static_cast<QString *>(host.framework.commands().at(1).context));
    delete host.object();
    QCOMPARE(*context, u"st1"_s);
}

void tst_LifeAndDeath::pluginMayEndInTheMidstOfItsLife_data()
{
    QTest::addColumn<int>("stage");
    QTest::newRow("loaded") << int(TestHost::Loaded);
    QTest::newRow("initialised") << int(TestHost::Initialised);
    QTest::newRow("paired") << int(TestHost::Paired);
}

void tst_LifeAndDeath::pluginMayEndInTheMidstOfItsLife()
{
    QFETCH(const int, stage);
    TestHost host(static_cast<TestHost::Stage>(stage));
    delete host.object();
    Q_EMIT host.topology.nodeStatusChanged(1, u"st1"_s, false);
    QCOMPARE(host.log.take(), QStringList());
}

void tst_LifeAndDeath::pluginMayBeDeletedLaterByItsWatcher()
{
    TestHost host;
    connect(host.errors(), &QAbstractItemModel::rowsInserted, host.object(), &QObject::deleteLater);
    fill(host);
    const QPointer<QObject> object = host.object();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!object);
}

void tst_LifeAndDeath::topologyModelMayEndFirst()
{
    TestHost host(TestHost::Initialised);
    auto model = std::make_unique<TopologyModel>();
    model->addStation(u"st1"_s, u"Lobby"_s, false);
    host.topology.model = model.get();
    host.plugin()->LoadPairPluginDone();
    host.invoke("initNodeStatusError");
    QCOMPARE(host.error(0, ErrorRole::TriggerDeviceName), QVariant(u"Lobby"_s));

    model.reset();
    host.invoke("initNodeStatusError");
    host.invoke("monitorVolumeStatus", u"st1"_s);
    QCOMPARE(host.error(1, ErrorRole::TriggerDeviceName), QVariant(u"Station: "_s));
}

void tst_LifeAndDeath::topologyModelMayEndWhileTheWalkIsDue()
{
    TestHost host(TestHost::Initialised);
    auto model = std::make_unique<TopologyModel>();
    model->addStation(u"st1"_s, u"Lobby"_s, false);
    host.topology.model = model.get();
    host.plugin()->LoadPairPluginDone();
    Q_EMIT host.topology.camStatusRetrievedChanged(true);
    model.reset();
    host.invoke("initNodeStatusError");
    QCOMPARE(host.errorKeys(), QStringList());
}

void tst_LifeAndDeath::otherPluginsMayEndFirst()
{
    TestHost host(TestHost::Initialised);
    CallLog log;
    {
        FakeTopologyPlugin topology(log);
        FakeRecordingPlugin recording(log);
        FakeOperationalLogPlugin operationalLog(log);
        topology.model = &host.topologyModel;
        host.framework.registerPlugin(PluginID::Topology, &topology);
        host.framework.registerPlugin(PluginID::RecordingManagement, &recording);
        host.framework.registerPlugin(PluginID::OperationalLog, &operationalLog);
        host.plugin()->LoadPairPluginDone();
    }
    host.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    host.invoke("initNodeStatusError");
    host.respond(u"setSnooze"_s, QVariantMap{{u"nodeID"_s, u"st1"_s}, {u"type"_s, 4}});
    QCOMPARE(host.errorKeys(), QStringList{u"4_st1"_s});
    QVERIFY(!log.lines().contains(u"reloadStorageUsageInfo \"st1\""_s));
    host.plugin()->LoadPairPluginDone();
}

void tst_LifeAndDeath::frameworkMayEndBeforeThePlugin()
{
    TestHost host(TestHost::Loaded);
    auto framework = std::make_unique<HandMadeFramework>(host.log);
    framework->registerPlugin(PluginID::SystemMonitor, host.object());
    framework->registerPlugin(PluginID::Topology, &host.topology);
    framework->registerPlugin(PluginID::RecordingManagement, &host.recording);
    QVERIFY(host.plugin()->InitialPluginBase(nullptr, framework->handle(), framework->framework()));
    host.plugin()->LoadPairPluginDone();
    fill(host);
    QVERIFY(!host.errorKeys().isEmpty());

    host.log.take();
    framework.reset();
    delete host.object();
    QCOMPARE(host.log.take(), QStringList());
}

void tst_LifeAndDeath::hostMayReplaceTheOtherPlugins()
{
    TestHost host;
    host.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    CallLog log;
    FakeRecordingPlugin recording(log);
    host.framework.registerPlugin(PluginID::RecordingManagement, &recording);
    host.invoke("initNodeStatusError");
    QCOMPARE(log.take(), QStringList{u"reloadStorageUsageInfo \"st1\""_s});
}

void tst_LifeAndDeath::viewsMayEndAtAnyTime()
{
    TestHost host;
    QObject owner;
    const QList<QSortFilterProxyModel *> views{newView(host, &owner), newView(host, &owner)};
    fill(host);
    delete views.first();
    host.invoke("removeStationError", QString());
    QCOMPARE(views.last()->rowCount(), 0);
    delete views.last();
    host.invoke("monitorVolumeStatus", u"st9"_s);
    QCOMPARE(host.errorKeys(), QStringList{u"5_st9"_s});
}

void tst_LifeAndDeath::viewsMayOutliveThePlugin()
{
    QObject owner;
    QSortFilterProxyModel *view = nullptr;
    {
        TestHost host;
        fill(host);
        view = newView(host, &owner);
        QVERIFY(view->rowCount() > 0);
    }
    QCOMPARE(view->rowCount(), 0);
    QMetaObject::invokeMethod(view, "setErrorCategory", Q_ARG(int, 1));
    QMetaObject::invokeMethod(view, "setFilterParentStationID", Q_ARG(QString, u"st1"_s));
    view->setFilterFixedString(u"st"_s);
    view->sort(0, Qt::AscendingOrder);
    QCOMPARE(view->rowCount(), 0);
}

void tst_LifeAndDeath::nextInstanceKnowsNothingOfTheFirst()
{
    {
        TestHost host;
        fill(host);
        host.invoke("updateStationErrorNumber");
    }
    TestHost host;
    QCOMPARE(host.errorKeys(), QStringList());
    QCOMPARE(host.resources()->rowCount(), 3);
    QCOMPARE(host.object()->property("focusStationResource"), QVariant(QString()));
    QCOMPARE(host.object()->property("stationErrorList"), QVariant(QVariantList()));
    host.invoke("monitorNodeStatus", 1, u"st3"_s, false);
    QCOMPARE(host.errorKeys(), QStringList{u"4_st3"_s});
}

void tst_LifeAndDeath::contextIsFreedOnce()
{
    TestHost host;
    const QString id = QString::number(7);
    QVERIFY(id.isDetached());
    host.ask<bool>("checkSupportSystemMonitor", id);
    void *const context = host.framework.commands().last().context;
    host.framework.forgetCommands();
    QVERIFY(!id.isDetached());
    // Other answers leave the context alone, whatever they carry.
    for (const QString &command : {u"setSnooze"_s, u"getSnoozeList"_s, u"other"_s, QString()})
        host.respond(command, {}, u"0"_s, context);
    QVERIFY(!id.isDetached());
    host.respond(u"isSupportSystemMonitor"_s, {}, u"0"_s, context);
    QVERIFY(id.isDetached());
}

QTEST_GUILESS_MAIN(tst_LifeAndDeath)
#include "tst_LifeAndDeath.moc"
