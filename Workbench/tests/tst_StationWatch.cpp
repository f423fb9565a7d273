#include "StationWatch.h"

#include "FakePeer.h"
#include "ServerNames.h"
#include "SiteServer.h"
#include "TestSite.h"
#include "VirtualClock.h"

#include <QNetworkAccessManager>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace std::chrono_literals;

namespace {

const QString StationId = QStringLiteral("north");
constexpr StationPace Fast{5ms, 5s, 3};

QByteArray metrics(double idle, double busy, double sent = 0)
{
    return "node_cpu_seconds_total{cpu=\"0\",mode=\"idle\"} " + QByteArray::number(idle)
           + "\nnode_cpu_seconds_total{cpu=\"0\",mode=\"user\"} " + QByteArray::number(busy)
           + "\nnode_memory_MemTotal_bytes 100\nnode_memory_MemAvailable_bytes 60\n"
             "node_network_receive_bytes_total{device=\"eth0\"} 0\n"
             "node_network_transmit_bytes_total{device=\"eth0\"} "
           + QByteArray::number(sent, 'f', 0) + '\n';
}

} // namespace

class tst_StationWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void reportsTheLoadBetweenTwoAnswers();
    void stationThatIsSilentIsLostAndComesBack();
    void answerThatCannotBeUsedCountsAsSilence();
    void nothingIsMeasuredAcrossAGap();

private:
    Station station() const;
    void answer(const QByteArray &body) { m_peer->setAnswer(FakePeer::http(body)); }
    bool waitForRequests(qsizetype more);

    VirtualClock m_clock;
    QNetworkAccessManager m_manager;
    std::unique_ptr<SiteServer> m_server;
    std::unique_ptr<FakePeer> m_peer;
};

void tst_StationWatch::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_server = std::make_unique<SiteServer>(testSite(), m_clock);
    m_peer = std::make_unique<FakePeer>();
}

void tst_StationWatch::cleanup()
{
    m_peer.reset();
}

Station tst_StationWatch::station() const
{
    Station station;
    station.id = StationId;
    station.exporter = Exporter{QUrl(QStringLiteral("http://127.0.0.1:%1").arg(m_peer->port())),
                                {{QStringLiteral("eth0"), 100.0}}};
    return station;
}

bool tst_StationWatch::waitForRequests(qsizetype more)
{
    const qsizetype wanted = m_peer->requests().size() + more;
    return QTest::qWaitFor([this, wanted] { return m_peer->requests().size() >= wanted; });
}

void tst_StationWatch::reportsTheLoadBetweenTwoAnswers()
{
    StationWatch watch(*m_server, station(), m_manager, Fast);
    QSignalSpy events(m_server.get(), &SiteServer::eventRaised);
    answer(metrics(100, 50));
    watch.start();
    QVERIFY(waitForRequests(2));
    QCOMPARE(events.size(), 0);
    answer(metrics(101, 53, 1e12));
    QVERIFY(events.wait());
    QCOMPARE(events.first().at(0).toString(), ServerNames::SystemResChanged);
    QCOMPARE(events.first().at(2).toString(), StationId);
    const QVariantMap report = events.first().at(1).toMap();
    QCOMPARE(report.value(ServerNames::KeyCpuPercentage).toInt(), 75);
    QCOMPARE(report.value(ServerNames::KeyMemPercentage).toInt(), 40);
    const QVariantList networks = report.value(ServerNames::KeyNetworkUsageList).toList();
    QCOMPARE(networks.size(), 1);
    const QVariantMap network = networks.first().toMap();
    QCOMPARE(network.value(ServerNames::KeyNetworkInterface).toString(), QStringLiteral("eth0"));
    QCOMPARE(network.value(ServerNames::KeyNetworkPercentage).toDouble(), 100.0);
    QCOMPARE(network.value(ServerNames::KeyNetworkBandwidth).toDouble(), 100.0);
}

void tst_StationWatch::stationThatIsSilentIsLostAndComesBack()
{
    StationWatch watch(*m_server, station(), m_manager, {5ms, 20ms, 3});
    QSignalSpy lost(&watch.presence(), &NodePresence::lost);
    QSignalSpy back(&watch.presence(), &NodePresence::back);
    m_peer->setManner(FakePeer::Hangs);
    watch.start();
    QVERIFY(lost.wait());
    QCOMPARE(m_peer->requests().size(), 3);
    QCOMPARE(lost.first(), QVariantList({StationId, QStringLiteral("no answer in time")}));
    QVERIFY(!m_server->site().findStation(StationId)->connected);

    m_peer->setManner(FakePeer::Answers);
    answer(metrics(1, 1));
    QVERIFY(back.wait());
    QVERIFY(m_server->site().findStation(StationId)->connected);
}

void tst_StationWatch::answerThatCannotBeUsedCountsAsSilence()
{
    StationWatch watch(*m_server, station(), m_manager, Fast);
    QSignalSpy lost(&watch.presence(), &NodePresence::lost);
    answer("<html>");
    watch.start();
    QVERIFY(lost.wait());
    QCOMPARE(lost.first().at(1).toString(),
             QStringLiteral("the answer cannot be used: line 1, column 1: expected a name"));
}

void tst_StationWatch::nothingIsMeasuredAcrossAGap()
{
    StationWatch watch(*m_server, station(), m_manager, Fast);
    const QSignalSpy events(m_server.get(), &SiteServer::eventRaised);
    answer(metrics(100, 50));
    watch.start();
    QVERIFY(waitForRequests(2));
    answer("");
    QVERIFY(waitForRequests(2));
    answer(metrics(200, 150));
    QVERIFY(waitForRequests(3));
    QCOMPARE(events.size(), 0);
}

QTEST_GUILESS_MAIN(tst_StationWatch)
#include "tst_StationWatch.moc"
