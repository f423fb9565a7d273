#include "RemoteServerLink.h"

#include "CallLog.h"
#include "PrintedValue.h"
#include "RawClient.h"
#include "ServedSite.h"
#include "ServerNames.h"
#include "TextFile.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTest>
#include <QWebSocket>
#include <QWebSocketServer>

#include <functional>
#include <memory>

namespace {

// A server that says what it is told to say.
class FakeServer
{
public:
    FakeServer()
        : m_listener(QString(), QWebSocketServer::NonSecureMode)
    {
        m_listener.listen(QHostAddress::LocalHost);
    }

    QUrl url() const { return m_listener.serverUrl(); }

    // Waits for a client and says something to it.
    bool say(const QString &text)
    {
        const bool isThere = accept();
        if (isThere)
            sayAgain(text);
        return isThere;
    }

    // Waits for a client and for what it says first.
    bool hears()
    {
        return accept() && QSignalSpy(m_client.get(), &QWebSocket::textMessageReceived).wait();
    }

    // Says something to the client of the last time.
    void sayAgain(const QString &text) { m_client->sendTextMessage(text); }
    void sendBytes(const QByteArray &bytes) { m_client->sendBinaryMessage(bytes); }

    // Until this is done, each has read what the other had sent before.
    bool isReached()
    {
        for (int way = 0; way < 2; ++way) {
            QSignalSpy answers(m_client.get(), &QWebSocket::pong);
            m_client->ping();
            if (!answers.wait())
                return false;
        }
        return true;
    }

    void hangUp() { m_client.reset(); }

private:
    bool accept()
    {
        if (!QTest::qWaitFor([this] { return m_listener.hasPendingConnections(); }))
            return false;
        m_client.reset(m_listener.nextPendingConnection());
        return true;
    }

    QWebSocketServer m_listener;
    std::unique_ptr<QWebSocket> m_client;
};

} // namespace

class tst_RemoteServerLink : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void opensWithTheSiteOfTheServer();
    void comparesTheClocks();
    void followsTheSite();
    void passesEventsOn();
    void knowsTheSnoozes();
    void commandsAreAnswered();
    void commandsWithoutAConnectionFail();
    void commandsUnderWayFailWithTheConnection();
    void closedLinkStaysClosed();

    void missingServerIsTriedAgainAfterGrowingPauses();
    void lostServerIsFoundAgain();
    void pausesGrowUntilAConnectionHolds();
    void serverThatNeverWelcomesIsGivenUp();
    void silentServerIsNoticed();
    void answeringServerIsKept();
    void serverThatIsNotUnderstoodIsLeft_data();
    void serverThatIsNotUnderstoodIsLeft();
    void serverThatWelcomesTwiceIsLeft();
    void serverThatSendsBytesIsLeft();

    void refusalIsFinal();
    void linkThatIsSentAwayTriesAgain();
    void tokenIsGiven();

private:
    void linkTo(const QUrl &url, const AccessToken &token = {});
    bool waitUntilOpen();
    bool waitForLog(const QString &line);
    bool siteServesAnother();

    CallLog m_log;
    std::unique_ptr<VirtualClock> m_clock; // of the link
    std::unique_ptr<ServedSite> m_site;
    std::unique_ptr<RemoteServerLink> m_link;
};

void tst_RemoteServerLink::init()
{
    m_log.take();
    m_clock = std::make_unique<VirtualClock>();
    m_site = std::make_unique<ServedSite>();
    linkTo(m_site->gate.url());
}

void tst_RemoteServerLink::cleanup()
{
    m_link.reset();
    m_site.reset();
}

