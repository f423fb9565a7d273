#include "CollectedTrace.h"
#include "HostedPlugin.h"
#include "PrintedValue.h"
#include "SystemErrorModel.h"
#include "SystemErrorSortFilterModel.h"

#include <QAbstractItemModelTester>
#include <QDateTime>
#include <QRegularExpression>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// What identifies and names an error, and how errors enter and leave the list.
class tst_PluginSystemMonitor_Errors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void errorTypeHasItsNumber_data();
    void errorTypeHasItsNumber();
    void errorCategoriesAreSingleBits();
    void keyIsMadeOfTypeIdAndSubId_data();
    void keyIsMadeOfTypeIdAndSubId();
    void errorNameOfAType_data();
    void errorNameOfAType();
    void stationPartOfACameraId_data();
    void stationPartOfACameraId();
    void nodeTypesAreTold_data();
    void nodeTypesAreTold();
    void deviceNameComesFromTheTopology_data();
    void deviceNameComesFromTheTopology();
    void firstNodeOfAnIdGivesTheName();
    void topLevelNodesAreSearchedToo();
    void deviceNameIsEmptyWithoutATopology();
    void deviceNameIsEmptyWhenTheTopologyIsGone();
    void originOfAnError_data();
    void originOfAnError();
    void originWithoutATopology();
    void originTakesNamesLiterally();
    void namingWritesNoTrace();

    void creatingTheListMakesAChild();
    void listIsHandedOut();
    void everyViewIsNewAndBelongsToItsParent();
    void appendedErrorIsFoundByItsKey();
    void remainingErrorsAreFoundWhenARowIsGone();
    void errorAppendedTwiceIsFoundAtTheNewerRow();
    void removingTheOlderOfTwoRowsDropsTheKey();
    void removingUnderTheSecondNameIsTheSame();
    void removingNoRowChangesNothing();
    void errorRemovedBehindThePluginIsNotFound();
    void clearingRemovesFromTheEnd();
    void clearingAnEmptyListDoesNothing();
    void everyChangeOfRowsRestartsTheCountTimer_data();
    void everyChangeOfRowsRestartsTheCountTimer();
    void changeOfDataLeavesTheCountTimerAlone();
    void listStaysConsistent();

    void systemErrorHasItsRecord_data();
    void systemErrorHasItsRecord();
    void cameraErrorHasItsRecord_data();
    void cameraErrorHasItsRecord();
    void recordHasNothingOfTheOneBefore();
    void equalTextsOfErrorsAreShared();
    void storageErrorHasItsRecord();
    void errorCarriesTheTimeOfItsRaising_data();
    void errorCarriesTheTimeOfItsRaising();
    void raisingTwiceListsTwice();
    void errorExistsUnderItsOwnKeyOnly();
    void nothingExistsInAnEmptyList();

    void snoozedStationsDisconnectionIsNotListed();
    void snoozedStationsOtherErrorsAreListed();
    void snoozedCamerasDisconnectionIsNotListed();
    void snoozedCamerasOtherErrorsAreListed();
    void snoozeSuppressesTheVeryIdOnly_data();
    void snoozeSuppressesTheVeryIdOnly();
    void raisingWritesNoTraceOtherwise();

    void errorsAreRemovedByRoleValue_data();
    void errorsAreRemovedByRoleValue();
    void errorsAreRemovedInTheOrderFound();
    void rowThatLeftMeanwhileIsPassedOver();
    void cameraRemovalClearsAllItsErrors();
    void cameraRemovalGoesFromTheFirstToTheLast();
    void cameraRemovalMatchesTheWholeId_data();
    void cameraRemovalMatchesTheWholeId();
    void stationRemovalGoesByPrefix_data();
    void stationRemovalGoesByPrefix();
    void stationRemovalGoesFromTheEnd();
    void removalIsReachedByBothNames();
    void removalFromAnEmptyListDoesNothing();
};

namespace {

/// The keys of the rows that leave the list, in that order.
class LeavingKeys
{
public:
    explicit LeavingKeys(const HostedPlugin &hosted)
    {
        QObject::connect(hosted.plugin.errorModel, &QAbstractItemModel::rowsAboutToBeRemoved,
                         &m_listener, [this, &hosted](const QModelIndex &, int first, int last) {
                             for (int row = first; row <= last; ++row)
                                 keys.append(hosted.errorKeys().at(row));
                         });
    }

    QStringList keys;

private:
    QObject m_listener;
};

// A row that holds no more than its key.
QStandardItem *itemWithKey(const QString &key)
{
    auto *item = new QStandardItem;
    item->setData(key, SystemErrorModel::UniqueIDRole);
    return item;
}

void addVolumeErrors(HostedPlugin &hosted, const QStringList &stations)
{
    for (const QString &station : stations)
        hosted.plugin.addSystemError(station, VolumeDisconnected, QString(), QString());
}

} // namespace

void tst_PluginSystemMonitor_Errors::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

// Identity and names

void tst_PluginSystemMonitor_Errors::errorTypeHasItsNumber_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("number");
    QTest::newRow("CPU") << int(HighCpuUsage) << 0;
    QTest::newRow("memory") << int(HighMemoryUsage) << 1;
    QTest::newRow("network") << int(HighNetworkUsage) << 2;
    QTest::newRow("camera") << int(CameraDisconnected) << 3;
    QTest::newRow("station") << int(StationDisconnected) << 4;
    QTest::newRow("volume") << int(VolumeDisconnected) << 5;
    QTest::newRow("reserved") << int(Reserved) << 6;
    QTest::newRow("recording days") << int(InsufficientRecordingDays) << 7;
}

void tst_PluginSystemMonitor_Errors::errorTypeHasItsNumber()
{
    QFETCH(const int, type);
    QFETCH(const int, number);
    QCOMPARE(type, number);
}

void tst_PluginSystemMonitor_Errors::errorCategoriesAreSingleBits()
{
    QCOMPARE(int(SystemCategory), 1);
    QCOMPARE(int(CameraCategory), 2);
}

void tst_PluginSystemMonitor_Errors::keyIsMadeOfTypeIdAndSubId_data()
{
    QTest::addColumn<ErrorType>("type");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("subId");
    QTest::addColumn<QString>("key");
    QTest::newRow("camera") << CameraDisconnected << u"st1/cam7"_s << u""_s << u"3_st1/cam7"_s;
    QTest::newRow("null sub-id") << CameraDisconnected << u"st1/cam7"_s << QString()
                                 << u"3_st1/cam7"_s;
    QTest::newRow("station") << StationDisconnected << u"st1"_s << QString() << u"4_st1"_s;
    QTest::newRow("interface") << HighNetworkUsage << u"st1"_s << u"en0"_s << u"2_st1_en0"_s;
    QTest::newRow("empty id") << HighCpuUsage << QString() << QString() << u"0_"_s;
    QTest::newRow("empty id with sub-id") << HighCpuUsage << QString() << u"x"_s << u"0__x"_s;
    QTest::newRow("negative type") << ErrorType(-1) << u"st1"_s << QString() << u"-1_st1"_s;
    QTest::newRow("large type") << ErrorType(1234567) << u"st1"_s << QString() << u"1234567_st1"_s;
    // The pieces are put in one after the other.
    QTest::newRow("marker without sub-id")
        << StationDisconnected << u"a%3b"_s << QString() << u"4_a%3b"_s;
    QTest::newRow("marker with sub-id")
        << HighNetworkUsage << u"a%3b"_s << u"en0"_s << u"2_aen0b_en0"_s;
    QTest::newRow("marker in the sub-id")
        << HighNetworkUsage << u"st1"_s << u"%1%2"_s << u"2_st1_%1%2"_s;
}

