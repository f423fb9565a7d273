#include "HostedPlugin.h"
#include "ISystemResourceMonitor.h"
#include "SystemErrorModel.h"
#include "SystemResourceModelControl.h"
#include "SystemResourceMonitor.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QTest>

#include <functional>
#include <memory>

using namespace Qt::Literals::StringLiterals;

/// Who is told of a change may call back at once: no such call may crash the plug-in or leave its
/// lists and its indexes apart.
class tst_PluginSystemMonitor_Reentrancy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void walkEndsWithItsTopology_data();
    void walkEndsWithItsTopology();
    void walkEndsWithTheStationThatItIsIn();
    void walkEndsWhenAnotherTopologyIsPaired();
    void walkGoesOnInATopologyThatShrinks();
    void nodeReportedAsItComesHasItsName();
    void nodeReportedAsItGoesIsForgotten();

    void errorReportedAgainByAWatcherIsListedOnce();
    void errorClearedByAWatcherLeavesNoKey();
    void errorRaisedInPlaceOfAClearedOneKeepsItsKey();
    void errorRaisedInPlaceOfAClearedOneIsNotRemovedWithIt();
    void removalOrderedDuringARemovalFollowsIt_data();
    void removalOrderedDuringARemovalFollowsIt();
    void errorRaisedDuringItsRemovalStays();
    void removalByOthersMayOrderAnother();
    void errorRaisedByAWatcherOfAnotherIsListedWithItsKey();
    void errorClearedAsAnotherIsAboutToComeIsCleared();
    void watcherMayBeConnectedBeforeTheViews_data();
    void watcherMayBeConnectedBeforeTheViews();

    void focusChangedByAWatcherStartsTheModelOver_data();
    void focusChangedByAWatcherStartsTheModelOver();
    void resourceRowRemovedByAWatcherIsLeftAlone();
    void reportSentByAWatcherKeepsTheLayout();
    void historyThatOthersEmptiedGrowsAgain();
    void bareResourceRowIsFilled();
    void resourceModelWithoutColumnsStaysAsItIs();
    void samplerMayBeReplacedByItsWatcher();

    void everythingIsHarmlessBeforeInitialisation();
    void initialisationAgainStartsOver();

    void everyWatcherMayDoEverything_data();
    void everyWatcherMayDoEverything();
};

namespace {

using Model = QAbstractItemModel;

QVariantMap usage(const QString &interface, double percentage)
{
    return {{u"networkInterface"_s, interface}, {u"networkPercentage"_s, percentage}};
}

QVariantMap report(int percentage, const QVariantList &networks)
{
    return {{u"cpuPercentage"_s, percentage},
            {u"memPercentage"_s, percentage},
            {u"networkUsageList"_s, networks}};
}

const QVariantList twoNetworks{usage(u"en0"_s, 10), usage(u"en1"_s, 20)};

/// A plug-in whose topology model can be destroyed.
struct Paired
{
    Paired()
    {
        hosted.topology.model = topology.get();
        hosted.plugin.LoadPairPluginDone();
        hosted.log.take();
    }

    void onInserted(const std::function<void()> &act)
    {
        QObject::connect(hosted.plugin.errorModel, &Model::rowsInserted, &hosted.plugin, act);
    }

    std::unique_ptr<TopologyModel> topology = std::make_unique<TopologyModel>();
    HostedPlugin hosted{HostedPlugin::Initialised};
};

/// What is wrong between the error list, its index and the counts; empty when all agree.
QString disagreement(TestedPlugin &plugin)
{
    QMap<QString, int> counts;
    QSet<QString> keys;
    for (int row = 0; row < plugin.errorModel->rowCount(); ++row) {
        const QModelIndex error = plugin.errorModel->index(row, 0);
        const QString key = error.data(SystemErrorModel::UniqueIDRole).toString();
        if (keys.contains(key))
            return u"listed twice: "_s + key;
        keys.insert(key);
        const auto type =
            static_cast<ErrorType>(error.data(SystemErrorModel::ErrorTypeRole).toInt());
        const bool isCamera = type == CameraDisconnected;
        const QString id =
            error.data(isCamera ? SystemErrorModel::DeviceIDRole : SystemErrorModel::StationIDRole)
                .toString();
        const QString subId = type == HighNetworkUsage
                                  ? error.data(SystemErrorModel::DeviceIDRole).toString()
                                  : QString();
        if (plugin.existError(type, id, subId) != error)
            return u"not found: "_s + key;
        ++counts[error.data(SystemErrorModel::StationIDRole).toString()];
    }

    plugin.invoke("updateStationErrorNumber");
    QVariantList expected;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        expected.append(QVariantMap{{u"stationID"_s, it.key()}, {u"errorNumber"_s, it.value()}});
    return plugin.stationErrors == expected ? QString() : u"counts differ"_s;
}

QList<int> resourceTypes(const QAbstractItemModel &model)
{
    QList<int> types;
    for (int row = 0; row < model.rowCount(); ++row)
        types.append(model.index(row, 0).data(SystemResourceModelItem::TypeRole).toInt());
    return types;
}

/// Whether the rows are laid out as they should be and have their full histories.
bool isWellLaidOut(const QAbstractItemModel &model)
{
    const QList<int> types = resourceTypes(model);
    if (types.size() < 3 || types.mid(0, 3) != QList<int>{0, 1, 2}
        || types.count(2) != types.size() - 2)
        return false;
    QSet<QString> interfaces;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex resource = model.index(row, 0);
        if (resource.data(SystemResourceModelItem::UsageListRole).toList().size() != 60)
            return false;
        if (row >= 2)
            interfaces.insert(resource.data(SystemResourceModelItem::SubtitleRole).toString());
    }
    return interfaces.size() == types.size() - 2;
}

} // namespace