void tst_RemoteServerLink::linkTo(const QUrl &url, const AccessToken &token)
{
    m_link =
        std::make_unique<RemoteServerLink>(url, token, *m_clock, RetryPauses([] { return 1.0; }));
    RemoteServerLink *const link = m_link.get();
    connect(link, &ServerLink::opened, this, [this] { m_log.add(QStringLiteral("opened")); });
    connect(link, &ServerLink::closed, this, [this] { m_log.add(QStringLiteral("closed")); });
    connect(link, &ServerLink::attemptFailed, this, [this](const QString &reason, qint64 pauseMs) {
        m_log.add(QStringLiteral("failed: %1, %2").arg(reason).arg(pauseMs));
    });
    connect(link, &ServerLink::refused, this,
            [this](const QString &reason) { m_log.add(QStringLiteral("refused: ") + reason); });
    connect(link, &ServerLink::nodeStatusChanged, this,
            [this](NodeType type, const QString &id, bool connected) {
                m_log.add(QStringLiteral("%1 %2 %3").arg(int(type)).arg(id).arg(connected));
            });
    connect(link, &ServerLink::cameraRemoved, this,
            [this](const QString &id) { m_log.add(QStringLiteral("camera removed ") + id); });
    connect(link, &ServerLink::stationRemoved, this,
            [this](const QString &id) { m_log.add(QStringLiteral("station removed ") + id); });
    connect(link, &ServerLink::storageChanged, this,
            [this](const QString &id) { m_log.add(QStringLiteral("storage ") + id); });
    connect(link, &ServerLink::eventRaised, this,
            [this](const QString &name, const QVariant &data, const QString &source) {
                m_log.add(QStringLiteral("%1 %2 from '%3'").arg(name, printedValue(data), source));
            });
}

bool tst_RemoteServerLink::waitUntilOpen()
{
    m_link->open();
    return QTest::qWaitFor([this] { return m_link->isOpen(); });
}

bool tst_RemoteServerLink::waitForLog(const QString &line)
{
    return QTest::qWaitFor([&] { return m_log.lines().contains(line); });
}

// Whoever knocked before has been answered then.
bool tst_RemoteServerLink::siteServesAnother()
{
    RawClient client(m_site->gate.url());
    client.sendText("{}");
    return QTest::qWaitFor([&client] { return !client.texts().isEmpty(); });
}

void tst_RemoteServerLink::opensWithTheSiteOfTheServer()
{
    QVERIFY(!m_link->isOpen());
    QVERIFY(waitUntilOpen());
    m_link->open();
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("opened")});
    QCOMPARE(m_link->site().name, QStringLiteral("Test site"));
    QCOMPARE(m_link->site().cameraCount(), testSite().cameraCount());
}

// The welcome arrives a second after the hello, so it was written half a second ago.
void tst_RemoteServerLink::comparesTheClocks()
{
    FakeServer server;
    linkTo(server.url());
    m_link->open();
    QVERIFY(server.hears());
    m_clock->leap(1000);
    server.sayAgain(
        toText(ServerMessage::Welcome{testSite(), {}, VirtualClock::StartMs + 3'600'500}));
    QVERIFY(waitForLog(QStringLiteral("opened")));
    QCOMPARE(m_link->clockAheadMs(), 3'600'000);
}

void tst_RemoteServerLink::followsTheSite()
{
    QVERIFY(waitUntilOpen());
    m_log.take();
    SiteServer &server = m_site->server;
    server.setCameraConnected(QStringLiteral("north/c1"), false);
    server.setStationConnected(QStringLiteral("south"), false);
    server.setVolumeConnected(QStringLiteral("north"), QStringLiteral("v1"), false);
    server.setRecordedDays(QStringLiteral("north"), QStringLiteral("g1"), 4);
    server.removeCamera(QStringLiteral("north/c2"));
    server.removeStation(QStringLiteral("north/annex"));
    QVERIFY(waitForLog(QStringLiteral("station removed north/annex")));
    QCOMPARE(m_log.take(),
             QStringList({QStringLiteral("0 north/c1 0"), QStringLiteral("1 south 0"),
                          QStringLiteral("storage north"), QStringLiteral("storage north"),
                          QStringLiteral("camera removed north/c2"),
                          QStringLiteral("station removed north/annex")}));
    const Site &site = m_link->site();
    QVERIFY(!site.findCamera(QStringLiteral("north/c1"))->connected);
    QVERIFY(!site.findStation(QStringLiteral("south"))->connected);
    QVERIFY(site.findStation(QStringLiteral("north"))->hasLostVolume());
    QCOMPARE(site.findStation(QStringLiteral("north"))->recordingGroups.at(0).recordedDays, 4);
    QCOMPARE(site.stationCount(), 2);
    QCOMPARE(site.cameraCount(), 2);
}