void tst_PluginSystemMonitor_Errors::keyIsMadeOfTypeIdAndSubId()
{
    QFETCH(const ErrorType, type);
    QFETCH(const QString, id);
    QFETCH(const QString, subId);
    QFETCH(const QString, key);
    QCOMPARE(TestedPlugin().uniqueId(type, id, subId), key);
}

void tst_PluginSystemMonitor_Errors::errorNameOfAType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::newRow("CPU") << 0 << u"CPU utilization over 85%"_s;
    QTest::newRow("memory") << 1 << u"Memory usage over 86%"_s;
    QTest::newRow("network") << 2 << u"Network usage over 1000%"_s;
    QTest::newRow("camera") << 3 << u"Camera disconnected"_s;
    QTest::newRow("station") << 4 << u"Station disconnected"_s;
    QTest::newRow("volume") << 5 << u"Volume disconnected"_s;
    QTest::newRow("reserved") << 6 << QString();
    QTest::newRow("recording days") << 7 << u"Insufficient recording days"_s;
    QTest::newRow("above") << 8 << QString();
    QTest::newRow("below") << -1 << QString();
}

void tst_PluginSystemMonitor_Errors::errorNameOfAType()
{
    QFETCH(const int, type);
    QFETCH(const QString, name);
    TestedPlugin plugin;
    plugin.cpuThreshold = 85;
    plugin.memoryThreshold = 86;
    plugin.networkThreshold = 1000;
    QCOMPARE(plugin.getErrorName(static_cast<ErrorType>(type)), name);
}

void tst_PluginSystemMonitor_Errors::stationPartOfACameraId_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("station");
    QTest::newRow("one slash") << u"st1/cam7"_s << u"st1"_s;
    QTest::newRow("two slashes") << u"a/b/c"_s << u"a/b"_s;
    QTest::newRow("no slash") << u"abc"_s << QString();
    QTest::newRow("slash in front") << u"/x"_s << QString();
    QTest::newRow("slash behind") << u"st1/"_s << u"st1"_s;
    QTest::newRow("two together") << u"a//b"_s << u"a/"_s;
    QTest::newRow("empty") << QString() << QString();
}

void tst_PluginSystemMonitor_Errors::stationPartOfACameraId()
{
    QFETCH(const QString, id);
    QFETCH(const QString, station);
    QCOMPARE(getParentStationID(id), station);
}

void tst_PluginSystemMonitor_Errors::nodeTypesAreTold_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isCamera");
    QTest::addColumn<bool>("isStation");
    QTest::newRow("camera") << 0 << true << false;
    QTest::newRow("station") << 1 << false << true;
    QTest::newRow("other") << 2 << false << false;
    QTest::newRow("negative") << -1 << false << false;
    QTest::newRow("large") << 256 << false << false;
}

void tst_PluginSystemMonitor_Errors::nodeTypesAreTold()
{
    QFETCH(const int, type);
    QFETCH(const bool, isCamera);
    QFETCH(const bool, isStation);
    const TestedPlugin plugin;
    QCOMPARE(plugin.isCameraInTopologyModel(type), isCamera);
    QCOMPARE(plugin.isStationInTopologyModel(type), isStation);
}

void tst_PluginSystemMonitor_Errors::deviceNameComesFromTheTopology_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::newRow("station") << u"st1"_s << u"Lobby NVR"_s;
    QTest::newRow("camera") << u"st1/cam1"_s << u"Door 1"_s;
    QTest::newRow("camera of a sub-station") << u"st1/sub/cam1"_s << u"Gate 1"_s;
    QTest::newRow("below a node of another type") << u"loose"_s << u"Loose"_s;
    QTest::newRow("unknown") << u"st9"_s << QString();
    QTest::newRow("other case") << u"ST1"_s << QString();
    QTest::newRow("beginning of an id") << u"st"_s << QString();
    QTest::newRow("node without a name") << u"nameless"_s << QString();
    QTest::newRow("node without a map") << u"mapless"_s << QString();
    QTest::newRow("known by its other id only") << u"other id"_s << QString();
}

void tst_PluginSystemMonitor_Errors::deviceNameComesFromTheTopology()
{
    QFETCH(const QString, id);
    QFETCH(const QString, name);
    HostedPlugin hosted;
    TopologyModel &model = hosted.topologyModel;
    QStandardItem *station = model.addStation(u"st1"_s, u"Lobby NVR"_s);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door 1"_s);
    QStandardItem *sub = model.addStation(u"st1/sub"_s, u"Gate NVR"_s, true, station);
    TopologyModel::addCamera(sub, u"st1/sub/cam1"_s, u"Gate 1"_s);
    QStandardItem *group = TopologyModel::addNode(model.top(), 5, u"group"_s, u"Group"_s, true);
    TopologyModel::addNode(group, 0, u"loose"_s, u"Loose"_s, true);
    model.addStation(u"nameless"_s, u"Name"_s)
        ->setData(QVariantMap{{u"name"_s, u"Name"_s}}, Qt::UserRole + 2);
    model.addStation(u"mapless"_s, u"Name"_s)->setData(u"Name"_s, Qt::UserRole + 2);
    model.addStation(u"id"_s, u"Name"_s)->setData(u"other id"_s, Qt::UserRole + 4);
    QCOMPARE(hosted.plugin.findDeviceName(id), name);
}

void tst_PluginSystemMonitor_Errors::firstNodeOfAnIdGivesTheName()
{
    HostedPlugin hosted;
    QStandardItem *station = hosted.topologyModel.addStation(u"st1"_s, u"One"_s);
    TopologyModel::addCamera(station, u"twice"_s, u"Deep"_s);
    hosted.topologyModel.addStation(u"twice"_s, u"Later"_s);
    QCOMPARE(hosted.plugin.findDeviceName(u"twice"_s), u"Deep"_s);
}