void tst_PluginSystemMonitor_Reentrancy::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

// The walk

void tst_PluginSystemMonitor_Reentrancy::walkEndsWithItsTopology_data()
{
    QTest::addColumn<QString>("moment");
    QTest::newRow("a station is listed") << u"listed"_s;
    QTest::newRow("a station's storage is reloaded") << u"reloaded"_s;
}

void tst_PluginSystemMonitor_Reentrancy::walkEndsWithItsTopology()
{
    QFETCH(const QString, moment);
    Paired paired;
    QStandardItem *const station = paired.topology->addStation(u"st1"_s, u"Lobby"_s, false);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door"_s, false);
    paired.topology->addStation(u"st2"_s, u"Hall"_s, false);
    if (moment == u"listed"_s)
        paired.onInserted([&] { paired.topology.reset(); });
    else
        paired.hosted.recording.onReload = [&] { paired.topology.reset(); };

    paired.hosted.plugin.initNodeStatusError();
    QCOMPARE(paired.hosted.errorKeys(), QStringList{u"4_st1"_s});
    paired.hosted.plugin.initNodeStatusError();
    QCOMPARE(paired.hosted.errorKeys(), QStringList{u"4_st1"_s});
}

void tst_PluginSystemMonitor_Reentrancy::walkEndsWithTheStationThatItIsIn()
{
    Paired paired;
    QStandardItem *const station = paired.topology->addStation(u"st1"_s, u"Lobby"_s);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door"_s, false);
    TopologyModel::addCamera(station, u"st1/cam2"_s, u"Gate"_s, false);
    paired.topology->addStation(u"st2"_s, u"Hall"_s, false);
    paired.onInserted([&] {
        if (paired.topology->top()->rowCount() == 2)
            paired.topology->top()->removeRow(0);
    });

    paired.hosted.plugin.initNodeStatusError();
    // The second station has taken the first one's place, which was visited already.
    QCOMPARE(paired.hosted.errorKeys(), QStringList{u"3_st1/cam1"_s});
}

void tst_PluginSystemMonitor_Reentrancy::walkEndsWhenAnotherTopologyIsPaired()
{
    Paired paired;
    for (const QString &id : {u"st1"_s, u"st2"_s})
        paired.topology->addStation(id, id, false);
    TopologyModel other;
    other.addStation(u"st3"_s, u"Yard"_s, false);
    other.addStation(u"st4"_s, u"Dock"_s, false);
    paired.onInserted([&] {
        if (paired.hosted.topology.model != &other) {
            paired.hosted.topology.model = &other;
            paired.hosted.plugin.LoadPairPluginDone();
        }
    });

    paired.hosted.plugin.initNodeStatusError();
    QCOMPARE(paired.hosted.errorKeys(), QStringList{u"4_st1"_s});
    paired.hosted.plugin.initNodeStatusError();
    QCOMPARE(paired.hosted.errorKeys(), QStringList({u"4_st1"_s, u"4_st3"_s, u"4_st4"_s}));
}

void tst_PluginSystemMonitor_Reentrancy::walkGoesOnInATopologyThatShrinks()
{
    Paired paired;
    for (const QString &id : {u"st1"_s, u"st2"_s, u"st3"_s})
        TopologyModel::addCamera(paired.topology->addStation(id, id, false), id + u"/cam"_s, id,
                                 false);
    paired.hosted.recording.onReload = [&] {
        if (paired.topology->top()->rowCount() == 3)
            paired.topology->top()->removeRow(0);
    };
    paired.hosted.plugin.initNodeStatusError();
    QCOMPARE(paired.hosted.errorKeys(), QStringList({u"4_st1"_s, u"4_st3"_s, u"3_st3/cam"_s}));
}

void tst_PluginSystemMonitor_Reentrancy::nodeReportedAsItComesHasItsName()
{
    HostedPlugin hosted;
    connect(&hosted.topologyModel, &Model::rowsInserted, this,
            [&] { Q_EMIT hosted.topology.nodeStatusChanged(1, u"st2"_s, false); });
    QCOMPARE(hosted.plugin.findDeviceName(u"st2"_s), QString());
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    hosted.plugin.clearSystemErrorModel();
    hosted.topologyModel.addStation(u"st2"_s, u"Hall"_s);
    QCOMPARE(hosted.plugin.errorModel->index(0, 0).data(SystemErrorModel::TriggerDeviceNameRole),
             QVariant(u"Station: Hall"_s));
}