void tst_RemoteServerLink::passesEventsOn()
{
    QVERIFY(waitUntilOpen());
    m_log.take();
    m_site->server.reportResources(QStringLiteral("north"), {12, 34, {}});
    QVERIFY(QTest::qWaitFor([this] { return !m_log.lines().isEmpty(); }));
    QCOMPARE(m_log.take(), QStringList{QStringLiteral(
                               R"(SystemResChanged {"cpuPercentage": 12LL, "memPercentage": 34LL, )"
                               R"("networkUsageList": []} from 'north')")});
}

void tst_RemoteServerLink::knowsTheSnoozes()
{
    const qint64 end = VirtualClock::StartMs / 1000 + 60;
    const auto snooze = [this, end](const char *nodeId) {
        const QVariantMap request{{ServerNames::KeyNodeId, QString::fromLatin1(nodeId)},
                                  {ServerNames::KeyType, ServerNames::StationDisconnected},
                                  {ServerNames::KeyTimestamp, end}};
        m_site->server.execute(ServerNames::SetSnooze, request, {});
    };
    snooze("north");
    QVERIFY(waitUntilOpen());
    QCOMPARE(m_link->snoozes().size(), std::size_t(1));
    const auto countAtEvent = std::make_shared<std::size_t>(0);
    connect(m_link.get(), &ServerLink::eventRaised, this,
            [this, countAtEvent] { *countAtEvent = m_link->snoozes().size(); });
    snooze("south");
    QVERIFY(QTest::qWaitFor([countAtEvent] { return *countAtEvent == 2; }));
    QCOMPARE(m_link->snoozes().at(1).nodeId, QStringLiteral("south"));
    QCOMPARE(m_link->snoozes().at(1).endSeconds, end);
    m_site->server.removeStation(QStringLiteral("south"));
    QVERIFY(QTest::qWaitFor([countAtEvent] { return *countAtEvent == 1; }));
}

void tst_RemoteServerLink::commandsAreAnswered()
{
    QVERIFY(waitUntilOpen());
    m_log.take();
    const auto logged = [this](const CommandResult &result) {
        m_log.add(QStringLiteral("answer %1 %2").arg(result.code, printedValue(result.data)));
    };
    m_site->server.setCameraConnected(QStringLiteral("north/c1"), false);
    m_link->execute(ServerNames::GetSnoozeList, {}, {}, logged);
    m_link->execute(ServerNames::ReconnectCameras, QVariantList{QStringLiteral("c1")},
                    QStringLiteral("north"), logged);
    QVERIFY(waitForLog(QStringLiteral(R"(answer 0 ["c1"])")));
    QCOMPARE(m_log.take(),
             QStringList({QStringLiteral("0 north/c1 0"), QStringLiteral("0 north/c1 1"),
                          QStringLiteral("answer 0 []"), QStringLiteral(R"(answer 0 ["c1"])")}));
}

void tst_RemoteServerLink::commandsWithoutAConnectionFail()
{
    CommandResult answer;
    m_link->execute(ServerNames::GetSnoozeList, 7, {},
                    [&answer](const CommandResult &result) { answer = result; });
    QCOMPARE(answer.code, ServerNames::FrameworkInternalError);
    QCOMPARE(answer.data, QVariant(7));
}

void tst_RemoteServerLink::commandsUnderWayFailWithTheConnection()
{
    QVERIFY(waitUntilOpen());
    QStringList codes;
    for (int i = 0; i < 2; ++i)
        m_link->execute(ServerNames::GetSnoozeList, 7, {},
                        [&codes](const CommandResult &result) { codes.append(result.code); });
    QCOMPARE(codes, QStringList());
    m_link->close();
    QCOMPARE(codes, QStringList(2, ServerNames::FrameworkInternalError));
}

void tst_RemoteServerLink::closedLinkStaysClosed()
{
    m_link->open();
    m_link->close();
    m_clock->advance(60'000);
    QVERIFY(siteServesAnother());
    QCOMPARE(m_log.take(), QStringList());
    QVERIFY(waitUntilOpen());
    m_link->close();
    m_clock->advance(60'000);
    QVERIFY(siteServesAnother());
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("opened"), QStringLiteral("closed")}));
}

