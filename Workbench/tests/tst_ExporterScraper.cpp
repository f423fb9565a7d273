#include "ExporterScraper.h"

#include "FakePeer.h"
#include "MetricsText.h"

#include <QNetworkAccessManager>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace std::chrono_literals;

class tst_ExporterScraper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void asksForThreeCollectorsAlone_data();
    void asksForThreeCollectorsAlone();
    void handsOverTheAnswer();
    void badAnswersFail_data();
    void badAnswersFail();
    void refusalFails();
    void asksOnceAtATime();
    void mayEndWhileAnAnswerIsAwaited();

private:
    QUrl peerUrl() const;
    QString failure(std::chrono::milliseconds timeout);

    QNetworkAccessManager m_manager;
    std::unique_ptr<FakePeer> m_peer;
};

void tst_ExporterScraper::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_peer = std::make_unique<FakePeer>();
}

void tst_ExporterScraper::cleanup()
{
    m_peer.reset();
}

QUrl tst_ExporterScraper::peerUrl() const
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1/metrics").arg(m_peer->port()));
}

QString tst_ExporterScraper::failure(std::chrono::milliseconds timeout)
{
    ExporterScraper scraper(peerUrl(), timeout, m_manager);
    const QSignalSpy answers(&scraper, &ExporterScraper::answered);
    QSignalSpy failures(&scraper, &ExporterScraper::failed);
    scraper.scrape();
    if (failures.isEmpty() && !failures.wait())
        return answers.isEmpty() ? QString() : QStringLiteral("answered");
    return failures.first().first().toString();
}

void tst_ExporterScraper::asksForThreeCollectorsAlone_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("asked");
    const QString query = QStringLiteral("collect[]=cpu&collect[]=meminfo&collect[]=netdev");
    const QString usual = QStringLiteral("http://a:9100/metrics?") + query;
    QTest::newRow("without a path") << QStringLiteral("http://a:9100") << usual;
    QTest::newRow("root") << QStringLiteral("http://a:9100/") << usual;
    QTest::newRow("path") << QStringLiteral("https://a/x/m")
                          << QStringLiteral("https://a/x/m?") + query;
    QTest::newRow("query") << QStringLiteral("http://a/m?b=c")
                           << QStringLiteral("http://a/m?b=c&") + query;
}

void tst_ExporterScraper::asksForThreeCollectorsAlone()
{
    QFETCH(QString, address);
    const ExporterScraper scraper(QUrl(address), 1s, m_manager);
    QTEST(scraper.url().toString(), "asked");
}

void tst_ExporterScraper::handsOverTheAnswer()
{
    m_peer->setAnswer(FakePeer::http("up 1\n"));
    ExporterScraper scraper(peerUrl(), 10s, m_manager);
    QSignalSpy answers(&scraper, &ExporterScraper::answered);
    for (int i = 1; i <= 2; ++i) {
        scraper.scrape();
        QVERIFY(answers.wait());
        QCOMPARE(answers.size(), i);
        QCOMPARE(answers.last().first().toByteArray(), QByteArray("up 1\n"));
    }
    const QByteArray request = m_peer->requests().constFirst();
    QVERIFY2(request.startsWith(
                 "GET /metrics?collect[]=cpu&collect[]=meminfo&collect[]=netdev HTTP/1.1\r\n"),
             request);
}

void tst_ExporterScraper::badAnswersFail_data()
{
    QTest::addColumn<FakePeer::Manner>("manner");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("timeoutMs");
    QTest::addColumn<QString>("reason");
    const QByteArray page = FakePeer::http("up 1\n");
    const int patience = 10'000;
    const QString late = QStringLiteral("no answer in time");
    QTest::newRow("silent") << FakePeer::Hangs << page << 50 << late;
    QTest::newRow("slow") << FakePeer::Dribbles << page << 50 << late;
    QTest::newRow("closing") << FakePeer::Closes << page << patience
                             << QStringLiteral("Connection closed");
    QTest::newRow("cut off") << FakePeer::Answers << page.chopped(3) << patience
                             << QStringLiteral("Connection closed");
    QTest::newRow("server's error") << FakePeer::Answers << FakePeer::http("", "503 Busy")
                                    << patience << QStringLiteral("HTTP status 503");
    QTest::newRow("not found") << FakePeer::Answers << FakePeer::http("up 1\n", "404 Not Found")
                               << patience << QStringLiteral("HTTP status 404");
    QTest::newRow("elsewhere") << FakePeer::Answers
                               << QByteArray("HTTP/1.1 302 Found\r\nLocation: /x\r\n"
                                             "Content-Length: 0\r\n\r\n")
                               << patience << QStringLiteral("HTTP status 302");
    QTest::newRow("huge") << FakePeer::Answers
                          << FakePeer::http(QByteArray(MaxMetricsSize + 1, '\n')) << patience
                          << QStringLiteral("the answer is too long");
    QTest::newRow("endless")
        << FakePeer::Pours
        << FakePeer::http("up 1\n", "200 OK").replace("Content-Length: 5\r\n", "") << patience
        << QStringLiteral("the answer is too long");
    QTest::newRow("garbage") << FakePeer::Answers << QByteArray("\x01\x02garbage\r\n\r\n")
                             << patience << QString();
}

void tst_ExporterScraper::badAnswersFail()
{
    QFETCH(FakePeer::Manner, manner);
    QFETCH(QByteArray, answer);
    QFETCH(int, timeoutMs);
    QFETCH(QString, reason);
    m_peer->setManner(manner);
    m_peer->setAnswer(answer);
    const QString found = failure(std::chrono::milliseconds(timeoutMs));
    QVERIFY(found != QLatin1String("answered"));
    if (reason.isEmpty())
        QVERIFY(!found.isEmpty());
    else
        QCOMPARE(found, reason);
}

void tst_ExporterScraper::refusalFails()
{
    const QUrl url = peerUrl();
    m_peer.reset();
    ExporterScraper scraper(url, 10s, m_manager);
    QSignalSpy failures(&scraper, &ExporterScraper::failed);
    scraper.scrape();
    QVERIFY(failures.wait());
    QCOMPARE(failures.first().first().toString(), QStringLiteral("Connection refused"));
}

void tst_ExporterScraper::asksOnceAtATime()
{
    m_peer->setManner(FakePeer::Hangs);
    ExporterScraper scraper(peerUrl(), 50ms, m_manager);
    QSignalSpy failures(&scraper, &ExporterScraper::failed);
    scraper.scrape();
    scraper.scrape();
    QVERIFY(failures.wait());
    QCOMPARE(failures.size(), 1);
    QCOMPARE(m_peer->requests().size(), 1);
    scraper.scrape();
    QVERIFY(failures.wait());
}

void tst_ExporterScraper::mayEndWhileAnAnswerIsAwaited()
{
    m_peer->setManner(FakePeer::Hangs);
    auto scraper = std::make_unique<ExporterScraper>(peerUrl(), 10s, m_manager);
    const QSignalSpy failures(scraper.get(), &ExporterScraper::failed);
    scraper->scrape();
    QTRY_COMPARE(m_peer->requests().size(), 1);
    scraper.reset();
    QCOMPARE(failures.size(), 0);
}

QTEST_GUILESS_MAIN(tst_ExporterScraper)
#include "tst_ExporterScraper.moc"