void tst_PluginSystemMonitor_Reentrancy::nodeReportedAsItGoesIsForgotten()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    hosted.topologyModel.addStation(u"st2"_s, u"Hall"_s);
    // The first name that is looked up at all.
    connect(&hosted.topologyModel, &Model::rowsAboutToBeRemoved, this,
            [&] { Q_EMIT hosted.topology.nodeStatusChanged(1, u"st1"_s, false); });
    hosted.topologyModel.top()->removeRow(0);
    QCOMPARE(hosted.plugin.errorModel->index(0, 0).data(SystemErrorModel::TriggerDeviceNameRole),
             QVariant(u"Station: Lobby"_s));
    QCOMPARE(hosted.plugin.findDeviceName(u"st1"_s), QString());
    QCOMPARE(hosted.plugin.findDeviceName(u"st2"_s), u"Hall"_s);
}

// The error list

void tst_PluginSystemMonitor_Reentrancy::errorReportedAgainByAWatcherIsListedOnce()
{
    HostedPlugin hosted;
    connect(hosted.plugin.errorModel, &Model::rowsInserted, this,
            [&] { Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam1"_s, false); });
    Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList{u"3_st1/cam1"_s});
    QCOMPARE(disagreement(hosted.plugin), QString());
}

void tst_PluginSystemMonitor_Reentrancy::errorClearedByAWatcherLeavesNoKey()
{
    HostedPlugin hosted;
    const auto watch = connect(hosted.plugin.errorModel, &Model::rowsInserted, this, [&] {
        Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam1"_s, true);
    });
    Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    QCOMPARE(hosted.errorKeys(), QStringList());
    QVERIFY(!hosted.plugin.lists(CameraDisconnected, u"st1/cam1"_s));
    disconnect(watch);
    Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    QVERIFY(hosted.plugin.lists(CameraDisconnected, u"st1/cam1"_s));
}

void tst_PluginSystemMonitor_Reentrancy::errorRaisedInPlaceOfAClearedOneKeepsItsKey()
{
    HostedPlugin hosted;
    bool isFirst = true;
    connect(hosted.plugin.errorModel, &Model::rowsInserted, this, [&] {
        if (!std::exchange(isFirst, false))
            return;
        // The new items are likely to stand where the first one stood in memory.
        hosted.plugin.clearSystemErrorModel();
        for (int i = 0; i < 20; ++i)
            hosted.plugin.invoke("monitorVolumeStatus", QString::number(i));
    });
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    QCOMPARE(hosted.errorKeys().size(), 20);
    QVERIFY(!hosted.plugin.lists(VolumeDisconnected, u"st1"_s));
    QCOMPARE(disagreement(hosted.plugin), QString());
}

void tst_PluginSystemMonitor_Reentrancy::errorRaisedInPlaceOfAClearedOneIsNotRemovedWithIt()
{
    HostedPlugin hosted;
    for (const QString &id : {u"st1"_s, u"st1/a"_s, u"st1/b"_s})
        hosted.plugin.invoke("monitorVolumeStatus", id);
    bool isFirst = true;
    connect(hosted.plugin.errorModel, &Model::rowsRemoved, this, [&] {
        if (!std::exchange(isFirst, false))
            return;
        hosted.plugin.clearSystemErrorModel();
        for (int i = 0; i < 20; ++i)
            hosted.plugin.invoke("monitorVolumeStatus", QString::number(i));
    });
    Q_EMIT hosted.topology.stationRemoved(u"st1"_s);
    QCOMPARE(hosted.errorKeys().size(), 20);
    QCOMPARE(disagreement(hosted.plugin), QString());
}

void tst_PluginSystemMonitor_Reentrancy::removalOrderedDuringARemovalFollowsIt_data()
{
    QTest::addColumn<int>("removed");
    QTest::addColumn<bool>("bySignalOfAView");
    for (const int removed : {0, 1, 2}) {
        QTest::addRow("row %d, watched in the list", removed) << removed << false;
        QTest::addRow("row %d, watched in a view", removed) << removed << true;
    }
}

void tst_PluginSystemMonitor_Reentrancy::removalOrderedDuringARemovalFollowsIt()
{
    QFETCH(const int, removed);
    QFETCH(const bool, bySignalOfAView);
    HostedPlugin hosted;
    TestedPlugin &plugin = hosted.plugin;
    QObject owner;
    const std::unique_ptr<QAbstractItemModelTester> tester(
        new QAbstractItemModelTester(plugin.errorModel));
    auto *view =
        qobject_cast<QSortFilterProxyModel *>(plugin.getSystemErrorSortFilterModel(&owner));
    const QStringList ids{u"a"_s, u"b"_s, u"c"_s};
    for (const QString &id : ids)
        plugin.invoke("monitorVolumeStatus", id);
    QCOMPARE(view->rowCount(), 3);

    // A view removes its row while the list only announces that it will.
    const auto clear = [&] { plugin.PluginServerDisconnected(); };
    if (bySignalOfAView)
        connect(view, &Model::rowsRemoved, this, clear);
    else
        connect(plugin.errorModel, &Model::rowsAboutToBeRemoved, this, clear);
    plugin.invoke("removeVolumeError", ids.at(removed));
    QCOMPARE(hosted.errorKeys(), QStringList());
    QCOMPARE(view->rowCount(), 0);
    QCOMPARE(disagreement(plugin), QString());
}

void tst_PluginSystemMonitor_Reentrancy::errorRaisedDuringItsRemovalStays()
{
    HostedPlugin hosted;
    QObject owner;
    const auto &view =
        *qobject_cast<QAbstractItemModel *>(hosted.plugin.getSystemErrorSortFilterModel(&owner));
    Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    QCOMPARE(view.rowCount(), 1);
    const auto watch = connect(&view, &Model::rowsRemoved, &view, [&] {
        Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    });
    Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam1"_s, true);
    disconnect(watch);
    QCOMPARE(hosted.errorKeys(), QStringList{u"3_st1/cam1"_s});
    QCOMPARE(view.rowCount(), 1);
    QCOMPARE(disagreement(hosted.plugin), QString());
}

void tst_PluginSystemMonitor_Reentrancy::removalByOthersMayOrderAnother()
{
    HostedPlugin hosted;
    TestedPlugin &plugin = hosted.plugin;
    for (const QString &id : {u"a"_s, u"b"_s, u"c"_s})
        plugin.invoke("monitorVolumeStatus", id);
    connect(plugin.errorModel, &Model::rowsAboutToBeRemoved, this,
            [&] { plugin.invoke("removeVolumeError", u"a"_s); });
    plugin.errorModel->removeRow(2);
    QTRY_COMPARE(hosted.errorKeys(), QStringList{u"5_b"_s});
    QCOMPARE(disagreement(plugin), QString());
}

void tst_PluginSystemMonitor_Reentrancy::errorRaisedByAWatcherOfAnotherIsListedWithItsKey()
{
    HostedPlugin hosted;
    connect(hosted.plugin.errorModel, &Model::rowsAboutToBeInserted, this,
            [&] { hosted.plugin.invoke("monitorVolumeStatus", u"st9"_s); });
    hosted.plugin.invoke("monitorVolumeStatus", u"st1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList({u"5_st1"_s, u"5_st9"_s}));
    QCOMPARE(disagreement(hosted.plugin), QString());
}

void tst_PluginSystemMonitor_Reentrancy::errorClearedAsAnotherIsAboutToComeIsCleared()
{
    HostedPlugin hosted;
    for (const QString &id : {u"a"_s, u"b"_s, u"c"_s})
        hosted.plugin.invoke("monitorVolumeStatus", id);
    bool isFirst = true;
    connect(hosted.plugin.errorModel, &Model::rowsAboutToBeInserted, this, [&] {
        if (!std::exchange(isFirst, false))
            return;
        hosted.plugin.PluginServerDisconnected();
        hosted.plugin.invoke("monitorVolumeStatus", u"e"_s);
        hosted.plugin.invoke("removeVolumeError", u"e"_s);
        hosted.plugin.invoke("monitorVolumeStatus", u"f"_s);
    });
    hosted.plugin.invoke("monitorVolumeStatus", u"d"_s);
    // What the watcher orders follows, in its order.
    QCOMPARE(hosted.errorKeys(), QStringList{u"5_f"_s});
    QCOMPARE(disagreement(hosted.plugin), QString());
}

void tst_PluginSystemMonitor_Reentrancy::watcherMayBeConnectedBeforeTheViews_data()
{
    QTest::addColumn<QString>("act");
    QTest::newRow("raises") << u"raises"_s;
    QTest::newRow("clears") << u"clears"_s;
    QTest::newRow("snoozes") << u"snoozes"_s;
}

void tst_PluginSystemMonitor_Reentrancy::watcherMayBeConnectedBeforeTheViews()
{
    QFETCH(const QString, act);
    HostedPlugin hosted;
    TestedPlugin &plugin = hosted.plugin;
    const auto watch = [&] {
        if (act == u"raises"_s)
            plugin.invoke("monitorVolumeStatus", u"st9"_s);
        else if (act == u"clears"_s)
            plugin.PluginServerDisconnected();
        else
            hosted.event(u"SnoozeError"_s,
                         QVariantMap{{u"nodeID"_s, u"st1/cam1"_s}, {u"type"_s, 3}});
    };
    connect(plugin.errorModel, &Model::rowsInserted, this, watch);
    connect(plugin.errorModel, &Model::rowsRemoved, this, watch);
    connect(plugin.errorModel, &Model::dataChanged, this, watch);

    QObject owner;
    auto *view = qobject_cast<Model *>(plugin.getSystemErrorSortFilterModel(&owner));
    const QAbstractItemModelTester tester(view);
    Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam2"_s, false);
    plugin.invoke("monitorInsufficientRecordingDays", u"st2"_s, u"A"_s, QString());
    plugin.invoke("monitorInsufficientRecordingDays", u"st2"_s, u"B"_s, QString());
    Q_EMIT hosted.topology.nodeStatusChanged(0, u"st1/cam2"_s, true);
    QCOMPARE(view->rowCount(), plugin.errorModel->rowCount());
    QCOMPARE(disagreement(plugin), QString());
}

// The resource model

void tst_PluginSystemMonitor_Reentrancy::focusChangedByAWatcherStartsTheModelOver_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<int>("time");
    for (int time = 1; time <= 6; ++time)
        QTest::addRow("change of data, %d", time) << QByteArray("dataChanged") << time;
    for (int time = 1; time <= 2; ++time)
        QTest::addRow("new row, %d", time) << QByteArray("rowsInserted") << time;
    QTest::newRow("about to reset") << QByteArray("modelAboutToBeReset") << 1;
    QTest::newRow("reset") << QByteArray("modelReset") << 1;
}

void tst_PluginSystemMonitor_Reentrancy::focusChangedByAWatcherStartsTheModelOver()
{
    QFETCH(const QByteArray, signal);
    QFETCH(const int, time);
    HostedPlugin hosted;
    TestedPlugin &plugin = hosted.plugin;
    QStandardItemModel *const model = plugin.resourceModelControl->model();
    int count = 0;
    const auto act = [&] {
        if (++count == time)
            plugin.setFocusStationResource(u"st2"_s);
    };
    if (signal == "dataChanged")
        connect(model, &Model::dataChanged, this, act);
    else if (signal == "rowsInserted")
        connect(model, &Model::rowsInserted, this, act);
    else if (signal == "modelReset")
        connect(model, &Model::modelReset, this, act);
    else
        connect(model, &Model::modelAboutToBeReset, this, act);

    plugin.setFocusStationResource(u"st1"_s);
    hosted.event(u"SystemResChanged"_s, report(10, twoNetworks), u"st1"_s);
    hosted.event(u"SystemResChanged"_s, report(10, twoNetworks), u"st1"_s);
    QVERIFY(count >= time);
    QCOMPARE(plugin.focusStationId, u"st2"_s);

    hosted.event(u"SystemResChanged"_s, report(20, {usage(u"lan"_s, 30)}), u"st2"_s);
    QCOMPARE(resourceTypes(*model), QList<int>({0, 1, 2}));
    QCOMPARE(model->index(2, 0).data(SystemResourceModelItem::SubtitleRole).toString(), u"lan"_s);
    QVERIFY(isWellLaidOut(*model));
    for (int row = 0; row < 3; ++row) {
        QVariantList history =
            model->index(row, 0).data(SystemResourceModelItem::UsageListRole).toList();
        QCOMPARE(history.takeLast().toInt(), row < 2 ? 20 : 30);
        QCOMPARE(history, QVariantList(59, 0));
    }
}

void tst_PluginSystemMonitor_Reentrancy::resourceRowRemovedByAWatcherIsLeftAlone()
{
    HostedPlugin hosted;
    QStandardItemModel *const model = hosted.plugin.resourceModelControl->model();
    hosted.event(u"SystemResChanged"_s, report(10, twoNetworks));
    connect(model, &Model::dataChanged, this, [model](const QModelIndex &index) {
        if (index.row() >= 2)
            model->removeRow(index.row());
    });
    hosted.event(u"SystemResChanged"_s, report(10, {usage(u"en0"_s, 50), usage(u"en1"_s, 50)}));
    QCOMPARE(resourceTypes(*model), QList<int>({0, 1}));
}

void tst_PluginSystemMonitor_Reentrancy::reportSentByAWatcherKeepsTheLayout()
{
    HostedPlugin hosted;
    QStandardItemModel &model = *hosted.plugin.resourceModelControl->model();
    const QAbstractItemModelTester tester(&model);
    bool isFirst = true;
    connect(&model, &Model::dataChanged, &model, [&] {
        if (std::exchange(isFirst, false))
            hosted.event(u"SystemResChanged"_s, report(10, twoNetworks));
    });
    hosted.event(u"SystemResChanged"_s, report(20, twoNetworks));
    QCOMPARE(resourceTypes(model), QList<int>({0, 1, 2, 2}));
    QVERIFY(isWellLaidOut(model));
}

void tst_PluginSystemMonitor_Reentrancy::historyThatOthersEmptiedGrowsAgain()
{
    HostedPlugin hosted;
    QStandardItemModel *const model = hosted.plugin.resourceModelControl->model();
    model->setData(model->index(0, 0), QVariantList(), SystemResourceModelItem::UsageListRole);
    model->setData(model->index(1, 0), QVariant(), SystemResourceModelItem::UsageListRole);
    hosted.event(u"SystemResChanged"_s, report(20, {}));
    hosted.event(u"SystemResChanged"_s, report(10, {}));
    for (int row = 0; row < 2; ++row) {
        QCOMPARE(model->index(row, 0).data(SystemResourceModelItem::UsageListRole).toList(),
                 QVariantList{10});
    }
}

void tst_PluginSystemMonitor_Reentrancy::bareResourceRowIsFilled()
{
    HostedPlugin hosted;
    QStandardItemModel *const model = hosted.plugin.resourceModelControl->model();
    model->insertRow(3);
    QVERIFY(!model->item(3));
    hosted.event(u"SystemResChanged"_s, report(10, {}));
    // A row without a type counts as the CPU's.
    QCOMPARE(model->index(3, 0).data(SystemResourceModelItem::UsageListRole).toList(),
             QVariantList{10});
}

void tst_PluginSystemMonitor_Reentrancy::resourceModelWithoutColumnsStaysAsItIs()
{
    HostedPlugin hosted;
    QStandardItemModel *const model = hosted.plugin.resourceModelControl->model();
    model->removeColumn(0);
    hosted.event(u"SystemResChanged"_s, report(10, {}));
    QCOMPARE(model->rowCount(), 3);
    QCOMPARE(model->columnCount(), 0);
}

void tst_PluginSystemMonitor_Reentrancy::samplerMayBeReplacedByItsWatcher()
{
    HostedPlugin hosted;
    auto monitor = QSharedPointer<SystemResourceMonitor>::create();
    const QPointer<QObject> sampler = monitor.data();
    hosted.plugin.setSystemResourceMonitor(monitor);
    monitor.reset();
    connect(&hosted.plugin, &PluginSystemMonitor::clientResourceChanged, this, [&] {
        hosted.plugin.setSystemResourceMonitor(QSharedPointer<ISystemResourceMonitor>::create());
    });
    QTimerEvent tick(1);
    QCoreApplication::sendEvent(sampler, &tick);
    QVERIFY(!sampler);
}

// Out of turn

void tst_PluginSystemMonitor_Reentrancy::everythingIsHarmlessBeforeInitialisation()
{
    HostedPlugin hosted(HostedPlugin::Created);
    TestedPlugin &plugin = hosted.plugin;
    plugin.LoadPairPluginDone();
    plugin.PluginServerConnected();
    plugin.PluginServerDisconnected();
    for (const bool isConnected : {false, true}) {
        plugin.invoke("monitorNodeStatus", 0, u"st1/cam1"_s, isConnected);
        plugin.invoke("monitorNodeStatus", 1, u"st1"_s, isConnected);
    }
    plugin.invoke("monitorVolumeStatus", u"st1"_s);
    plugin.invoke("removeVolumeError", u"st1"_s);
    plugin.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"G"_s, u"g"_s);
    plugin.invoke("monitorSufficientRecordingGroup", u"st1"_s, u"g"_s);
    plugin.invoke("removeCameraError", u"st1/cam1"_s);
    plugin.invoke("removeStationError", QString());
    plugin.invoke("updateStationErrorNumber");
    plugin.invoke("initNodeStatusErrorTimer", true);
    plugin.invoke("initNodeStatusError");
    plugin.removeErrorFromModel(u"st1"_s, SystemErrorModel::StationIDRole, Qt::MatchExactly);
    plugin.removeErrorFromModel(QModelIndex());
    plugin.reconnectDisconnectCameras();
    plugin.reconnectDisconnectSubstations();
    plugin.setFocusStationResource(u"st1"_s);
    QCOMPARE(plugin.focusStationResource(), u"st1"_s);
    const QVariantMap snooze{{u"nodeID"_s, u"st2"_s}, {u"type"_s, 4}};
    for (const QString &name : {u"SnoozeError"_s, u"DeviceStillError"_s, u"RemoveSnooze"_s})
        hosted.event(name, snooze);
    hosted.event(u"SystemResChanged"_s, report(100, twoNetworks), u"st1"_s);
    hosted.respond(u"setSnooze"_s, snooze);
    QVERIFY(!plugin.getSystemErrorModel());
    QVERIFY(!plugin.getSystemResourceModel());
    QObject owner;
    QCOMPARE(qobject_cast<Model *>(plugin.getSystemErrorSortFilterModel(&owner))->rowCount(), 0);
}

