#include "ReplayFeed.h"

#include "DashboardWindow.h"
#include "FakeMonitor.h"
#include "JournalPlayer.h"
#include "TestSite.h"
#include "TopologyJournal.h"
#include "TopologyPlugin.h"
#include "VirtualClock.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QRegularExpression>
#include <QTest>

#include <memory>

/// Has what a journal calls to begin the walk.
class WalkingMonitor : public FakeMonitor
{
    Q_OBJECT

public:
    using FakeMonitor::FakeMonitor;

    Q_INVOKABLE void initNodeStatusErrorTimer(bool) { }
};

class tst_ReplayFeed : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void connectionIsTheRecordedOne();
    void statesAreKnownFromTheRecordedMoment();
    void statesThatCouldNotBeFetchedAreUnknown();
    void stationsAreThoseOfTheTopology();

private:
    void add(qint64 atMs, const QJsonObject &entry);
    void addTopology();
    void play();
    QVariant shown(const char *property) const;

    VirtualClock m_clock;
    CallLog m_log;
    QQmlEngine m_engine;
    Journal m_journal;
    std::unique_ptr<FakeMonitor> m_monitor;
    std::unique_ptr<JournalPlayer> m_player;
    std::unique_ptr<DashboardWindow> m_window;
    std::unique_ptr<ReplayFeed> m_feed;
};

void tst_ReplayFeed::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_feed.reset();
    m_window.reset();
    m_player.reset();
    m_monitor = std::make_unique<WalkingMonitor>(m_log);
    m_journal = {};
}

void tst_ReplayFeed::add(qint64 atMs, const QJsonObject &entry)
{
    m_journal.entries.push_back({atMs, entry, 0});
}

void tst_ReplayFeed::addTopology()
{
    TopologyPlugin topology;
    topology.setSite(testSite());
    auto &model = *static_cast<QStandardItemModel *>(topology.getStandardTopologyModel());
    const TopologyRecorder recorder(model, [this](const QJsonObject &change) {
        add(100, {{QStringLiteral("topology"), change}});
    });
}

void tst_ReplayFeed::play()
{
    m_player = std::make_unique<JournalPlayer>(*m_monitor, nullptr, m_journal, &m_clock);
    m_window = std::make_unique<DashboardWindow>(
        m_engine, *m_monitor, QString(), QUrl::fromLocalFile(QFINDTESTDATA("data/Dashboard.qml")));
    m_feed = std::make_unique<ReplayFeed>(*m_player, *m_window);
    m_player->start();
}

QVariant tst_ReplayFeed::shown(const char *property) const
{
    return m_window->rootObject()->property(property);
}

void tst_ReplayFeed::connectionIsTheRecordedOne()
{
    add(100, {{QStringLiteral("server"), true}});
    add(200, {{QStringLiteral("server"), false}});
    play();
    QVERIFY(!shown("serverConnected").toBool());
    m_clock.advance(100);
    QVERIFY(shown("serverConnected").toBool());
    m_clock.advance(100);
    QVERIFY(!shown("serverConnected").toBool());
}

void tst_ReplayFeed::statesAreKnownFromTheRecordedMoment()
{
    add(0, {{QStringLiteral("server"), true}});
    add(100, {{QStringLiteral("call"), QStringLiteral("initNodeStatusErrorTimer")},
              {QStringLiteral("arguments"), QJsonArray{true}}});
    add(200, {{QStringLiteral("server"), false}});
    play();
    m_clock.advance(99);
    QVERIFY(!shown("statesSince").toDateTime().isValid());
    m_clock.advance(1);
    QVERIFY(shown("statesSince").toDateTime().isValid());
    m_clock.advance(100);
    QVERIFY(!shown("statesSince").toDateTime().isValid());
}

void tst_ReplayFeed::statesThatCouldNotBeFetchedAreUnknown()
{
    add(0, {{QStringLiteral("call"), QStringLiteral("initNodeStatusErrorTimer")},
            {QStringLiteral("arguments"), QJsonArray{false}}});
    play();
    m_clock.advance(1);
    QVERIFY(!shown("statesSince").toDateTime().isValid());
}

void tst_ReplayFeed::stationsAreThoseOfTheTopology()
{
    addTopology();
    play();
    QCOMPARE(shown("stations").toList().size(), 0);
    m_clock.advance(100);
    QTRY_COMPARE(shown("stations").toList().size(), 3);
    QCOMPARE(shown("stations").toList().constFirst().toMap().value(QStringLiteral("stationID")),
             QStringLiteral("north"));
}

QTEST_MAIN(tst_ReplayFeed)
#include "tst_ReplayFeed.moc"