void tst_PluginSystemMonitor_Errors::topLevelNodesAreSearchedToo()
{
    HostedPlugin hosted;
    hosted.topologyModel.top()->setData(u"top"_s, Qt::UserRole + 1);
    hosted.topologyModel.top()->setData(QVariantMap{{u"nameRole"_s, u"Top"_s}}, Qt::UserRole + 2);
    TopologyModel::addNode(hosted.topologyModel.invisibleRootItem(), 1, u"second"_s, u"Second"_s,
                           true);
    QCOMPARE(hosted.plugin.findDeviceName(u"top"_s), u"Top"_s);
    QCOMPARE(hosted.plugin.findDeviceName(u"second"_s), u"Second"_s);
}

void tst_PluginSystemMonitor_Errors::deviceNameIsEmptyWithoutATopology()
{
    HostedPlugin unpaired(HostedPlugin::Initialised);
    unpaired.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    QCOMPARE(unpaired.plugin.findDeviceName(u"st1"_s), QString());

    HostedPlugin hosted;
    hosted.topologyModel.clear();
    QCOMPARE(hosted.plugin.findDeviceName(u"st1"_s), QString());
    QCOMPARE(hosted.plugin.findDeviceName(QString()), QString());
}

void tst_PluginSystemMonitor_Errors::deviceNameIsEmptyWhenTheTopologyIsGone()
{
    HostedPlugin hosted;
    auto *model = new TopologyModel;
    model->addStation(u"st1"_s, u"Lobby"_s);
    hosted.plugin.topologyModel = model;
    QCOMPARE(hosted.plugin.findDeviceName(u"st1"_s), u"Lobby"_s);
    delete model;
    QCOMPARE(hosted.plugin.findDeviceName(u"st1"_s), QString());
}

void tst_PluginSystemMonitor_Errors::originOfAnError_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("origin");
    QTest::newRow("camera") << 2 << u"st1/cam2"_s << u"Station: Lobby NVR / Camera: Door 2"_s;
    QTest::newRow("unknown camera") << 2 << u"st1/cam9"_s << u"Station: Lobby NVR / Camera: N/A"_s;
    QTest::newRow("camera of an unknown station")
        << 2 << u"st9/cam2"_s << u"Station:  / Camera: Stray"_s;
    QTest::newRow("all unknown") << 2 << u"st9/cam9"_s << u"Station:  / Camera: N/A"_s;
    QTest::newRow("camera without a station") << 2 << u"cam"_s << u"Station:  / Camera: N/A"_s;
    QTest::newRow("station") << 1 << u"st1"_s << u"Station: Lobby NVR"_s;
    QTest::newRow("unknown station") << 1 << u"st9"_s << u"Station: "_s;
    QTest::newRow("no category") << 0 << u"st1"_s << u"Station: Lobby NVR"_s;
    QTest::newRow("both categories") << 3 << u"st1/cam2"_s << u"Station: Door 2"_s;
}

void tst_PluginSystemMonitor_Errors::originOfAnError()
{
    QFETCH(const int, category);
    QFETCH(const QString, id);
    QFETCH(const QString, origin);
    HostedPlugin hosted;
    QStandardItem *station = hosted.topologyModel.addStation(u"st1"_s, u"Lobby NVR"_s);
    TopologyModel::addCamera(station, u"st1/cam2"_s, u"Door 2"_s);
    TopologyModel::addCamera(station, u"st9/cam2"_s, u"Stray"_s);
    QCOMPARE(hosted.plugin.getTriggerDeviceName(static_cast<ErrorCategory>(category), id), origin);
}

void tst_PluginSystemMonitor_Errors::originWithoutATopology()
{
    const HostedPlugin hosted(HostedPlugin::Initialised);
    QCOMPARE(hosted.plugin.getTriggerDeviceName(CameraCategory, u"st1/cam2"_s),
             u"Station:  / Camera: N/A"_s);
    QCOMPARE(hosted.plugin.getTriggerDeviceName(SystemCategory, u"st1"_s), u"Station: "_s);
}

void tst_PluginSystemMonitor_Errors::originTakesNamesLiterally()
{
    HostedPlugin hosted;
    QStandardItem *station = hosted.topologyModel.addStation(u"st1"_s, u"%3 %4"_s);
    TopologyModel::addCamera(station, u"st1/cam2"_s, u"%1 %2"_s);
    QCOMPARE(hosted.plugin.getTriggerDeviceName(CameraCategory, u"st1/cam2"_s),
             u"Station: %3 %4 / Camera: %1 %2"_s);
    QCOMPARE(hosted.plugin.getTriggerDeviceName(SystemCategory, u"st1"_s), u"Station: %3 %4"_s);
}

void tst_PluginSystemMonitor_Errors::namingWritesNoTrace()
{
    const HostedPlugin hosted;
    const CollectedTrace trace;
    hosted.plugin.getErrorName(ErrorType(8));
    hosted.plugin.getTriggerDeviceName(CameraCategory, u"st9/cam9"_s);
    hosted.plugin.findDeviceName(u"st9"_s);
    hosted.plugin.uniqueId(HighCpuUsage, QString(), QString());
    getParentStationID(QString());
    QCOMPARE(trace.questions().size(), 0);
}

// The list

void tst_PluginSystemMonitor_Errors::creatingTheListMakesAChild()
{
    TestedPlugin plugin;
    QVERIFY(plugin.createErrorListModel());
    QVERIFY(plugin.errorModel);
    QCOMPARE(plugin.errorModel->parent(), &plugin);
    QCOMPARE(plugin.errorModel->rowCount(), 0);
}

void tst_PluginSystemMonitor_Errors::listIsHandedOut()
{
    HostedPlugin hosted;
    QCOMPARE(hosted.plugin.getSystemErrorModel(), hosted.plugin.errorModel);
    QCOMPARE(hosted.plugin.getSystemErrorModel()->parent(), &hosted.plugin);
}

void tst_PluginSystemMonitor_Errors::everyViewIsNewAndBelongsToItsParent()
{
    HostedPlugin hosted;
    QObject parent;
    QObject *first = hosted.plugin.getSystemErrorSortFilterModel(&parent);
    QObject *second = hosted.plugin.getSystemErrorSortFilterModel(&parent);
    QVERIFY(first != second);
    for (const QObject *view : {first, second}) {
        const auto *proxy = qobject_cast<const SystemErrorSortFilterModel *>(view);
        QVERIFY(proxy);
        QCOMPARE(proxy->parent(), &parent);
        QCOMPARE(proxy->sourceModel(), hosted.plugin.errorModel);
    }
    const std::unique_ptr<QObject> orphan(hosted.plugin.getSystemErrorSortFilterModel(nullptr));
    QCOMPARE(orphan->parent(), nullptr);
}

