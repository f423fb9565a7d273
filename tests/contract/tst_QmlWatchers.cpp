#include "TestHost.h"

#include <QAbstractItemModelTester>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// Pages call the plug-in back from within the handlers of its signals and of its models'.
class tst_QmlWatchers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void handlerMayCallBack_data();
    void handlerMayCallBack();
    void handlerMayRemoveErrorsItself_data();
    void handlerMayRemoveErrorsItself();
};

namespace {

/// A page that acts in the handler of one signal. Its first view is there before the handler is,
/// the second comes later.
QByteArray page(const QString &target, const QString &handler, const QString &act)
{
    return uR"(
        import QtQml
        QtObject {
            id: page
            property int handled: 0
            property bool acts: true
            property var errors: plugin.getSystemErrorModel()
            property var resources: plugin.getSystemResourceModel()
            property var early: plugin.getSystemErrorSortFilterModel(page)
            property var late: null
            property var watcher: Connections {
                target: %1
                function %2() {
                    page.handled++;
                    if (!page.acts || page.handled > 20)
                        return;
                    page.acts = false;
                    %3;
                    page.acts = true;
                }
            }
            Component.onCompleted: late = plugin.getSystemErrorSortFilterModel(page)
        }
    )"_s.arg(target, handler, act)
        .toUtf8();
}

/// A host that shows a page.
struct Watched
{
    explicit Watched(const QByteArray &text)
    {
        QStandardItem *const station = host.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
        TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door"_s, false);
        TopologyModel::addCamera(station, u"st1/cam2"_s, u"Gate"_s, false);
        engine.rootContext()->setContextProperty(u"plugin"_s, host.object());
        QQmlComponent component(&engine);
        component.setData(text, QUrl());
        page.reset(component.create());
        if (!page)
            qFatal("%s", qPrintable(component.errorString()));
    }

    QAbstractItemModel *model(const char *name) const
    {
        return page->property(name).value<QAbstractItemModel *>();
    }

    TestHost host;
    QQmlEngine engine;
    std::unique_ptr<QObject> page;
};

QStringList signalsOfPlugin()
{
    return {u"onSystemResourceChanged"_s,       u"onFocusStationResourceChanged"_s,
            u"onStationErrorListChanged"_s,     u"onNotifySystemResourceUpdated"_s,
            u"onClientResourceChanged"_s,       u"onIsSupportSystemMonitor"_s,
            u"onNotifyServerReachingLimited"_s, u"onSetSnoozeResponse"_s};
}

QStringList signalsOfResources()
{
    return {u"onModelAboutToBeReset"_s,   u"onModelReset"_s,   u"onColumnsAboutToBeInserted"_s,
            u"onRowsAboutToBeInserted"_s, u"onRowsInserted"_s, u"onDataChanged"_s};
}

/// Every act in the handler of every signal.
void addRows(const QList<std::pair<QString, QStringList>> &signalsOf,
             const QList<std::pair<QString, QString>> &acts)
{
    for (const auto &[target, handlers] : signalsOf) {
        for (const QString &handler : handlers) {
            for (const auto &[name, act] : acts) {
                QTest::addRow("%s, %s, %s", qPrintable(target), qPrintable(handler),
                              qPrintable(name))
                    << target << handler << act;
            }
        }
    }
}

/// Causes the signals that no change of a model comes with: answers, warnings, samples.
void causeAnswers(TestHost &host)
{
    host.event(u"ServerReachingLimited"_s,
               QVariantMap{{u"serverName"_s, u"Main"_s}, {u"virtualSizePercentage"_s, 93.5}});
    host.respond(u"setSnooze"_s, QVariantMap{{u"nodeID"_s, u"st1/cam1"_s}, {u"type"_s, 3}});
    host.ask<bool>("checkSupportSystemMonitor", u"st1"_s);
    host.respond(u"isSupportSystemMonitor"_s, {}, u"0"_s, host.framework.commands().last().context);
    // As the sampler has it emitted, which would take a second each time.
    host.invoke("clientResourceChanged", 10, 20);
}

