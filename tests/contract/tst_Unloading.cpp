#include "FakeTopologyPlugin.h"
#include "HandMadeFramework.h"
#include "LoadedFile.h"
#include "PluginBase.h"
#include "PluginIDs.h"
#include "PrintedValue.h"
#include "TestTraceLibrary.h"
#include "TopologyModel.h"

#include <QAbstractItemModel>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// The plug-in file leaves the process again. Each step needs the one before.
class tst_Unloading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void loadingOpensTheTraceLibrary();
    void objectMayComeAndGo();
    void objectLivesThroughEverySubject();
    void unloadingRemovesTheFileFromTheProcess();
    void unloadingClosesTheTraceLibrary();
    void noTimerCallsIntoTheUnloadedFile();
    void fileMayBeLoadedAgain();

private:
    QPluginLoader m_loader{QStringLiteral(PLUGIN_FILE)};
};

void tst_Unloading::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_Unloading::loadingOpensTheTraceLibrary()
{
    QVERIFY(!TestTraceLibrary::isLoaded());
    m_loader.setLoadHints({}); // by default Qt keeps every plug-in loaded
    QVERIFY2(m_loader.load(), qUtf8Printable(m_loader.errorString()));
    QVERIFY(isLoadedFile(QStringLiteral(PLUGIN_FILE)));
    QVERIFY(TestTraceLibrary::isLoaded());
}

void tst_Unloading::objectMayComeAndGo()
{
    for (int i = 0; i < 2; ++i) {
        QObject *const object = m_loader.instance();
        QVERIFY(object);
        QCOMPARE(m_loader.instance(), object);
        delete object;
    }
    QVERIFY(TestTraceLibrary::isLoaded());
}

// What an object leaves behind in Qt's global tables must not hold the file.
void tst_Unloading::objectLivesThroughEverySubject()
{
    CallLog log;
    TopologyModel topologyModel;
    topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    FakeTopologyPlugin topology(log);
    topology.model = &topologyModel;
    HandMadeFramework host(log);
    host.registerPlugin(PluginID::Topology, &topology);
    const std::unique_ptr<QObject> object(m_loader.instance());
    host.registerPlugin(PluginID::SystemMonitor, object.get());
    const auto plugin = qobject_cast<PluginBase *>(object.get());
    QVERIFY(plugin->InitialPluginBase(nullptr, host.handle(), host.framework()));
    plugin->LoadPairPluginDone();

    QObject *errors = nullptr;
    QVERIFY(
        QMetaObject::invokeMethod(plugin, "getSystemErrorModel", Q_RETURN_ARG(QObject *, errors)));
    QObject *proxy = nullptr;
    QVERIFY(QMetaObject::invokeMethod(plugin, "getSystemErrorSortFilterModel",
                                      Q_RETURN_ARG(QObject *, proxy), Q_ARG(QObject *, plugin)));
    QVERIFY(QMetaObject::invokeMethod(plugin, "initNodeStatusError"));
    QVERIFY(plugin->setProperty("focusStationResource", u"st1"_s));
    plugin->EventProcessor(u"SystemResChanged"_s, 0, 0, 0, QVariantMap{{u"cpuPercentage"_s, 100}},
                           u"st1"_s);
    QCOMPARE(errorKeys(*qobject_cast<QAbstractItemModel *>(errors)),
             QStringList({u"4_st1"_s, u"0_st1"_s}));
}

void tst_Unloading::unloadingRemovesTheFileFromTheProcess()
{
    QVERIFY2(m_loader.unload(), qUtf8Printable(m_loader.errorString()));
    QVERIFY(!isLoadedFile(QStringLiteral(PLUGIN_FILE)));
}

void tst_Unloading::unloadingClosesTheTraceLibrary()
{
    QVERIFY(!TestTraceLibrary::isLoaded());
}

void tst_Unloading::noTimerCallsIntoTheUnloadedFile()
{
    // Longer than the recount and the sampler would have waited; a call would end the process.
    QTest::qWait(1500);
    QVERIFY(!isLoadedFile(QStringLiteral(PLUGIN_FILE)));
}

void tst_Unloading::fileMayBeLoadedAgain()
{
    const std::unique_ptr<QObject> object(m_loader.instance());
    QVERIFY2(object, qUtf8Printable(m_loader.errorString()));
    QVERIFY(TestTraceLibrary::isLoaded());
}

QTEST_GUILESS_MAIN(tst_Unloading)
#include "tst_Unloading.moc"