void tst_PluginSystemMonitor_Errors::appendedErrorIsFoundByItsKey()
{
    HostedPlugin hosted;
    hosted.plugin.appendSystemErrorModel(u"4_st1"_s, itemWithKey(u"4_st1"_s));
    hosted.plugin.appendSystemErrorModel(u"2_st1_en0"_s, itemWithKey(u"2_st1_en0"_s));
    QCOMPARE(hosted.errorKeys(), QStringList({u"4_st1"_s, u"2_st1_en0"_s}));
    QCOMPARE(hosted.plugin.errorModel->columnCount(), 1);
    QCOMPARE(hosted.plugin.existError(StationDisconnected, u"st1"_s, QString()),
             hosted.plugin.errorModel->index(0, 0));
    QCOMPARE(hosted.plugin.existError(HighNetworkUsage, u"st1"_s, u"en0"_s),
             hosted.plugin.errorModel->index(1, 0));
}

void tst_PluginSystemMonitor_Errors::remainingErrorsAreFoundWhenARowIsGone()
{
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s, u"st2"_s, u"st3"_s});
    hosted.plugin.RemoveSystemErrorModelRow(hosted.plugin.errorModel->index(0, 0));
    QVERIFY(!hosted.plugin.lists(VolumeDisconnected, u"st1"_s));
    QCOMPARE(hosted.plugin.existError(VolumeDisconnected, u"st2"_s, QString()).row(), 0);
    QCOMPARE(hosted.plugin.existError(VolumeDisconnected, u"st3"_s, QString()).row(), 1);
    QCOMPARE(hosted.errorKeys(), QStringList({u"5_st2"_s, u"5_st3"_s}));
}

void tst_PluginSystemMonitor_Errors::errorAppendedTwiceIsFoundAtTheNewerRow()
{
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s, u"st2"_s, u"st1"_s});
    QCOMPARE(hosted.errorKeys(), QStringList({u"5_st1"_s, u"5_st2"_s, u"5_st1"_s}));
    const QModelIndex newer = hosted.plugin.existError(VolumeDisconnected, u"st1"_s, QString());
    QCOMPARE(newer.row(), 2);
    hosted.plugin.RemoveSystemErrorModelRow(newer);
    // The older row stays and is no longer found.
    QCOMPARE(hosted.errorKeys(), QStringList({u"5_st1"_s, u"5_st2"_s}));
    QVERIFY(!hosted.plugin.lists(VolumeDisconnected, u"st1"_s));
}

void tst_PluginSystemMonitor_Errors::removingTheOlderOfTwoRowsDropsTheKey()
{
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s, u"st1"_s});
    hosted.plugin.RemoveSystemErrorModelRow(hosted.plugin.errorModel->index(0, 0));
    QCOMPARE(hosted.errorKeys(), QStringList{u"5_st1"_s});
    QVERIFY(!hosted.plugin.lists(VolumeDisconnected, u"st1"_s));
}

void tst_PluginSystemMonitor_Errors::removingUnderTheSecondNameIsTheSame()
{
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s, u"st2"_s});
    hosted.plugin.removeErrorFromModel(hosted.plugin.errorModel->index(0, 0));
    QCOMPARE(hosted.errorKeys(), QStringList{u"5_st2"_s});
    QVERIFY(!hosted.plugin.lists(VolumeDisconnected, u"st1"_s));
}

void tst_PluginSystemMonitor_Errors::removingNoRowChangesNothing()
{
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s});
    hosted.plugin.RemoveSystemErrorModelRow(QModelIndex());
    QCOMPARE(hosted.errorKeys(), QStringList{u"5_st1"_s});
    QVERIFY(hosted.plugin.lists(VolumeDisconnected, u"st1"_s));
}

void tst_PluginSystemMonitor_Errors::errorRemovedBehindThePluginIsNotFound()
{
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s, u"st2"_s, u"st3"_s});
    hosted.plugin.errorModel->removeRow(1);
    QVERIFY(!hosted.plugin.lists(VolumeDisconnected, u"st2"_s));
    QCOMPARE(hosted.plugin.existError(VolumeDisconnected, u"st3"_s, QString()).row(), 1);
    hosted.plugin.errorModel->clear();
    for (const QString &station : {u"st1"_s, u"st2"_s, u"st3"_s})
        QVERIFY(!hosted.plugin.lists(VolumeDisconnected, station));
    // The rules list it anew.
    hosted.plugin.invoke("monitorVolumeStatus", u"st2"_s);
    QCOMPARE(hosted.errorKeys(), QStringList{u"5_st2"_s});
    QVERIFY(hosted.plugin.lists(VolumeDisconnected, u"st2"_s));
}

void tst_PluginSystemMonitor_Errors::clearingRemovesFromTheEnd()
{
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s, u"st2"_s, u"st3"_s, u"st1"_s});
    const LeavingKeys leaving(hosted);
    hosted.plugin.clearSystemErrorModel();
    QCOMPARE(leaving.keys, QStringList({u"5_st1"_s, u"5_st3"_s, u"5_st2"_s, u"5_st1"_s}));
    QCOMPARE(hosted.errorKeys(), QStringList());
    QVERIFY(!hosted.plugin.lists(VolumeDisconnected, u"st1"_s));
    QVERIFY(!hosted.plugin.lists(VolumeDisconnected, u"st2"_s));
}

void tst_PluginSystemMonitor_Errors::clearingAnEmptyListDoesNothing()
{
    HostedPlugin hosted;
    const LeavingKeys leaving(hosted);
    hosted.plugin.clearSystemErrorModel();
    QCOMPARE(leaving.keys, QStringList());
    QVERIFY(!hosted.plugin.stationErrorNumberTimer.isActive());
}

void tst_PluginSystemMonitor_Errors::everyChangeOfRowsRestartsTheCountTimer_data()
{
    using Change = void (*)(HostedPlugin &);
    QTest::addColumn<Change>("change");
    QTest::newRow("row appended") << Change(
        [](HostedPlugin &hosted) { addVolumeErrors(hosted, {u"st2"_s}); });
    QTest::newRow("row removed") << Change([](HostedPlugin &hosted) {
        hosted.plugin.RemoveSystemErrorModelRow(hosted.plugin.errorModel->index(0, 0));
    });
    QTest::newRow("rows removed") << Change(
        [](HostedPlugin &hosted) { hosted.plugin.clearSystemErrorModel(); });
    QTest::newRow("row removed by others")
        << Change([](HostedPlugin &hosted) { hosted.plugin.errorModel->removeRow(0); });
    QTest::newRow("row inserted by others")
        << Change([](HostedPlugin &hosted) { hosted.plugin.errorModel->insertRow(0); });
}

void tst_PluginSystemMonitor_Errors::everyChangeOfRowsRestartsTheCountTimer()
{
    using Change = void (*)(HostedPlugin &);
    QFETCH(const Change, change);
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s});
    QTimer &timer = hosted.plugin.stationErrorNumberTimer;
    timer.stop();
    change(hosted);
    QVERIFY(timer.isActive());
    QCOMPARE(timer.interval(), 500);
    // Started anew while it runs.
    timer.start(1000000);
    addVolumeErrors(hosted, {u"st3"_s});
    QCOMPARE(timer.interval(), 500);
}