void tst_RemoteServerLink::missingServerIsTriedAgainAfterGrowingPauses()
{
    m_site.reset();
    m_link->open();
    for (const int pauseMs : {250, 500, 1000, 2000}) {
        QVERIFY(waitForLog(QStringLiteral("failed: Connection refused, %1").arg(pauseMs)));
        m_clock->advance(pauseMs - 1);
        QCoreApplication::processEvents();
        QCOMPARE(m_log.take().size(), 1);
        m_clock->advance(1);
    }
}

void tst_RemoteServerLink::lostServerIsFoundAgain()
{
    const QUrl url = m_site->gate.url();
    QVERIFY(waitUntilOpen());
    m_site.reset();
    QVERIFY(QTest::qWaitFor([this] { return m_log.lines().size() == 3; }));
    QCOMPARE(m_log.take(),
             QStringList({QStringLiteral("opened"), QStringLiteral("closed"),
                          QStringLiteral("failed: the server has closed the connection, 250")}));
    SiteServer server(testSite(), *m_clock);
    server.removeStation(QStringLiteral("north"));
    ServerGate gate(server, {}, *m_clock);
    QVERIFY(gate.listen(QHostAddress::LocalHost, static_cast<quint16>(url.port())));
    m_clock->advance(250);
    QVERIFY(QTest::qWaitFor([this] { return m_link->isOpen(); }));
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("opened")});
    QCOMPARE(m_link->site().stationCount(), 1);
    m_link.reset();
}

void tst_RemoteServerLink::pausesGrowUntilAConnectionHolds()
{
    FakeServer server;
    linkTo(server.url());
    m_link->open();
    const QString welcome = toText(ServerMessage::Welcome{testSite(), {}});
    const auto failsAfter = [&](int pauseMs, const std::function<void()> &meanwhile = {}) {
        if (!server.say(welcome) || !QTest::qWaitFor([this] { return m_link->isOpen(); }))
            return false;
        if (meanwhile)
            meanwhile();
        m_log.take();
        server.hangUp();
        const bool hasFailed = waitForLog(
            QStringLiteral("failed: the server has closed the connection, %1").arg(pauseMs));
        m_clock->advance(pauseMs);
        return hasFailed;
    };
    for (const int pauseMs : {250, 500, 1000})
        QVERIFY2(failsAfter(pauseMs), qPrintable(m_log.lines().join(u'|')));
    const auto hold = [this, &server] {
        m_log.take();
        for (qint64 ms = 0; ms < RemoteServerLink::ProvenMs; ms += 500) {
            m_clock->advance(500);
            server.sayAgain(toText(ServerMessage::Event{QStringLiteral("E"), 1, {}}));
            QVERIFY2(waitForLog(QStringLiteral("E 1LL from ''")),
                     qPrintable(m_log.lines().join(u'|')));
            m_log.take();
        }
    };
    QVERIFY(failsAfter(250, hold));
}

// As a stopped process does: the system accepts the connection, and nothing follows.
void tst_RemoteServerLink::serverThatNeverWelcomesIsGivenUp()
{
    QTcpServer mute;
    QVERIFY(mute.listen(QHostAddress::LocalHost));
    linkTo(QUrl(QStringLiteral("ws://127.0.0.1:%1").arg(mute.serverPort())));
    m_link->open();
    QVERIFY(QTest::qWaitFor([&mute] { return mute.hasPendingConnections(); }));
    m_clock->set(-3'600'000);
    m_clock->advance(RemoteServerLink::AttemptMs - 1);
    QCOMPARE(m_log.take(), QStringList());
    m_clock->advance(1);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("failed: the server does not answer, 250")});
}

void tst_RemoteServerLink::silentServerIsNoticed()
{
    QVERIFY(waitUntilOpen());
    m_log.take();
    m_clock->advance(RemoteServerLink::Pace.intervalMs * RemoteServerLink::Pace.patience - 1);
    QCOMPARE(m_log.take(), QStringList());
    m_clock->advance(1);
    QCOMPARE(m_log.take(),
             QStringList({QStringLiteral("closed"),
                          QStringLiteral("failed: the server does not answer, 250")}));
}