void tst_PluginSystemMonitor_Reentrancy::initialisationAgainStartsOver()
{
    HostedPlugin hosted;
    TestedPlugin &plugin = hosted.plugin;
    plugin.invoke("monitorVolumeStatus", u"st1"_s);
    const QPointer<SystemErrorModel> before = plugin.errorModel;
    QVERIFY(hosted.initialise());
    plugin.setSystemResourceMonitor(QSharedPointer<ISystemResourceMonitor>::create());
    QCOMPARE(hosted.errorKeys(), QStringList());
    plugin.invoke("monitorVolumeStatus", u"st2"_s);
    if (before)
        before->removeRows(0, before->rowCount());
    QCOMPARE(hosted.errorKeys(), QStringList{u"5_st2"_s});
    QCOMPARE(disagreement(plugin), QString());

    hosted.log.take();
    expire(plugin.stationErrorNumberTimer);
    QCOMPARE(hosted.log.take(), QStringList{u"stationErrorListChanged()"_s});
}

// Everything with everything

namespace {

/// A plug-in that has something of everything, with views, and what a watcher may do with it.
class Storm
{
public:
    Storm()
    {
        paired.hosted.plugin.setFocusStationResource(u"st1"_s);
        for (int i = 0; i < 3; ++i) {
            views.append(qobject_cast<QSortFilterProxyModel *>(
                plugin().getSystemErrorSortFilterModel(&owner)));
        }
        QStandardItem *const st1 = paired.topology->addStation(u"st1"_s, u"Lobby"_s, false);
        TopologyModel::addCamera(st1, u"st1/cam1"_s, u"Door"_s, false);
        QStandardItem *const st2 = paired.topology->addStation(u"st2"_s, u"Hall"_s);
        TopologyModel::addCamera(st2, u"st2/cam1"_s, u"Gate"_s, false);
        TopologyModel::addCamera(st2, u"st2/cam2"_s, u"Yard"_s);
    }

