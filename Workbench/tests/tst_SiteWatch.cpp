#include "SiteWatch.h"

#include "FakePeer.h"
#include "SiteServer.h"
#include "TestSite.h"
#include "VirtualClock.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

class tst_SiteWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void watchesStationsAndCamerasAtAnyDepth();
    void asksNobodyBeforeTheStart();
    void asksNobodyWithoutAddresses();
};

namespace {

Site siteAt(const FakePeer &peer)
{
    Site site = testSite();
    Station &annex = *site.findStation(QStringLiteral("north/annex"));
    annex.connected = false;
    annex.exporter = Exporter{QUrl(QStringLiteral("http://127.0.0.1:%1").arg(peer.port())), {}};
    annex.cameras.front().connected = false;
    annex.cameras.front().address = QUrl(QStringLiteral("tcp://127.0.0.1:%1").arg(peer.port()));
    return site;
}

} // namespace

void tst_SiteWatch::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
}

void tst_SiteWatch::watchesStationsAndCamerasAtAnyDepth()
{
    FakePeer peer;
    peer.setAnswer(FakePeer::http("node_cpu_seconds_total{cpu=\"0\",mode=\"idle\"} 1\n"
                                  "node_memory_MemTotal_bytes 2\n"
                                  "node_memory_MemAvailable_bytes 1\n"));
    const Site site = siteAt(peer);
    VirtualClock clock;
    SiteServer server(site, clock);
    SiteWatch watch(server, site);
    const QSignalSpy back(&watch, &SiteWatch::back);
    watch.start();
    QTRY_COMPARE(back.size(), 2);
    QVERIFY(server.site().findStation(QStringLiteral("north/annex"))->connected);
    QVERIFY(server.site().findCamera(QStringLiteral("north/annex/c1"))->connected);
}

void tst_SiteWatch::asksNobodyBeforeTheStart()
{
    const FakePeer peer;
    const Site site = siteAt(peer);
    VirtualClock clock;
    SiteServer server(site, clock);
    const SiteWatch watch(server, site);
    QTest::qWait(20);
    QCOMPARE(peer.mostClients(), 0);
}

void tst_SiteWatch::asksNobodyWithoutAddresses()
{
    VirtualClock clock;
    SiteServer server(testSite(), clock);
    SiteWatch watch(server, testSite());
    const QSignalSpy told(&server, &SiteServer::nodeStatusChanged);
    watch.start();
    QTest::qWait(20);
    QCOMPARE(told.size(), 0);
}

QTEST_GUILESS_MAIN(tst_SiteWatch)
#include "tst_SiteWatch.moc"
