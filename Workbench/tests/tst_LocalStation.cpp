#include "LocalStation.h"

#include "ServerNames.h"
#include "SiteServer.h"
#include "TestSite.h"
#include "VirtualClock.h"

#include <QSignalSpy>
#include <QSysInfo>
#include <QTest>

#include <memory>

class tst_LocalStation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isNamedAfterTheMachine();
    void reportsSampleAndNetwork();
    void failedSampleIsNotReported();

private:
    QVariantMap lastReport(const QSignalSpy &events) const;

    VirtualClock m_clock;
    std::unique_ptr<SiteServer> m_server;
};

void tst_LocalStation::init()
{
    Site site = testSite();
    site.stations.push_back(LocalStation::station());
    m_server = std::make_unique<SiteServer>(site, m_clock);
}

void tst_LocalStation::cleanup()
{
    m_server.reset();
}

QVariantMap tst_LocalStation::lastReport(const QSignalSpy &events) const
{
    return events.last().at(1).toMap();
}

void tst_LocalStation::isNamedAfterTheMachine()
{
    const Station station = LocalStation::station();
    QCOMPARE(station.id, QStringLiteral("this-machine"));
    QVERIFY(station.name.contains(QSysInfo::machineHostName()));
    QVERIFY(station.connected);
    QVERIFY(station.supportsMonitoring);
}

void tst_LocalStation::reportsSampleAndNetwork()
{
    const QSignalSpy events(m_server.get(), &SiteServer::eventRaised);
    const QString tree = QFINDTESTDATA("data/network") + QStringLiteral("/office");
    LocalStation station(*m_server, NetworkCounters(tree));

    station.report(12, 34);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.last().at(0).toString(), ServerNames::SystemResChanged);
    QCOMPARE(events.last().at(2).toString(), ThisMachineId);
    QCOMPARE(lastReport(events).value(ServerNames::KeyCpuPercentage).toInt(), 12);
    QCOMPARE(lastReport(events).value(ServerNames::KeyMemPercentage).toInt(), 34);

    // The load of the network needs two readings at different times.
    QVariantList networks;
    const auto readAgain = [&] {
        station.report(12, 34);
        QCoreApplication::sendPostedEvents();
        networks = lastReport(events).value(ServerNames::KeyNetworkUsageList).toList();
    };
    for (int i = 0; i < 1000 && networks.isEmpty(); ++i) {
        QTest::qWait(1);
        readAgain();
    }
    QCOMPARE(networks.size(), 3);
    QCOMPARE(networks.at(0).toMap().value(ServerNames::KeyNetworkInterface).toString(),
             QStringLiteral("enp3s0"));
}

void tst_LocalStation::failedSampleIsNotReported()
{
    const QSignalSpy events(m_server.get(), &SiteServer::eventRaised);
    LocalStation station(*m_server, NetworkCounters(QStringLiteral("/nowhere")));
    station.report(-100, 34);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(events.size(), 0);
    station.report(12, 0);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(events.size(), 0);
    station.report(0, 1);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(events.size(), 1);
}

QTEST_GUILESS_MAIN(tst_LocalStation)
#include "tst_LocalStation.moc"
