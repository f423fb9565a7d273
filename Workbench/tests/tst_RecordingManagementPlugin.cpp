#include "RecordingManagementPlugin.h"

#include "FakeMonitor.h"
#include "Framework.h"
#include "LocalServerLink.h"
#include "PluginIds.h"
#include "TestSite.h"
#include "VirtualClock.h"

#include <QCoreApplication>
#include <QTest>

#include <memory>

class tst_RecordingManagementPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void reportsWhatIsWell();
    void reportsWhatIsWrong();
    void answersFromTheEventLoop();
    void hasNothingToSayOf_data();
    void hasNothingToSayOf();
    void hasNothingToSayWithoutAConnection();
    void managesWithoutAMonitor();

private:
    QStringList reload(const QString &stationId);

    CallLog m_log;
    VirtualClock m_clock;
    std::unique_ptr<FakeMonitor> m_monitor;
    std::unique_ptr<SiteServer> m_server;
    std::unique_ptr<LocalServerLink> m_link;
    std::unique_ptr<Framework> m_framework;
    std::unique_ptr<RecordingManagementPlugin> m_plugin;
};

void tst_RecordingManagementPlugin::init()
{
    m_log.take();
    m_monitor = std::make_unique<FakeMonitor>(m_log);
    m_server = std::make_unique<SiteServer>(testSite(), m_clock);
    m_link = std::make_unique<LocalServerLink>(*m_server);
    m_link->open();
    m_framework = std::make_unique<Framework>(
        [](const QString &, const QVariant &, const QString &, const Framework::Answer &) {});
    m_framework->registerPlugin(PluginIds::SystemMonitor, m_monitor.get());
    m_plugin = std::make_unique<RecordingManagementPlugin>(*m_framework, *m_link);
}

void tst_RecordingManagementPlugin::cleanup()
{
    m_plugin.reset();
    m_link.reset();
    m_server.reset();
}

// As another plug-in does it: by name.
QStringList tst_RecordingManagementPlugin::reload(const QString &stationId)
{
    QMetaObject::invokeMethod(m_plugin.get(), "reloadStorageUsageInfo", Q_ARG(QString, stationId));
    QCoreApplication::sendPostedEvents();
    return m_log.take();
}

void tst_RecordingManagementPlugin::reportsWhatIsWell()
{
    QCOMPARE(reload(QStringLiteral("north")),
             QStringList({QStringLiteral("removeVolumeError north"),
                          QStringLiteral("monitorSufficientRecordingGroup north g1")}));
    QCOMPARE(reload(QStringLiteral("south")),
             QStringList{QStringLiteral("removeVolumeError south")});
}

void tst_RecordingManagementPlugin::reportsWhatIsWrong()
{
    m_server->setVolumeConnected(QStringLiteral("north"), QStringLiteral("v2"), false);
    m_server->setRecordedDays(QStringLiteral("north"), QStringLiteral("g1"), 3);
    QCOMPARE(
        reload(QStringLiteral("north")),
        QStringList({QStringLiteral("monitorVolumeStatus north"),
                     QStringLiteral("monitorInsufficientRecordingDays north 'Entrances' g1")}));
}

void tst_RecordingManagementPlugin::answersFromTheEventLoop()
{
    m_plugin->reloadStorageUsageInfo(QStringLiteral("south"));
    QCOMPARE(m_log.take(), QStringList());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(m_log.take().size(), 1);
}

void tst_RecordingManagementPlugin::hasNothingToSayOf_data()
{
    QTest::addColumn<QString>("stationId");
    QTest::newRow("a disconnected station") << QStringLiteral("north");
    QTest::newRow("an unknown station") << QStringLiteral("west");
    QTest::newRow("no station") << QString();
}

void tst_RecordingManagementPlugin::hasNothingToSayOf()
{
    QFETCH(QString, stationId);
    m_server->setStationConnected(QStringLiteral("north"), false);
    QCOMPARE(reload(stationId), QStringList());
}

void tst_RecordingManagementPlugin::hasNothingToSayWithoutAConnection()
{
    m_link->close();
    QCOMPARE(reload(QStringLiteral("north")), QStringList());
}

void tst_RecordingManagementPlugin::managesWithoutAMonitor()
{
    m_monitor.reset();
    QCOMPARE(reload(QStringLiteral("north")), QStringList());
}

QTEST_GUILESS_MAIN(tst_RecordingManagementPlugin)
#include "tst_RecordingManagementPlugin.moc"