void cause(TestHost &host)
{
    const QVariantList networks{QVariantMap{{u"networkInterface"_s, u"en0"_s}},
                                QVariantMap{{u"networkInterface"_s, u"en1"_s}}};
    const auto report = [&](int percentage) {
        host.event(u"SystemResChanged"_s,
                   QVariantMap{{u"cpuPercentage"_s, percentage},
                               {u"memPercentage"_s, percentage},
                               {u"networkUsageList"_s, networks}},
                   u"st1"_s);
    };
    host.object()->setProperty("focusStationResource", u"st1"_s);
    report(95);
    host.invoke("monitorVolumeStatus", u"st2"_s);
    host.invoke("monitorNodeStatus", 0, u"st1/cam1"_s, false);
    causeAnswers(host);
    report(5);
    host.invoke("monitorInsufficientRecordingDays", u"st2"_s, u"A"_s, u"g"_s);
    host.invoke("monitorInsufficientRecordingDays", u"st2"_s, u"B"_s, u"g"_s);
    host.invoke("removeVolumeError", u"st2"_s);
    host.object()->setProperty("focusStationResource", u"st2"_s);
    host.invoke("updateStationErrorNumber");
    host.plugin()->PluginServerDisconnected();
    host.invoke("monitorVolumeStatus", u"st3"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

void tst_QmlWatchers::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_QmlWatchers::handlerMayCallBack_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("handler");
    QTest::addColumn<QString>("act");

    const QList<std::pair<QString, QStringList>> signalsOf{
        {u"plugin"_s, signalsOfPlugin()},
        {u"page.errors"_s,
         {u"onColumnsAboutToBeInserted"_s, u"onRowsAboutToBeInserted"_s, u"onRowsInserted"_s,
          u"onRowsAboutToBeRemoved"_s, u"onRowsRemoved"_s, u"onDataChanged"_s}},
        {u"page.early"_s,
         {u"onRowsAboutToBeInserted"_s, u"onRowsInserted"_s, u"onRowsAboutToBeRemoved"_s,
          u"onRowsRemoved"_s, u"onDataChanged"_s}},
        {u"page.resources"_s, signalsOfResources()},
    };
    const QList<std::pair<QString, QString>> acts{
        {u"walks"_s, u"plugin.initNodeStatusError()"_s},
        {u"changes the focus"_s, u"plugin.focusStationResource = 'st9'"_s},
        {u"goes back and forth"_s,
         u"plugin.focusStationResource = 'st8'; plugin.focusStationResource = 'st1'"_s},
        {u"asks for reconnection"_s, u"plugin.reconnectDisconnectCameras()"_s},
        {u"snoozes"_s, u"plugin.setSnooze('st1/cam1', 1, 3)"_s},
        {u"makes a view"_s, u"plugin.getSystemErrorSortFilterModel(page)"_s},
        {u"destroys its view"_s, u"if (page.early) page.early.destroy()"_s},
    };
    addRows(signalsOf, acts);
}

void tst_QmlWatchers::handlerMayCallBack()
{
    QFETCH(const QString, target);
    QFETCH(const QString, handler);
    QFETCH(const QString, act);
    Watched watched(page(target, handler, act));
    auto *const late = watched.model("late");
    QVERIFY(late);
    const QAbstractItemModelTester tester(late);

    cause(watched.host);
    cause(watched.host);
    QVERIFY(watched.page->property("handled").toInt() > 0);
    QCOMPARE(late->rowCount(), watched.host.errors()->rowCount());
    const auto *resources = watched.model("resources");
    QVERIFY(resources->rowCount() == 3 || resources->rowCount() == 4);
}

void tst_QmlWatchers::handlerMayRemoveErrorsItself_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("handler");
    QTest::addColumn<QString>("act");

    // Not when rows come or go, nor before: no Qt model can lose rows while it announces a change,
    // and no view can hear of the removal before it has heard of the change. QML's handlers are
    // told before the views, whichever were connected first.
    const QList<std::pair<QString, QStringList>> signalsOf{
        {u"plugin"_s, signalsOfPlugin()},
        {u"page.errors"_s, {u"onDataChanged"_s}},
        {u"page.early"_s, {u"onDataChanged"_s}},
        {u"page.resources"_s, signalsOfResources()},
    };
    const QList<std::pair<QString, QString>> acts{
        {u"the first"_s, u"page.errors.removeRow(0)"_s},
        {u"all"_s, u"page.errors.removeRows(0, page.errors.rowCount())"_s},
        {u"the first shown"_s, u"page.early.removeRow(0)"_s},
        {u"all shown"_s, u"page.early.removeRows(0, page.early.rowCount())"_s},
    };
    addRows(signalsOf, acts);
}

void tst_QmlWatchers::handlerMayRemoveErrorsItself()
{
    QFETCH(const QString, target);
    QFETCH(const QString, handler);
    QFETCH(const QString, act);
    Watched watched(page(target, handler, act));
    TestHost &host = watched.host;
    auto *const late = watched.model("late");
    QVERIFY(late);
    const QAbstractItemModelTester tester(late);
    cause(host);
    cause(host);
    QVERIFY(watched.page->property("handled").toInt() > 0);
    QCOMPARE(late->rowCount(), host.errors()->rowCount());

    // The plug-in knows what is gone and what is left.
    watched.page->setProperty("acts", false);
    for (const QString &id : {u"st2"_s, u"st3"_s, u"st3"_s})
        host.invoke("monitorVolumeStatus", id);
    QCOMPARE(host.errorKeys().count(u"5_st2"_s), 1);
    QCOMPARE(host.errorKeys().count(u"5_st3"_s), 1);
}

QTEST_GUILESS_MAIN(tst_QmlWatchers)
#include "tst_QmlWatchers.moc"
