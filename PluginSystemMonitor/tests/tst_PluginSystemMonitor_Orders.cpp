#include "HostedPlugin.h"
#include "SystemErrorModel.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QTest>

#include <functional>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

/// What is ordered by who is told of a change of the error list waits until everybody was told, and
/// is then done as if it had been ordered later.
class tst_PluginSystemMonitor_Orders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void orderWaitsUntilEverybodyWasTold_data();
    void orderWaitsUntilEverybodyWasTold();
    void snoozesThatArriveDuringAChangeHoldAfterIt();
    void rowThatIsGoneByItsTurnIsNotRemoved();
    void viewThatIsGoneByItsTurnIsNotFilled();
};

namespace {

using Order = std::function<void(HostedPlugin &)>;

const QStringList listed{u"3_st1/cam1"_s, u"4_st2"_s, u"5_st3"_s, u"7_st4_g1"_s, u"2_st5_en0"_s};

void fill(HostedPlugin &hosted)
{
    TestedPlugin &plugin = hosted.plugin;
    plugin.invoke("monitorNodeStatus", 0, u"st1/cam1"_s, false);
    plugin.invoke("monitorNodeStatus", 1, u"st2"_s, false);
    plugin.invoke("monitorVolumeStatus", u"st3"_s);
    plugin.invoke("monitorInsufficientRecordingDays", u"st4"_s, u"Archive 1"_s, u"g1"_s);
    plugin.invoke("monitorNetworkUsage", u"st5"_s, 99, u"en0"_s);
}

/// Has a watcher do something once, when the next row is announced.
void whenARowIsAnnounced(HostedPlugin &hosted, const std::function<void()> &act)
{
    auto isFirst = std::make_shared<bool>(true);
    QObject::connect(hosted.plugin.errorModel, &QAbstractItemModel::rowsAboutToBeInserted,
                     &hosted.plugin, [isFirst, act] {
                         if (std::exchange(*isFirst, false))
                             act();
                     });
}

/// A change that everybody is told of.
void change(HostedPlugin &hosted)
{
    hosted.plugin.invoke("monitorVolumeStatus", u"changing"_s);
}

/// The keys of the list before the change, in the order of the list, but for some that go; then
/// that of the change, and some that come.
QStringList after(const QStringList &gone, const QStringList &added)
{
    QStringList keys = listed;
    keys.removeIf([&gone](const QString &key) { return gone.contains(key); });
    return keys + QStringList{u"5_changing"_s} + added;
}

} // namespace

void tst_PluginSystemMonitor_Orders::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_PluginSystemMonitor_Orders::orderWaitsUntilEverybodyWasTold_data()
{
    QTest::addColumn<Order>("order");
    QTest::addColumn<QStringList>("keys");

    const auto row = [](const char *name, const QStringList &keys, const Order &order) {
        QTest::newRow(name) << order << keys;
    };
    row("a row's removal", after({u"4_st2"_s}, {}), [](HostedPlugin &hosted) {
        hosted.plugin.removeErrorFromModel(hosted.plugin.errorModel->index(1, 0));
    });
    row("removal by a role", after({u"4_st2"_s}, {}), [](HostedPlugin &hosted) {
        hosted.plugin.removeErrorFromModel(u"st2"_s, SystemErrorModel::StationIDRole,
                                           Qt::MatchExactly);
    });
    row("everything is cleared", {},
        [](HostedPlugin &hosted) { hosted.plugin.clearSystemErrorModel(); });
    row("a camera leaves", after({u"3_st1/cam1"_s}, {}),
        [](HostedPlugin &hosted) { hosted.plugin.invoke("removeCameraError", u"st1/cam1"_s); });
    row("a station leaves", after({u"3_st1/cam1"_s}, {}),
        [](HostedPlugin &hosted) { hosted.plugin.invoke("removeStationError", u"st1"_s); });
    row("a volume is well", after({u"5_st3"_s}, {}),
        [](HostedPlugin &hosted) { hosted.plugin.invoke("removeVolumeError", u"st3"_s); });
    row("a volume is down", after({}, {u"5_st9"_s}),
        [](HostedPlugin &hosted) { hosted.plugin.invoke("monitorVolumeStatus", u"st9"_s); });
    row("a camera is down", after({}, {u"3_st9/cam1"_s}), [](HostedPlugin &hosted) {
        hosted.plugin.invoke("monitorNodeStatus", 0, u"st9/cam1"_s, false);
    });
    row("a camera is down at start-up", after({}, {u"3_st9/cam1"_s}), [](HostedPlugin &hosted) {
        hosted.plugin.invoke("monitorNodeStatusForInit", 0, u"st9/cam1"_s, false, u"Door"_s);
    });
    row("too few days are recorded", after({}, {u"7_st9_g9"_s}), [](HostedPlugin &hosted) {
        hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st9"_s, u"Archive 9"_s, u"g9"_s);
    });
    row("enough days are recorded", after({u"7_st4_g1"_s}, {}), [](HostedPlugin &hosted) {
        hosted.plugin.invoke("monitorSufficientRecordingGroup", u"st4"_s, u"g1"_s);
    });
    row("a network is busy", after({}, {u"2_st9_en0"_s}), [](HostedPlugin &hosted) {
        hosted.plugin.invoke("monitorNetworkUsage", u"st9"_s, 99, u"en0"_s);
    });
    row("a network is calm", after({u"2_st5_en0"_s}, {}), [](HostedPlugin &hosted) {
        hosted.plugin.invoke("monitorNetworkUsage", u"st5"_s, 1, u"en0"_s);
    });
    row("the topology is walked", after({}, {u"4_st9"_s}), [](HostedPlugin &hosted) {
        hosted.topologyModel.addStation(u"st9"_s, u"Hall"_s, false);
        hosted.plugin.initNodeStatusError();
    });
    row("a camera is snoozed", after({u"3_st1/cam1"_s}, {}), [](HostedPlugin &hosted) {
        hosted.event(u"SnoozeError"_s,
                     QVariantMap{{u"nodeID"_s, u"st1/cam1"_s}, {u"type"_s, CameraDisconnected}});
    });
}