void tst_PluginSystemMonitor_Errors::changeOfDataLeavesTheCountTimerAlone()
{
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s});
    hosted.plugin.stationErrorNumberTimer.stop();
    hosted.plugin.errorModel->setData(hosted.plugin.errorModel->index(0, 0), u"Gate"_s,
                                      SystemErrorModel::TriggerDeviceNameRole);
    QVERIFY(!hosted.plugin.stationErrorNumberTimer.isActive());
}

void tst_PluginSystemMonitor_Errors::listStaysConsistent()
{
    HostedPlugin hosted;
    QObject parent;
    auto *proxy =
        qobject_cast<QAbstractItemModel *>(hosted.plugin.getSystemErrorSortFilterModel(&parent));
    constexpr auto mode = QAbstractItemModelTester::FailureReportingMode::QtTest;
    const QAbstractItemModelTester listTester(hosted.plugin.errorModel, mode);
    const QAbstractItemModelTester proxyTester(proxy, mode);

    addVolumeErrors(hosted, {u"st1"_s, u"st10"_s, u"st2"_s, u"st3"_s});
    hosted.plugin.addCameraError(u"st1/cam1"_s, CameraDisconnected, QString());
    hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st2"_s, u"Group"_s, u"g1"_s);
    hosted.plugin.invoke("monitorInsufficientRecordingDays", u"st2"_s, u"Renamed"_s, u"g1"_s);
    hosted.plugin.invoke("removeStationError", u"st1"_s);
    hosted.plugin.invoke("removeVolumeError", u"st2"_s);
    QCOMPARE(proxy->rowCount(), 2);
    hosted.plugin.PluginServerDisconnected();
    QCOMPARE(proxy->rowCount(), 0);
}

// Raising

void tst_PluginSystemMonitor_Errors::systemErrorHasItsRecord_data()
{
    QTest::addColumn<ErrorType>("type");
    QTest::addColumn<QString>("station");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("origin");
    QTest::addColumn<QString>("row");
    QTest::newRow("station") << StationDisconnected << u"st1"_s << QString() << QString()
                             << u"\"4_st1\" station \"st1\" device \"\" type 4 category 1 "
                                "name \"Station disconnected\" from \"Station: Lobby\""_s;
    QTest::newRow("network") << HighNetworkUsage << u"st1"_s << u"en0"_s << QString()
                             << u"\"2_st1_en0\" station \"st1\" device \"en0\" type 2 category 1 "
                                "name \"Network usage over 50%\" from \"Station: Lobby\""_s;
    QTest::newRow("unknown station") << HighCpuUsage << u"st9"_s << QString() << QString()
                                     << u"\"0_st9\" station \"st9\" device \"\" type 0 category 1 "
                                        "name \"CPU utilization over 90%\" from \"Station: \""_s;
    QTest::newRow("given origin") << VolumeDisconnected << u"st1"_s << QString() << u"As %1 given"_s
                                  << u"\"5_st1\" station \"st1\" device \"\" type 5 category 1 "
                                     "name \"Volume disconnected\" from \"As %1 given\""_s;
    QTest::newRow("reserved type") << Reserved << u"st1"_s << QString() << QString()
                                   << u"\"6_st1\" station \"st1\" device \"\" type 6 category 1 "
                                      "name \"\" from \"Station: Lobby\""_s;
}

void tst_PluginSystemMonitor_Errors::systemErrorHasItsRecord()
{
    QFETCH(const ErrorType, type);
    QFETCH(const QString, station);
    QFETCH(const QString, device);
    QFETCH(const QString, origin);
    QFETCH(const QString, row);
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    hosted.plugin.addSystemError(station, type, device, origin);
    QCOMPARE(hosted.errorRows(), QStringList{row});
    QVERIFY(hosted.plugin.lists(type, station, device));
}

void tst_PluginSystemMonitor_Errors::cameraErrorHasItsRecord_data()
{
    QTest::addColumn<ErrorType>("type");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("origin");
    QTest::addColumn<QString>("row");
    QTest::newRow("camera")
        << CameraDisconnected << u"st1/cam7"_s << QString()
        << u"\"3_st1/cam7\" station \"st1\" device \"st1/cam7\" type 3 category 2 "
           "name \"Camera disconnected\" from \"Station: Lobby / Camera: Door\""_s;
    QTest::newRow("given origin")
        << CameraDisconnected << u"st1/cam7"_s << u"Lobby - Door"_s
        << u"\"3_st1/cam7\" station \"st1\" device \"st1/cam7\" type 3 category 2 "
           "name \"Camera disconnected\" from \"Lobby - Door\""_s;
    QTest::newRow("id without a station")
        << CameraDisconnected << u"cam7"_s << QString()
        << u"\"3_cam7\" station \"\" device \"cam7\" type 3 category 2 "
           "name \"Camera disconnected\" from \"Station:  / Camera: N/A\""_s;
    QTest::newRow("other type")
        << HighCpuUsage << u"st1/cam7"_s << QString()
        << u"\"0_st1/cam7\" station \"st1\" device \"st1/cam7\" type 0 category 2 "
           "name \"CPU utilization over 90%\" from \"Station: Lobby / Camera: Door\""_s;
}

void tst_PluginSystemMonitor_Errors::cameraErrorHasItsRecord()
{
    QFETCH(const ErrorType, type);
    QFETCH(const QString, device);
    QFETCH(const QString, origin);
    QFETCH(const QString, row);
    HostedPlugin hosted;
    QStandardItem *station = hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    TopologyModel::addCamera(station, u"st1/cam7"_s, u"Door"_s);
    hosted.plugin.addCameraError(device, type, origin);
    QCOMPARE(hosted.errorRows(), QStringList{row});
    QVERIFY(hosted.plugin.lists(type, device));
}

void tst_PluginSystemMonitor_Errors::recordHasNothingOfTheOneBefore()
{
    HostedPlugin hosted;
    hosted.plugin.addCameraError(u"st1/cam1"_s, CameraDisconnected, u"Hall"_s);
    hosted.plugin.addCameraError(u"st2/cam1"_s, HighCpuUsage, u"Yard"_s);
    hosted.plugin.addCameraError(u"cam"_s, HighCpuUsage, u"Roof"_s);
    QCOMPARE(hosted.errorRows(),
             QStringList({u"\"3_st1/cam1\" station \"st1\" device \"st1/cam1\" type 3 category 2 "
                          "name \"Camera disconnected\" from \"Hall\""_s,
                          u"\"0_st2/cam1\" station \"st2\" device \"st2/cam1\" type 0 category 2 "
                          "name \"CPU utilization over 90%\" from \"Yard\""_s,
                          u"\"0_cam\" station \"\" device \"cam\" type 0 category 2 "
                          "name \"CPU utilization over 90%\" from \"Roof\""_s}));
}

