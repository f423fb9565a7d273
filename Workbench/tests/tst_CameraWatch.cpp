#include "CameraWatch.h"

#include "FakePeer.h"
#include "SiteServer.h"
#include "VirtualClock.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace std::chrono_literals;

namespace {

const QByteArray Alive = "RTSP/1.0 200 OK\r\nCSeq: 1\r\n\r\n";

} // namespace

class tst_CameraWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void cameraThatIsSilentIsLostAndComesBack();
    void everyCameraIsAskedAgainAndAgain();
    void onlySomeAreAskedAtATime();
    void nothingHappensWithoutCameras();
    void startingAgainChangesNothing();

private:
    /// A site with this many cameras at the peer.
    Site site(int count) const;
    void watch(int count, CameraPace pace);

    VirtualClock m_clock;
    std::unique_ptr<FakePeer> m_peer;
    std::unique_ptr<SiteServer> m_server;
    std::unique_ptr<CameraWatch> m_watch;
};

void tst_CameraWatch::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_peer = std::make_unique<FakePeer>();
    m_peer->setAnswer(Alive);
}

void tst_CameraWatch::cleanup()
{
    m_watch.reset();
    m_server.reset();
    m_peer.reset();
}

Site tst_CameraWatch::site(int count) const
{
    Station station;
    station.id = QStringLiteral("s");
    for (int i = 0; i < count; ++i) {
        const QUrl address(QStringLiteral("rtsp://127.0.0.1:%1/%2").arg(m_peer->port()).arg(i));
        station.cameras.push_back(
            {QStringLiteral("s/%1").arg(i), QStringLiteral("Camera"), true, address});
    }
    Site site;
    site.stations.push_back(station);
    return site;
}

void tst_CameraWatch::watch(int count, CameraPace pace)
{
    const Site site = this->site(count);
    m_server = std::make_unique<SiteServer>(site, m_clock);
    m_watch = std::make_unique<CameraWatch>(*m_server, pace);
    for (const Camera &camera : site.stations.front().cameras)
        m_watch->add(camera);
    m_watch->start();
}

void tst_CameraWatch::cameraThatIsSilentIsLostAndComesBack()
{
    m_peer->setManner(FakePeer::Closes);
    watch(1, {5ms, 5s, 2, 8});
    QSignalSpy lost(m_watch.get(), &CameraWatch::lost);
    QSignalSpy back(m_watch.get(), &CameraWatch::back);
    QVERIFY(lost.wait());
    QCOMPARE(m_peer->requests().size(), 2);
    const QString id = QStringLiteral("s/0");
    QCOMPARE(lost.first(), QVariantList({id, QStringLiteral("the connection was closed")}));
    QVERIFY(!m_server->site().findCamera(id)->connected);

    m_peer->setManner(FakePeer::Answers);
    QVERIFY(back.wait());
    QCOMPARE(back.first(), QVariantList{id});
    QVERIFY(m_server->site().findCamera(id)->connected);
    QCOMPARE(lost.size(), 1);
}

void tst_CameraWatch::everyCameraIsAskedAgainAndAgain()
{
    constexpr int Count = 5;
    watch(Count, {20ms, 5s, 2, 2});
    QTRY_VERIFY(m_peer->requests().size() >= qsizetype{3} * Count);
    const QList<QByteArray> requests = m_peer->requests();
    for (int i = 0; i < Count; ++i) {
        const QByteArray path = '/' + QByteArray::number(i) + ' ';
        const auto asked =
            std::count_if(requests.cbegin(), requests.cend(),
                          [&path](const QByteArray &request) { return request.contains(path); });
        QVERIFY(asked >= 2);
    }
}

void tst_CameraWatch::onlySomeAreAskedAtATime()
{
    m_peer->setManner(FakePeer::Hangs);
    watch(12, {1ms, 30ms, 1, 3});
    const QSignalSpy lost(m_watch.get(), &CameraWatch::lost);
    QTRY_COMPARE(lost.size(), 12);
    QVERIFY(m_peer->mostClients() >= 1);
    // One that has just ended may still be known to the peer.
    QVERIFY2(m_peer->mostClients() <= 6, qPrintable(QString::number(m_peer->mostClients())));
}

void tst_CameraWatch::nothingHappensWithoutCameras()
{
    watch(0, {});
    QCoreApplication::processEvents();
    QVERIFY(m_peer->requests().isEmpty());
}

void tst_CameraWatch::startingAgainChangesNothing()
{
    watch(1, {1h, 5s, 2, 8});
    m_watch->start();
    QTRY_COMPARE(m_peer->requests().size(), 1);
    m_watch->start();
    QCoreApplication::processEvents();
    QCOMPARE(m_peer->requests().size(), 1);
}

QTEST_GUILESS_MAIN(tst_CameraWatch)
#include "tst_CameraWatch.moc"