void tst_RemoteServerLink::answeringServerIsKept()
{
    FakeServer server;
    linkTo(server.url());
    m_link->open();
    QVERIFY(server.say(toText(ServerMessage::Welcome{testSite(), {}})));
    QVERIFY(waitForLog(QStringLiteral("opened")));
    m_log.take();
    for (int i = 0; i < 10; ++i) {
        QVERIFY(server.isReached());
        m_clock->advance(RemoteServerLink::Pace.intervalMs);
    }
    QCOMPARE(m_log.take(), QStringList());
    QVERIFY(m_link->isOpen());
}

void tst_RemoteServerLink::serverThatIsNotUnderstoodIsLeft_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no JSON") << QStringLiteral(
        "welcome") << QStringLiteral("message: line 1: expected valid JSON, found: illegal value");
    QTest::newRow("event before the welcome") << QStringLiteral(R"({"type":"event","name":"E"})")
                                              << QStringLiteral("expected a welcome first");
    QTest::newRow("wrong site") << QStringLiteral(R"({"type":"welcome","site":{"name":"S"}})")
                                << QStringLiteral("message: site.stations: expected a list of "
                                                  "objects, found nothing");
}

void tst_RemoteServerLink::serverThatIsNotUnderstoodIsLeft()
{
    QFETCH(QString, text);
    QFETCH(QString, reason);
    FakeServer server;
    linkTo(server.url());
    m_link->open();
    QVERIFY(server.say(text));
    QVERIFY(QTest::qWaitFor([this] { return !m_log.lines().isEmpty(); }));
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("failed: %1, 250").arg(reason)});
}

// It would be another site, of which nobody is told.
void tst_RemoteServerLink::serverThatWelcomesTwiceIsLeft()
{
    FakeServer server;
    linkTo(server.url());
    m_link->open();
    const QString welcome = toText(ServerMessage::Welcome{testSite(), {}});
    QVERIFY(server.say(welcome));
    QVERIFY(waitForLog(QStringLiteral("opened")));
    server.sayAgain(welcome);
    QVERIFY(
        waitForLog(QStringLiteral("failed: message: expected one welcome, found another, 250")));
    QVERIFY(!m_link->isOpen());
}

void tst_RemoteServerLink::serverThatSendsBytesIsLeft()
{
    FakeServer server;
    linkTo(server.url());
    m_link->open();
    QVERIFY(server.say(toText(ServerMessage::Welcome{testSite(), {}})));
    QVERIFY(waitForLog(QStringLiteral("opened")));
    server.sendBytes("\1\2");
    QVERIFY(waitForLog(QStringLiteral("failed: message: expected text, found binary data, 250")));
}

void tst_RemoteServerLink::refusalIsFinal()
{
    const TextFile file("0123456789abcdef");
    m_site = std::make_unique<ServedSite>(AccessToken::fromFile(file.path()));
    linkTo(m_site->gate.url());
    m_link->open();
    QVERIFY(waitForLog(QStringLiteral("refused: expected a token")));
    m_clock->advance(60'000);
    QVERIFY(siteServesAnother());
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("refused: expected a token")});
}

void tst_RemoteServerLink::linkThatIsSentAwayTriesAgain()
{
    FakeServer server;
    linkTo(server.url());
    m_link->open();
    QVERIFY(server.say(toText(ServerMessage::Refused{QStringLiteral("full"), false})));
    QVERIFY(waitForLog(QStringLiteral("failed: full, 250")));
    m_clock->advance(250);
    QVERIFY(server.say(toText(ServerMessage::Welcome{testSite(), {}})));
    QVERIFY(QTest::qWaitFor([this] { return m_link->isOpen(); }));
}

void tst_RemoteServerLink::tokenIsGiven()
{
    const TextFile file("0123456789abcdef");
    const AccessToken token = AccessToken::fromFile(file.path());
    m_site = std::make_unique<ServedSite>(token);
    linkTo(m_site->gate.url(), token);
    QVERIFY(waitUntilOpen());
}

QTEST_GUILESS_MAIN(tst_RemoteServerLink)
#include "tst_RemoteServerLink.moc"