void tst_PluginSystemMonitor_Errors::equalTextsOfErrorsAreShared()
{
    HostedPlugin hosted;
    for (const QString &camera : {u"st1/cam1"_s, u"st1/cam2"_s})
        hosted.plugin.addCameraError(camera, CameraDisconnected, u"Hall"_s);
    const auto text = [&](int row, int role) {
        return hosted.plugin.errorModel->index(row, 0).data(role).toString();
    };
    for (const int role : {SystemErrorModel::StationIDRole, SystemErrorModel::ErrorNameRole})
        QVERIFY(text(0, role).isSharedWith(text(1, role)));
}

void tst_PluginSystemMonitor_Errors::storageErrorHasItsRecord()
{
    HostedPlugin hosted;
    hosted.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    hosted.plugin.addStorageError(u"st1"_s, InsufficientRecordingDays, u"Doors"_s, u"g1"_s);
    QCOMPARE(hosted.errorRows(),
             QStringList{u"\"7_st1_g1\" station \"st1\" device \"st1\" type 7 category 1 "
                         "name \"Insufficient recording days\" "
                         "from \"Station: Lobby / Archive: Doors\""_s});
    QVERIFY(hosted.plugin.lists(InsufficientRecordingDays, u"st1"_s, u"g1"_s));
}

void tst_PluginSystemMonitor_Errors::errorCarriesTheTimeOfItsRaising_data()
{
    using Raise = void (*)(HostedPlugin &);
    QTest::addColumn<Raise>("raise");
    QTest::newRow("system") << Raise([](HostedPlugin &hosted) {
        hosted.plugin.addSystemError(u"st1"_s, HighCpuUsage, QString(), QString());
    });
    QTest::newRow("camera") << Raise([](HostedPlugin &hosted) {
        hosted.plugin.addCameraError(u"st1/cam1"_s, CameraDisconnected, QString());
    });
    QTest::newRow("storage") << Raise([](HostedPlugin &hosted) {
        hosted.plugin.addStorageError(u"st1"_s, InsufficientRecordingDays, u"Doors"_s, u"g1"_s);
    });
}

void tst_PluginSystemMonitor_Errors::errorCarriesTheTimeOfItsRaising()
{
    using Raise = void (*)(HostedPlugin &);
    QFETCH(const Raise, raise);
    HostedPlugin hosted;
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    raise(hosted);
    const qint64 after = QDateTime::currentMSecsSinceEpoch();
    const QVariant time =
        hosted.plugin.errorModel->index(0, 0).data(SystemErrorModel::TimestampRole);
    QCOMPARE(time.typeId(), int(QMetaType::LongLong));
    QVERIFY(before <= time.toLongLong() && time.toLongLong() <= after);
}

void tst_PluginSystemMonitor_Errors::raisingTwiceListsTwice()
{
    HostedPlugin hosted;
    for (int i = 0; i < 2; ++i) {
        hosted.plugin.addSystemError(u"st1"_s, HighCpuUsage, QString(), QString());
        hosted.plugin.addCameraError(u"st1/cam1"_s, CameraDisconnected, QString());
        hosted.plugin.addStorageError(u"st1"_s, InsufficientRecordingDays, u"Doors"_s, u"g1"_s);
    }
    const QStringList once{u"0_st1"_s, u"3_st1/cam1"_s, u"7_st1_g1"_s};
    QCOMPARE(hosted.errorKeys(), once + once);
}

void tst_PluginSystemMonitor_Errors::errorExistsUnderItsOwnKeyOnly()
{
    HostedPlugin hosted;
    hosted.plugin.addSystemError(u"st1"_s, HighNetworkUsage, u"en0"_s, QString());
    QVERIFY(hosted.plugin.lists(HighNetworkUsage, u"st1"_s, u"en0"_s));
    QVERIFY(!hosted.plugin.lists(HighNetworkUsage, u"st1"_s));
    QVERIFY(!hosted.plugin.lists(HighNetworkUsage, u"st1"_s, u"EN0"_s));
    QVERIFY(!hosted.plugin.lists(HighNetworkUsage, u"st2"_s, u"en0"_s));
    QVERIFY(!hosted.plugin.lists(HighCpuUsage, u"st1"_s, u"en0"_s));
    // Two ways to the same key are the same error.
    QVERIFY(hosted.plugin.lists(HighNetworkUsage, u"st1_en0"_s));
}

void tst_PluginSystemMonitor_Errors::nothingExistsInAnEmptyList()
{
    TestedPlugin neverInitialised;
    QVERIFY(!neverInitialised.lists(HighCpuUsage, u"st1"_s));
    HostedPlugin hosted;
    QVERIFY(!hosted.plugin.lists(HighCpuUsage, u"st1"_s));
    QVERIFY(!hosted.plugin.lists(HighCpuUsage, QString()));
}

// Snoozed

void tst_PluginSystemMonitor_Errors::snoozedStationsDisconnectionIsNotListed()
{
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"st0"_s, u"st1"_s};
    const CollectedTrace trace;
    hosted.plugin.addSystemError(u"st1"_s, StationDisconnected, QString(), u"Gate"_s);
    QCOMPARE(hosted.errorKeys(), QStringList());
    QVERIFY(!hosted.plugin.lists(StationDisconnected, u"st1"_s));
    QCOMPARE(trace.lines(), QStringList{u"3 Snooze station disconnection error st1"_s});
}

void tst_PluginSystemMonitor_Errors::snoozedStationsOtherErrorsAreListed()
{
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"st1"_s};
    const CollectedTrace trace;
    for (const ErrorType type : {HighCpuUsage, HighMemoryUsage, HighNetworkUsage,
                                 VolumeDisconnected, InsufficientRecordingDays})
        hosted.plugin.addSystemError(u"st1"_s, type, QString(), QString());
    hosted.plugin.addStorageError(u"st1"_s, InsufficientRecordingDays, u"Doors"_s, u"g1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList({u"0_st1"_s, u"1_st1"_s, u"2_st1"_s, u"5_st1"_s,
                                              u"7_st1"_s, u"7_st1_g1"_s}));
    QCOMPARE(trace.lines(), QStringList());
}

void tst_PluginSystemMonitor_Errors::snoozedCamerasDisconnectionIsNotListed()
{
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"st1/cam1"_s};
    const CollectedTrace trace;
    hosted.plugin.addCameraError(u"st1/cam1"_s, CameraDisconnected, u"Door"_s);
    QCOMPARE(hosted.errorKeys(), QStringList());
    QCOMPARE(trace.lines(), QStringList{u"3 Snooze camera disconnection error st1/cam1"_s});
}