    TestedPlugin &plugin() { return paired.hosted.plugin; }

    /// One of each kind of change that the plug-in makes.
    void rage()
    {
        HostedPlugin &hosted = paired.hosted;
        hosted.event(u"SystemResChanged"_s, report(95, twoNetworks), u"st1"_s);
        plugin().invoke("initNodeStatusError");
        plugin().invoke("monitorVolumeStatus", u"st3"_s);
        plugin().invoke("monitorVolumeStatus", u"st4"_s);
        hosted.event(u"SnoozeError"_s, QVariantMap{{u"nodeID"_s, u"st1/cam1"_s}, {u"type"_s, 3}});
        hosted.event(u"DeviceStillError"_s,
                     QVariantMap{{u"nodeID"_s, u"st1/cam1"_s}, {u"type"_s, 3}});
        hosted.event(u"SystemResChanged"_s, report(5, twoNetworks), u"st1"_s);
        hosted.event(u"ServerReachingLimited"_s, QVariantMap());
        hosted.respond(u"setSnooze"_s, QVariantMap{{u"nodeID"_s, u"st2/cam1"_s}, {u"type"_s, 3}});
        hosted.respond(u"isSupportSystemMonitor"_s, {}, u"0"_s, new QString(u"st1"_s));
        Q_EMIT hosted.topology.nodeStatusChanged(1, u"st2"_s, false);
        Q_EMIT hosted.topology.deviceRemoved(u"st2/cam1"_s);
        plugin().invoke("monitorInsufficientRecordingDays", u"st1"_s, u"G"_s, QString());
        plugin().invoke("monitorInsufficientRecordingDays", u"st1"_s, u"H"_s, QString());
        plugin().invoke("updateStationErrorNumber");
        plugin().setFocusStationResource(u"st2"_s);
        Q_EMIT hosted.topology.stationRemoved(u"st1"_s);
        plugin().PluginServerDisconnected();
        plugin().invoke("monitorVolumeStatus", u"st5"_s);
        QTimerEvent tick(1);
        QCoreApplication::sendEvent(plugin().resourceMonitor.data(), &tick);
    }

