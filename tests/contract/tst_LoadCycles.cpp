#include "FakeOperationalLogPlugin.h"
#include "FakeRecordingPlugin.h"
#include "FakeTopologyPlugin.h"
#include "HandMadeFramework.h"
#include "LoadedFile.h"
#include "MemoryUse.h"
#include "PluginBase.h"
#include "PluginIDs.h"
#include "TestTraceLibrary.h"
#include "TopologyModel.h"

#include <QCoreApplication>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The plug-in comes and goes a thousand times, its file with it, and leaves nothing behind: with a
/// trace library, which it has to open and to close each time, and without.
class tst_LoadCycles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void thousandLivesLeaveNothingBehind();
};

namespace {

constexpr int Lives = 1000;
// What is made once, and once more by the first lives, stands by then.
constexpr int FirstLives = 200;

// Less than a string in every second life.
constexpr qint64 MostHeapGrowth = qint64{16} * 1024;
constexpr qint64 MostResidentGrowth = qint64{2} * 1024 * 1024;

bool hasTraceLibrary()
{
    return qgetenv("TRACE_LIBRARY_VARIANT") == "complete";
}

/// Loads the plug-in, has it do something of everything, ends it and unloads the file.
void live(int number)
{
    CallLog log;
    HandMadeFramework framework(log);
    TopologyModel model;
    FakeTopologyPlugin topology(log);
    FakeRecordingPlugin recording(log);
    FakeOperationalLogPlugin operationalLog(log);
    topology.model = &model;
    QStandardItem *const station = model.addStation(u"st1"_s, u"Lobby"_s, false);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Door"_s, false);

    QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    loader.setLoadHints({}); // by default Qt keeps every plug-in loaded
    QObject *const object = loader.instance();
    auto *const plugin = qobject_cast<PluginBase *>(object);
    if (!plugin)
        qFatal("%s", qUtf8Printable(loader.errorString()));
    if (TestTraceLibrary::isLoaded() != hasTraceLibrary())
        qFatal("The trace library is not what it should be in life %d", number);
    framework.registerPlugin(PluginID::SystemMonitor, object);
    framework.registerPlugin(PluginID::Topology, &topology);
    framework.registerPlugin(PluginID::RecordingManagement, &recording);
    framework.registerPlugin(PluginID::OperationalLog, &operationalLog);

    if (!plugin->InitialPluginBase(nullptr, framework.handle(), framework.framework()))
        qFatal("The plug-in cannot be initialised in life %d", number);
    plugin->LoadPairPluginDone();
    plugin->PluginServerConnected();
    object->setProperty("focusStationResource", u"st1"_s);
    const QVariantMap network{{u"networkInterface"_s, u"en0"_s}, {u"networkPercentage"_s, 99}};
    const QVariantMap report{{u"cpuPercentage"_s, 99},
                             {u"memPercentage"_s, 99},
                             {u"networkUsageList"_s, QVariantList{network}}};
    plugin->EventProcessor(u"SystemResChanged"_s, 0, 0, 0, report, u"st1"_s);
    QMetaObject::invokeMethod(object, "initNodeStatusError");
    Q_EMIT topology.nodeStatusChanged(0, u"st2/cam1"_s, false);
    QObject owner;
    QObject *view = nullptr;
    QMetaObject::invokeMethod(object, "getSystemErrorSortFilterModel",
                              Q_RETURN_ARG(QObject *, view), Q_ARG(QObject *, &owner));
    const QVariantMap snooze{{u"nodeID"_s, u"st1/cam1"_s}, {u"type"_s, 3}};
    plugin->CommandProcessor(u"setSnooze"_s, snooze, nullptr, u"0"_s, {}, false, {});
    plugin->EventProcessor(u"SnoozeError"_s, 0, 0, 0, snooze, {});
    Q_EMIT topology.camStatusRetrievedChanged(true);
    bool isAsked = false;
    QMetaObject::invokeMethod(object, "checkSupportSystemMonitor", Q_RETURN_ARG(bool, isAsked),
                              Q_ARG(QString, u"st1"_s));
    plugin->CommandProcessor(u"isSupportSystemMonitor"_s, {}, framework.commands().last().context,
                             u"0"_s, {}, false, {});

    // The code of the view goes with the file.
    delete view;
    delete object;
    if (!loader.unload())
        qFatal("%s", qUtf8Printable(loader.errorString()));
    if (isLoadedFile(loader.fileName()))
        qFatal("The plug-in's file stays after life %d", number);
    if (TestTraceLibrary::isLoaded())
        qFatal("The trace library stays after life %d", number);
    QCoreApplication::sendPostedEvents();
}

} // namespace

void tst_LoadCycles::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_LoadCycles::thousandLivesLeaveNothingBehind()
{
    for (int life = 0; life < FirstLives; ++life)
        live(life);
    const MemoryUse before = MemoryUse::now();
    for (int life = FirstLives; life < Lives; ++life)
        live(life);
    const MemoryUse after = MemoryUse::now();
    qInfo("%lld bytes more on the heap, %lld more resident", after.allocated - before.allocated,
          after.resident - before.resident);
    if (!MemoryUse::isMeaningful())
        return;
    QCOMPARE_LT(after.allocated - before.allocated, MostHeapGrowth);
    QCOMPARE_LT(after.resident - before.resident, MostResidentGrowth);
}

QTEST_GUILESS_MAIN(tst_LoadCycles)
#include "tst_LoadCycles.moc"