void tst_PluginSystemMonitor_Errors::snoozedCamerasOtherErrorsAreListed()
{
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"st1/cam1"_s};
    hosted.plugin.addCameraError(u"st1/cam1"_s, HighCpuUsage, u"Door"_s);
    hosted.plugin.addCameraError(u"st1/cam1"_s, StationDisconnected, u"Door"_s);
    QCOMPARE(hosted.errorKeys(), QStringList({u"0_st1/cam1"_s, u"4_st1/cam1"_s}));
}

void tst_PluginSystemMonitor_Errors::snoozeSuppressesTheVeryIdOnly_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("other case") << u"ST1/CAM1"_s;
    QTest::newRow("longer") << u"st1/cam10"_s;
    QTest::newRow("shorter") << u"st1/cam"_s;
    QTest::newRow("station") << u"st1"_s;
}

void tst_PluginSystemMonitor_Errors::snoozeSuppressesTheVeryIdOnly()
{
    QFETCH(const QString, id);
    HostedPlugin hosted;
    hosted.plugin.snoozedDeviceList = QStringList{u"st1/cam1"_s};
    hosted.plugin.addSystemError(id, StationDisconnected, QString(), QString());
    hosted.plugin.addCameraError(id, CameraDisconnected, QString());
    QCOMPARE(hosted.errorKeys(), QStringList({u"4_"_s + id, u"3_"_s + id}));
}

void tst_PluginSystemMonitor_Errors::raisingWritesNoTraceOtherwise()
{
    HostedPlugin hosted;
    const CollectedTrace trace;
    hosted.plugin.addSystemError(u"st1"_s, StationDisconnected, QString(), QString());
    hosted.plugin.addCameraError(u"st1/cam1"_s, CameraDisconnected, QString());
    hosted.plugin.addStorageError(u"st1"_s, InsufficientRecordingDays, u"Doors"_s, u"g1"_s);
    hosted.plugin.removeStationFromErrorModel(u"st1"_s);
    QCOMPARE(trace.questions().size(), 0);
}

// Removing

void tst_PluginSystemMonitor_Errors::errorsAreRemovedByRoleValue_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("role");
    QTest::addColumn<Qt::MatchFlags>("flags");
    QTest::addColumn<QStringList>("left");
    const auto row = [](const char *name, const QString &value, int role, Qt::MatchFlags flags,
                        const QStringList &left) {
        QTest::newRow(name) << value << role << flags << left;
    };
    const QStringList all{u"5_st1"_s, u"4_st10"_s, u"3_st1/cam1"_s, u"0_ST1"_s, u"5_st2"_s};
    row("exact station", u"st1"_s, SystemErrorModel::StationIDRole, Qt::MatchExactly,
        {u"4_st10"_s, u"0_ST1"_s, u"5_st2"_s});
    row("beginning", u"st1"_s, SystemErrorModel::StationIDRole,
        Qt::MatchStartsWith | Qt::MatchCaseSensitive, {u"0_ST1"_s, u"5_st2"_s});
    row("beginning in any case", u"st1"_s, SystemErrorModel::StationIDRole, Qt::MatchStartsWith,
        {u"5_st2"_s});
    row("part of the name", u"disconnected"_s, SystemErrorModel::ErrorNameRole, Qt::MatchContains,
        {u"0_ST1"_s});
    row("key", u"5_st2"_s, SystemErrorModel::UniqueIDRole, Qt::MatchExactly, all.first(4));
    row("type as text", u"5"_s, SystemErrorModel::ErrorTypeRole, Qt::MatchFixedString,
        {u"4_st10"_s, u"3_st1/cam1"_s, u"0_ST1"_s});
    row("nothing found", u"st9"_s, SystemErrorModel::StationIDRole, Qt::MatchExactly, all);
}

void tst_PluginSystemMonitor_Errors::errorsAreRemovedByRoleValue()
{
    QFETCH(const QString, value);
    QFETCH(const int, role);
    QFETCH(const Qt::MatchFlags, flags);
    QFETCH(const QStringList, left);
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s});
    hosted.plugin.addSystemError(u"st10"_s, StationDisconnected, QString(), QString());
    hosted.plugin.addCameraError(u"st1/cam1"_s, CameraDisconnected, QString());
    hosted.plugin.addSystemError(u"ST1"_s, HighCpuUsage, QString(), QString());
    addVolumeErrors(hosted, {u"st2"_s});

    hosted.plugin.removeErrorFromModel(value, role, flags);
    QCOMPARE(hosted.errorKeys(), left);
    QCOMPARE(hosted.plugin.lists(VolumeDisconnected, u"st1"_s), left.contains(u"5_st1"_s));
    QCOMPARE(hosted.plugin.lists(StationDisconnected, u"st10"_s), left.contains(u"4_st10"_s));
    QCOMPARE(hosted.plugin.lists(CameraDisconnected, u"st1/cam1"_s),
             left.contains(u"3_st1/cam1"_s));
    QCOMPARE(hosted.plugin.lists(HighCpuUsage, u"ST1"_s), left.contains(u"0_ST1"_s));
    QCOMPARE(hosted.plugin.lists(VolumeDisconnected, u"st2"_s), left.contains(u"5_st2"_s));
}

void tst_PluginSystemMonitor_Errors::errorsAreRemovedInTheOrderFound()
{
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s, u"x"_s, u"st2"_s, u"st3"_s});
    const LeavingKeys leaving(hosted);
    hosted.plugin.removeErrorFromModel(u"st"_s, SystemErrorModel::StationIDRole,
                                       Qt::MatchStartsWith);
    QCOMPARE(leaving.keys, QStringList({u"5_st1"_s, u"5_st2"_s, u"5_st3"_s}));
    QCOMPARE(hosted.errorKeys(), QStringList{u"5_x"_s});
}

void tst_PluginSystemMonitor_Errors::rowThatLeftMeanwhileIsPassedOver()
{
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s, u"st2"_s, u"x"_s});
    // Someone who sees the first row leave takes the second one away.
    const auto connection =
        connect(hosted.plugin.errorModel, &QAbstractItemModel::rowsRemoved, this, [&] {
            if (hosted.plugin.errorModel->rowCount() == 2)
                hosted.plugin.errorModel->removeRow(0);
        });
    hosted.plugin.removeErrorFromModel(u"st"_s, SystemErrorModel::StationIDRole,
                                       Qt::MatchStartsWith);
    disconnect(connection);
    QCOMPARE(hosted.errorKeys(), QStringList{u"5_x"_s});
    QVERIFY(hosted.plugin.lists(VolumeDisconnected, u"x"_s));
}

void tst_PluginSystemMonitor_Errors::cameraRemovalGoesFromTheFirstToTheLast()
{
    HostedPlugin hosted;
    for (const ErrorType type : {HighNetworkUsage, CameraDisconnected, HighCpuUsage}) {
        hosted.plugin.addCameraError(u"st1/cam1"_s, type, QString());
        hosted.plugin.addCameraError(u"st1/cam2"_s, type, QString());
    }
    const LeavingKeys leaving(hosted);
    hosted.plugin.invoke("removeCameraError", u"st1/cam1"_s);
    QCOMPARE(leaving.keys, QStringList({u"2_st1/cam1"_s, u"3_st1/cam1"_s, u"0_st1/cam1"_s}));
}