void tst_PluginSystemMonitor_Orders::orderWaitsUntilEverybodyWasTold()
{
    QFETCH(const Order, order);
    QFETCH(const QStringList, keys);
    HostedPlugin hosted;
    const QAbstractItemModelTester tester(hosted.plugin.errorModel);
    fill(hosted);
    QCOMPARE(hosted.errorKeys(), listed);

    QStringList keysInMidChange;
    whenARowIsAnnounced(hosted, [&] {
        order(hosted);
        keysInMidChange = hosted.errorKeys();
    });
    change(hosted);
    QCOMPARE(keysInMidChange, listed);
    QCOMPARE(hosted.errorKeys(), keys);
}

void tst_PluginSystemMonitor_Orders::snoozesThatArriveDuringAChangeHoldAfterIt()
{
    HostedPlugin hosted;
    whenARowIsAnnounced(hosted, [&] {
        hosted.plugin.invoke("monitorNodeStatus", 0, u"st1/cam1"_s, false);
        hosted.respond(u"getSnoozeList"_s, QStringList{u"st1/cam1"_s, u"st1/cam2"_s});
        hosted.plugin.invoke("monitorNodeStatus", 0, u"st1/cam2"_s, false);
        QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList());
    });
    change(hosted);
    QCOMPARE(hosted.plugin.snoozedDeviceList, QStringList({u"st1/cam1"_s, u"st1/cam2"_s}));
    QCOMPARE(hosted.errorKeys(), QStringList({u"5_changing"_s, u"3_st1/cam1"_s}));
}

void tst_PluginSystemMonitor_Orders::rowThatIsGoneByItsTurnIsNotRemoved()
{
    HostedPlugin hosted;
    fill(hosted);
    whenARowIsAnnounced(hosted, [&] {
        hosted.plugin.invoke("removeVolumeError", u"st3"_s);
        hosted.plugin.removeErrorFromModel(hosted.plugin.errorModel->index(2, 0));
    });
    change(hosted);
    QCOMPARE(hosted.errorKeys(), after({u"5_st3"_s}, {}));
}

void tst_PluginSystemMonitor_Orders::viewThatIsGoneByItsTurnIsNotFilled()
{
    HostedPlugin hosted;
    auto owner = std::make_unique<QObject>();
    whenARowIsAnnounced(hosted, [&] {
        QVERIFY(hosted.plugin.getSystemErrorSortFilterModel(owner.get()));
        owner.reset();
    });
    change(hosted);
    QCOMPARE(hosted.errorKeys(), QStringList{u"5_changing"_s});
}

QTEST_GUILESS_MAIN(tst_PluginSystemMonitor_Orders)
#include "tst_PluginSystemMonitor_Orders.moc"
