#include "DashboardFeed.h"

#include "AheadLink.h"
#include "DashboardWindow.h"
#include "ServerNames.h"
#include "TestSite.h"
#include "VirtualClock.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

#include <memory>

class tst_DashboardFeed : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsTheConnectionAtOnce();
    void tellsTheNameThatTheServerGives();
    void followsTheConnection();
    void tellsWhyThereIsNoConnection();
    void tellsTheTimeOfTheServer();
    void statesAreKnownUntilTheConnectionIsLost();
    void statesThatCouldNotBeFetchedAreUnknown();
    void followsTheStations();
    void stationsStayAsLastKnown();
    void followsTheSnoozes();
    void snoozesStayAsLastKnown();
    void changesAtATimeAreShownOnce();

private:
    QVariant shown(const char *property) const;
    QStringList shownStations() const;
    QStringList snoozedNodes() const;
    void snooze(const char *nodeId, qint64 seconds);

    VirtualClock m_clock;
    QQmlEngine m_engine;
    QObject m_plugin;
    std::unique_ptr<SiteServer> m_server;
    std::unique_ptr<LocalServerLink> m_link;
    std::unique_ptr<DashboardWindow> m_window;
    std::unique_ptr<DashboardFeed> m_feed;
};

void tst_DashboardFeed::init()
{
    m_server = std::make_unique<SiteServer>(testSite(), m_clock);
    m_link = std::make_unique<LocalServerLink>(*m_server);
    m_window = std::make_unique<DashboardWindow>(
        m_engine, m_plugin, QString(), QUrl::fromLocalFile(QFINDTESTDATA("data/Dashboard.qml")));
    m_feed = std::make_unique<DashboardFeed>(*m_link, m_clock, 1.0, *m_window);
}

void tst_DashboardFeed::cleanup()
{
    m_feed.reset();
    m_window.reset();
    m_link.reset();
    m_server.reset();
}

QVariant tst_DashboardFeed::shown(const char *property) const
{
    return m_window->rootObject()->property(property);
}

QStringList tst_DashboardFeed::shownStations() const
{
    QStringList stations;
    const QVariantList list = shown("stations").toList();
    for (const QVariant &entry : list) {
        const QVariantMap station = entry.toMap();
        const bool isUp = station.value(QStringLiteral("connected")).toBool();
        stations.append(station.value(QStringLiteral("stationID")).toString()
                        + (isUp ? QString() : QStringLiteral(" down")));
    }
    return stations;
}

QStringList tst_DashboardFeed::snoozedNodes() const
{
    QStringList nodes;
    const QVariantList list = shown("snoozes").toList();
    for (const QVariant &snooze : list)
        nodes.append(snooze.toMap().value(QStringLiteral("nodeID")).toString());
    return nodes;
}

// For some seconds from now.
void tst_DashboardFeed::snooze(const char *nodeId, qint64 seconds)
{
    m_server->setCameraConnected(QString::fromLatin1(nodeId), false);
    m_server->execute(ServerNames::SetSnooze,
                      QVariantMap{{ServerNames::KeyNodeId, QString::fromLatin1(nodeId)},
                                  {ServerNames::KeyType, ServerNames::CameraDisconnected},
                                  {ServerNames::KeyTimestamp, m_clock.nowMs() / 1000 + seconds}},
                      QString());
}

void tst_DashboardFeed::showsTheConnectionAtOnce()
{
    QCOMPARE(shown("serverConnected").toBool(), false);
    QCOMPARE(shown("connectionSince").toDateTime(), m_link->since());
    QCOMPARE(shownStations(), QStringList());
}

void tst_DashboardFeed::tellsTheNameThatTheServerGives()
{
    QCOMPARE(shown("siteName").toString(), QString());
    m_link->open();
    QCOMPARE(shown("siteName").toString(), QStringLiteral("Test site"));
    QCOMPARE(m_window->title(), QStringLiteral("Test site - system monitor"));
    m_link->close();
    QCOMPARE(shown("siteName").toString(), QStringLiteral("Test site"));
}

void tst_DashboardFeed::followsTheConnection()
{
    m_link->open();
    QCOMPARE(shown("serverConnected").toBool(), true);
    QCOMPARE(shown("connectionSince").toDateTime(), m_link->since());
    m_link->close();
    QCOMPARE(shown("serverConnected").toBool(), false);
    QCOMPARE(shown("connectionSince").toDateTime(), m_link->since());
}