void tst_PluginSystemMonitor_Errors::cameraRemovalClearsAllItsErrors()
{
    HostedPlugin hosted;
    hosted.plugin.addCameraError(u"st1/cam1"_s, CameraDisconnected, QString());
    hosted.plugin.addCameraError(u"st1/cam2"_s, CameraDisconnected, QString());
    hosted.plugin.addCameraError(u"st1/cam1"_s, HighCpuUsage, QString());
    hosted.plugin.invoke("removeCameraError", u"st1/cam1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList{u"3_st1/cam2"_s});
    QVERIFY(!hosted.plugin.lists(CameraDisconnected, u"st1/cam1"_s));
    QVERIFY(!hosted.plugin.lists(HighCpuUsage, u"st1/cam1"_s));
}

void tst_PluginSystemMonitor_Errors::cameraRemovalMatchesTheWholeId_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QStringList>("left");
    const QString cpu = u"0_st1"_s;
    const QString camera = u"3_st1/cam1"_s;
    const QString cameraTen = u"3_st1/cam10"_s;
    const QString network = u"2_st1_en0"_s;
    const QString days = u"7_st1_g1"_s;
    QTest::newRow("camera") << u"st1/cam1"_s << QStringList{cpu, cameraTen, network, days};
    QTest::newRow("other case") << u"ST1/cam1"_s
                                << QStringList{cpu, camera, cameraTen, network, days};
    QTest::newRow("beginning") << u"st1/cam"_s
                               << QStringList{cpu, camera, cameraTen, network, days};
    // Whatever has the id as its device.
    QTest::newRow("interface") << u"en0"_s << QStringList{cpu, camera, cameraTen, days};
    QTest::newRow("station of a group") << u"st1"_s << QStringList{cpu, camera, cameraTen, network};
    QTest::newRow("null") << QString() << QStringList{camera, cameraTen, network, days};
    QTest::newRow("empty") << u""_s << QStringList{camera, cameraTen, network, days};
}

void tst_PluginSystemMonitor_Errors::cameraRemovalMatchesTheWholeId()
{
    QFETCH(const QString, id);
    QFETCH(const QStringList, left);
    HostedPlugin hosted;
    hosted.plugin.addSystemError(u"st1"_s, HighCpuUsage, QString(), QString());
    hosted.plugin.addCameraError(u"st1/cam1"_s, CameraDisconnected, QString());
    hosted.plugin.addCameraError(u"st1/cam10"_s, CameraDisconnected, QString());
    hosted.plugin.addSystemError(u"st1"_s, HighNetworkUsage, u"en0"_s, QString());
    hosted.plugin.addStorageError(u"st1"_s, InsufficientRecordingDays, u"Doors"_s, u"g1"_s);
    hosted.plugin.invoke("removeCameraError", id);
    QCOMPARE(hosted.errorKeys(), left);
}

void tst_PluginSystemMonitor_Errors::stationRemovalGoesByPrefix_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QStringList>("left");
    const QString own = u"5_st1"_s;
    const QString camera = u"3_st1/cam1"_s;
    const QString sub = u"3_st1/sub/cam1"_s;
    const QString ten = u"5_st10"_s;
    const QString two = u"5_st2"_s;
    const QString upper = u"5_ST1"_s;
    const QString stray = u"3_cam"_s;
    QTest::newRow("station") << u"st1"_s << QStringList{two, upper, stray};
    QTest::newRow("sub-station") << u"st1/sub"_s
                                 << QStringList{own, camera, ten, two, upper, stray};
    QTest::newRow("common beginning") << u"st"_s << QStringList{upper, stray};
    QTest::newRow("unknown") << u"st9"_s << QStringList{own, camera, sub, ten, two, upper, stray};
    QTest::newRow("id of a camera")
        << u"cam"_s << QStringList{own, camera, sub, ten, two, upper, stray};
    QTest::newRow("null") << QString() << QStringList();
    QTest::newRow("empty") << u""_s << QStringList();
}

void tst_PluginSystemMonitor_Errors::stationRemovalGoesByPrefix()
{
    QFETCH(const QString, id);
    QFETCH(const QStringList, left);
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s});
    hosted.plugin.addCameraError(u"st1/cam1"_s, CameraDisconnected, QString());
    hosted.plugin.addCameraError(u"st1/sub/cam1"_s, CameraDisconnected, QString());
    addVolumeErrors(hosted, {u"st10"_s, u"st2"_s, u"ST1"_s});
    hosted.plugin.addCameraError(u"cam"_s, CameraDisconnected, QString());
    hosted.plugin.invoke("removeStationError", id);
    QCOMPARE(hosted.errorKeys(), left);
    QCOMPARE(hosted.plugin.lists(VolumeDisconnected, u"st1"_s), left.contains(u"5_st1"_s));
    QCOMPARE(hosted.plugin.lists(VolumeDisconnected, u"st2"_s), left.contains(u"5_st2"_s));
}

void tst_PluginSystemMonitor_Errors::stationRemovalGoesFromTheEnd()
{
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s, u"st2"_s, u"st10"_s, u"st11"_s});
    const LeavingKeys leaving(hosted);
    hosted.plugin.removeStationFromErrorModel(u"st1"_s);
    QCOMPARE(leaving.keys, QStringList({u"5_st11"_s, u"5_st10"_s, u"5_st1"_s}));
}

void tst_PluginSystemMonitor_Errors::removalIsReachedByBothNames()
{
    HostedPlugin hosted;
    addVolumeErrors(hosted, {u"st1"_s, u"st2"_s});
    hosted.plugin.removeStationFromErrorModel(u"st1"_s);
    QCOMPARE(hosted.errorKeys(), QStringList{u"5_st2"_s});
    hosted.plugin.invoke("removeStationError", u"st2"_s);
    QCOMPARE(hosted.errorKeys(), QStringList());
}

void tst_PluginSystemMonitor_Errors::removalFromAnEmptyListDoesNothing()
{
    HostedPlugin hosted;
    hosted.plugin.invoke("removeCameraError", u"st1/cam1"_s);
    hosted.plugin.invoke("removeStationError", u"st1"_s);
    hosted.plugin.invoke("removeStationError", QString());
    hosted.plugin.removeErrorFromModel(u"st1"_s, SystemErrorModel::StationIDRole, Qt::MatchExactly);
    QVERIFY(!hosted.plugin.stationErrorNumberTimer.isActive());
    QCOMPARE(hosted.log.take(), QStringList());
}

QTEST_GUILESS_MAIN(tst_PluginSystemMonitor_Errors)
#include "tst_PluginSystemMonitor_Errors.moc"