    Paired paired;
    QObject owner;
    QList<QPointer<QSortFilterProxyModel>> views;
};

struct Watcher
{
    const char *name;
    std::function<void(Storm &, QObject *, const std::function<void()> &)> connect;
};

template <typename Signal> Watcher ofPlugin(const char *name, Signal signal)
{
    return {name, [signal](Storm &storm, QObject *context, const auto &act) {
                QObject::connect(&storm.plugin(), signal, context, act);
            }};
}

template <typename Signal> Watcher ofErrors(const char *name, Signal signal)
{
    return {name, [signal](Storm &storm, QObject *context, const auto &act) {
                QObject::connect(storm.plugin().errorModel, signal, context, act);
            }};
}

template <typename Signal> Watcher ofView(const char *name, Signal signal)
{
    // The last of them: a view that is told later would hear of the changes in the wrong order.
    return {name, [signal](Storm &storm, QObject *context, const auto &act) {
                QObject::connect(storm.views.last(), signal, context, act);
            }};
}

template <typename Signal> Watcher ofResources(const char *name, Signal signal)
{
    return {name, [signal](Storm &storm, QObject *context, const auto &act) {
                QObject::connect(storm.plugin().resourceModelControl->model(), signal, context,
                                 act);
            }};
}

const QList<Watcher> &watchers()
{
    static const QList<Watcher> all{
        ofPlugin("systemResourceChanged", &PluginSystemMonitor::systemResourceChanged),
        ofPlugin("focusStationResourceChanged", &PluginSystemMonitor::focusStationResourceChanged),
        ofPlugin("stationErrorListChanged", &PluginSystemMonitor::stationErrorListChanged),
        ofPlugin("isSupportSystemMonitor", &PluginSystemMonitor::isSupportSystemMonitor),
        ofPlugin("notifySystemResourceUpdated", &PluginSystemMonitor::notifySystemResourceUpdated),
        ofPlugin("notifyServerReachingLimited", &PluginSystemMonitor::notifyServerReachingLimited),
        ofPlugin("setSnoozeResponse", &PluginSystemMonitor::setSnoozeResponse),
        ofPlugin("clientResourceChanged", &PluginSystemMonitor::clientResourceChanged),
        ofErrors("first column about to be inserted", &Model::columnsAboutToBeInserted),
        ofErrors("first column inserted", &Model::columnsInserted),
        ofErrors("error about to be inserted", &Model::rowsAboutToBeInserted),
        ofErrors("error inserted", &Model::rowsInserted),
        ofErrors("error about to be removed", &Model::rowsAboutToBeRemoved),
        ofErrors("error removed", &Model::rowsRemoved),
        ofErrors("error changed", &Model::dataChanged),
        ofView("shown error about to be inserted", &Model::rowsAboutToBeInserted),
        ofView("shown error about to be removed", &Model::rowsAboutToBeRemoved),
        ofView("shown errors about to be sorted", &Model::layoutAboutToBeChanged),
        ofView("shown errors sorted", &Model::layoutChanged),
        ofView("shown error inserted", &Model::rowsInserted),
        ofView("shown error removed", &Model::rowsRemoved),
        ofView("shown error changed", &Model::dataChanged),
        ofResources("resource about to be inserted", &Model::rowsAboutToBeInserted),
        ofResources("resource column about to be inserted", &Model::columnsAboutToBeInserted),
        ofResources("resource column inserted", &Model::columnsInserted),
        ofResources("resource inserted", &Model::rowsInserted),
        ofResources("resource changed", &Model::dataChanged),
        ofResources("resources about to be reset", &Model::modelAboutToBeReset),
        ofResources("resources reset", &Model::modelReset),
        {"storage reloaded", [](Storm &storm, QObject *,
                                const auto &act) { storm.paired.hosted.recording.onReload = act; }},
    };
    return all;
}

struct Act
{
    const char *name;
    std::function<void(Storm &)> act;
};

const QList<Act> &acts()
{
    static const QList<Act> all{
        {"recounts", [](Storm &storm) { storm.plugin().invoke("updateStationErrorNumber"); }},
        {"walks", [](Storm &storm) { storm.plugin().invoke("initNodeStatusError"); }},
        {"disconnects", [](Storm &storm) { storm.plugin().PluginServerDisconnected(); }},
        {"reports a camera",
         [](Storm &storm) {
             for (const bool isConnected : {false, true, false})
                 storm.plugin().invoke("monitorNodeStatus", 0, u"st1/cam1"_s, isConnected);
         }},
        {"reports a station",
         [](Storm &storm) {
             for (const bool isConnected : {true, false})
                 storm.plugin().invoke("monitorNodeStatus", 1, u"st1"_s, isConnected);
         }},
        {"removes every station",
         [](Storm &storm) { storm.plugin().invoke("removeStationError", u""_s); }},
        {"snoozes",
         [](Storm &storm) {
             const QVariantMap data{{u"nodeID"_s, u"st1/cam1"_s}, {u"type"_s, 3}};
             storm.paired.hosted.event(u"SnoozeError"_s, data);
             storm.paired.hosted.event(u"DeviceStillError"_s, data);
         }},
        {"reports usage",
         [](Storm &storm) {
             storm.paired.hosted.event(u"SystemResChanged"_s, report(99, twoNetworks), u"st1"_s);
             storm.paired.hosted.event(u"SystemResChanged"_s, report(1, {}), u"st1"_s);
         }},
        {"changes the focus",
         [](Storm &storm) { storm.plugin().setFocusStationResource(u"st9"_s); }},
        {"destroys another view", [](Storm &storm) { delete storm.views.first(); }},
        {"destroys its view", [](Storm &storm) { storm.views.last()->deleteLater(); }},
        {"filters its view",
         [](Storm &storm) {
             storm.views.last()->setFilterFixedString(u"st"_s);
             storm.views.last()->setFilterFixedString(QString());
         }},
        {"destroys the topology", [](Storm &storm) { storm.paired.topology.reset(); }},
        {"empties the topology",
         [](Storm &storm) {
             if (storm.paired.topology)
                 storm.paired.topology->clear();
         }},
        {"pairs with another topology",
         [](Storm &storm) {
             storm.paired.topology = std::make_unique<TopologyModel>();
             storm.paired.topology->addStation(u"st7"_s, u"Pier"_s, false);
             storm.paired.hosted.topology.model = storm.paired.topology.get();
             storm.plugin().LoadPairPluginDone();
         }},
        {"forgets the other plug-ins",
         [](Storm &storm) {
             for (const char *id :
                  {"8F33495A224D49ABB8F9E875984A1443", "D8C607070A81469B8CA4FF2E107DB6AB"})
                 storm.paired.hosted.host.forgetPlugin(QString::fromLatin1(id));
         }},
    };
    return all;
}

} // namespace