void tst_DashboardFeed::tellsWhyThereIsNoConnection()
{
    QCOMPARE(shown("connectionFailure").toString(), QString());
    const QDateTime before = QDateTime::currentDateTime();
    Q_EMIT m_link->attemptFailed(QStringLiteral("Connection refused"), 500);
    QCOMPARE(shown("connectionFailure").toString(), QStringLiteral("Connection refused"));
    QVERIFY(shown("nextAttempt").toDateTime() >= before.addMSecs(500));
    QVERIFY(shown("nextAttempt").toDateTime() <= QDateTime::currentDateTime().addMSecs(500));

    Q_EMIT m_link->refused(QStringLiteral("the token is wrong"));
    QCOMPARE(shown("connectionFailure").toString(),
             QStringLiteral("the server refuses this client for good: the token is wrong"));
    QVERIFY(!shown("nextAttempt").isValid());

    Q_EMIT m_link->attemptFailed(QStringLiteral("Connection refused"), 500);
    m_link->open();
    QCOMPARE(shown("connectionFailure").toString(), QString());
    QVERIFY(!shown("nextAttempt").isValid());
}

void tst_DashboardFeed::tellsTheTimeOfTheServer()
{
    AheadLink link(*m_server);
    const DashboardFeed feed(link, m_clock, 2.0, *m_window);
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    link.open();
    const qint64 after = QDateTime::currentMSecsSinceEpoch();
    QCOMPARE(shown("serverRate").toDouble(), 2.0);
    const double offset = shown("serverOffset").toDouble();
    const qint64 serverMs = m_clock.nowMs() + AheadLink::AheadMs;
    QVERIFY(offset <= static_cast<double>(serverMs - 2 * before));
    QVERIFY(offset >= static_cast<double>(serverMs - 2 * after));
}

void tst_DashboardFeed::statesAreKnownUntilTheConnectionIsLost()
{
    m_link->open();
    QVERIFY(!shown("statesSince").isValid());
    m_feed->takeStates(true);
    QVERIFY(shown("statesSince").toDateTime().isValid());
    m_link->close();
    QVERIFY(!shown("statesSince").isValid());
    m_link->open();
    QVERIFY(!shown("statesSince").isValid());
}

void tst_DashboardFeed::statesThatCouldNotBeFetchedAreUnknown()
{
    m_link->open();
    m_feed->takeStates(true);
    m_feed->takeStates(false);
    QVERIFY(!shown("statesSince").isValid());
}

void tst_DashboardFeed::followsTheStations()
{
    m_link->open();
    QCOMPARE(shownStations(), QStringList({QStringLiteral("north"), QStringLiteral("north/annex"),
                                           QStringLiteral("south")}));
    m_server->setStationConnected(QStringLiteral("south"), false);
    m_server->removeStation(QStringLiteral("north/annex"));
    QTRY_COMPARE(shownStations(),
                 QStringList({QStringLiteral("north"), QStringLiteral("south down")}));
}

void tst_DashboardFeed::stationsStayAsLastKnown()
{
    m_link->open();
    m_link->close();
    m_server->removeStation(QStringLiteral("north"));
    QCOMPARE(shownStations().size(), 3);
    m_link->open();
    QCOMPARE(shownStations(), QStringList{QStringLiteral("south")});
}

void tst_DashboardFeed::followsTheSnoozes()
{
    m_link->open();
    QCOMPARE(shown("snoozes").isValid(), true);
    QCOMPARE(snoozedNodes(), QStringList());
    snooze("north/c1", 60);
    snooze("south/c1", 120);
    QTRY_COMPARE(snoozedNodes(),
                 QStringList({QStringLiteral("north/c1"), QStringLiteral("south/c1")}));
    m_clock.advance(60'000);
    QTRY_COMPARE(snoozedNodes(), QStringList{QStringLiteral("south/c1")});
    m_server->removeCamera(QStringLiteral("south/c1"));
    QTRY_COMPARE(snoozedNodes(), QStringList());
}

void tst_DashboardFeed::snoozesStayAsLastKnown()
{
    m_link->open();
    snooze("north/c1", 60);
    QCoreApplication::sendPostedEvents();
    m_link->close();
    QCOMPARE(snoozedNodes(), QStringList{QStringLiteral("north/c1")});
    m_clock.advance(60'000);
    QCoreApplication::processEvents();
    QCOMPARE(snoozedNodes(), QStringList{QStringLiteral("north/c1")});
    m_link->open();
    QCOMPARE(snoozedNodes(), QStringList());
}

void tst_DashboardFeed::changesAtATimeAreShownOnce()
{
    m_link->open();
    const QSignalSpy snoozes(m_window->rootObject(), SIGNAL(snoozesChanged()));
    const QSignalSpy stations(m_window->rootObject(), SIGNAL(stationsChanged()));
    for (const char *const nodeId : {"north/c1", "north/c2", "south/c1"})
        snooze(nodeId, 60);
    m_server->setStationConnected(QStringLiteral("south"), false);
    m_server->setStationConnected(QStringLiteral("north"), false);
    QTRY_COMPARE(snoozedNodes().size(), 3);
    QTRY_COMPARE(shownStations().at(0), QStringLiteral("north down"));
    QCOMPARE(snoozes.size(), 1);
    QCOMPARE(stations.size(), 1);
}

QTEST_MAIN(tst_DashboardFeed)
#include "tst_DashboardFeed.moc"