void tst_PluginSystemMonitor_Reentrancy::everyWatcherMayDoEverything_data()
{
    QTest::addColumn<int>("watcher");
    QTest::addColumn<int>("act");
    for (int watcher = 0; watcher < watchers().size(); ++watcher) {
        for (int act = 0; act < acts().size(); ++act) {
            // No proxy can be filtered in the middle of a change of its rows.
            const QByteArray moment(watchers()[watcher].name);
            const bool filters = QByteArray(acts()[act].name) == "filters its view";
            if (filters && (moment.contains("about to be") || moment.contains("removed")))
                continue;
            QTest::addRow("%s, %s", watchers()[watcher].name, acts()[act].name) << watcher << act;
        }
    }
}

void tst_PluginSystemMonitor_Reentrancy::everyWatcherMayDoEverything()
{
    QFETCH(const int, watcher);
    QFETCH(const int, act);
    Storm storm;
    bool isActing = false;
    // Some acts lead to what the watcher waits for, and would go on for ever.
    int actsLeft = 20;
    QObject context;
    watchers()[watcher].connect(storm, &context, [&] {
        if (isActing || --actsLeft < 0)
            return;
        isActing = true;
        acts()[act].act(storm);
        isActing = false;
    });
    storm.rage();
    storm.rage();
    QCoreApplication::processEvents();
    QCOMPARE(disagreement(storm.plugin()), QString());
    QVERIFY(isWellLaidOut(*storm.plugin().resourceModelControl->model()));
    for (const auto &view : std::as_const(storm.views)) {
        if (view) {
            view->setFilterFixedString(QString());
            QCOMPARE(view->rowCount(), storm.plugin().errorModel->rowCount());
        }
    }
}

QTEST_GUILESS_MAIN(tst_PluginSystemMonitor_Reentrancy)
#include "tst_PluginSystemMonitor_Reentrancy.moc"
