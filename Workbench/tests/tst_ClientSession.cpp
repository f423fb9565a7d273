#include "ClientSession.h"

#include "RawClient.h"
#include "ServedSite.h"
#include "TextFile.h"

#include <QTest>
#include <QWebSocket>
#include <QWebSocketServer>

#include <memory>

namespace {

const QByteArray Hello = QByteArrayLiteral(R"({"type":"hello","protocol":3})");

QByteArray nested(int depth)
{
    return R"({"type":"command","id":1,"name":"x","data":)" + QByteArray(depth, '[')
           + QByteArray(depth, ']') + '}';
}

QByteArray refusal(const char *reason, const char *isFinal = "true")
{
    return R"({"final":)" + QByteArray(isFinal) + R"(,"reason":")" + QByteArray(reason)
           + R"(","type":"refused"})";
}

} // namespace

class tst_ClientSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void helloIsWelcomedWithTheSite();
    void commandIsAnsweredBeforeItsEvents();
    void failedCommandsKeepTheConnection();

    void messagesThatAreNotUnderstoodAreRefused_data();
    void messagesThatAreNotUnderstoodAreRefused();
    void framesThatBreakTheRulesEndTheConnection_data();
    void framesThatBreakTheRulesEndTheConnection();
    void nothingIsHeardAfterARefusal();

    void tokenIsAskedFor_data();
    void tokenIsAskedFor();

    void clientWithoutAHelloIsDropped();
    void silentClientIsDropped();
    void clientThatDoesNotReadIsDropped();
    void clientThatAsksFasterThanItIsServedIsSentAway();

private:
    void serve(const AccessToken &token = {});
    QByteArray lastText(RawClient &client, qsizetype count);
    void verifyUnharmed();

    std::unique_ptr<ServedSite> m_site;
};

void tst_ClientSession::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    serve();
}

void tst_ClientSession::cleanup()
{
    m_site.reset();
}

void tst_ClientSession::serve(const AccessToken &token)
{
    m_site = std::make_unique<ServedSite>(token);
}

// The last of a number of texts that are waited for.
QByteArray tst_ClientSession::lastText(RawClient &client, qsizetype count)
{
    if (!QTest::qWaitFor([&] { return client.texts().size() >= count; }))
        return "nothing";
    return client.texts().constLast();
}

// The site is as it was, and new clients are served.
void tst_ClientSession::verifyUnharmed()
{
    QVERIFY(m_site->server.execute(QStringLiteral("getSnoozeList"), {}, {})
                .data.toStringList()
                .isEmpty());
    RawClient other(m_site->gate.url());
    other.sendText(Hello);
    QVERIFY(lastText(other, 1).contains(R"("type":"welcome")"));
}

void tst_ClientSession::helloIsWelcomedWithTheSite()
{
    RawClient client(m_site->gate.url());
    client.sendText(Hello);
    const QByteArray welcome = lastText(client, 1);
    QVERIFY(welcome.contains(R"("type":"welcome")"));
    QVERIFY(welcome.contains(R"("name":"Test site")"));
    QVERIFY(client.isConnected());
}

void tst_ClientSession::commandIsAnsweredBeforeItsEvents()
{
    RawClient client(m_site->gate.url());
    client.sendText(Hello);
    const QByteArray end = QByteArray::number(VirtualClock::StartMs / 1000 + 60);
    client.sendText(R"({"type":"command","id":7,"name":"setSnooze",)"
                    R"("data":{"nodeID":"north/c1","type":3,"timestamp":)"
                    + end + "}}");
    lastText(client, 4);
    QCOMPARE(client.texts().mid(1),
             QList<QByteArray>({R"({"code":"0","data":{"nodeID":"north/c1","timestamp":)" + end
                                    + R"(,"type":3},"id":7,"type":"result"})",
                                R"({"snooze":{"nodeID":"north/c1","timestamp":)" + end
                                    + R"(,"type":3},"type":"snoozed"})",
                                R"({"data":{"nodeID":"north/c1","type":3},"name":"SnoozeError",)"
                                R"("type":"event"})"}));
}

void tst_ClientSession::failedCommandsKeepTheConnection()
{
    RawClient client(m_site->gate.url());
    client.sendText(Hello);
    client.sendText(R"({"type":"command","id":1,"name":"selfDestruct"})");
    QCOMPARE(lastText(client, 2),
             QByteArray(R"({"code":"UnknownCommand","data":null,"id":1,"type":"result"})"));
    client.sendText(R"({"type":"command","id":2,"name":"setSnooze","data":[1,{"a":null}]})");
    QCOMPARE(lastText(client, 3),
             QByteArray(R"({"code":"UnknownNode","data":[1,{"a":null}],"id":2,"type":"result"})"));
    QVERIFY(client.isConnected());
}

void tst_ClientSession::messagesThatAreNotUnderstoodAreRefused_data()
{
    QTest::addColumn<bool>("isWelcome");
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char *name, bool isWelcome, const QByteArray &message,
                        const char *reason) {
        QTest::newRow(name) << isWelcome << message << QByteArray(reason);
    };
    row("empty", false, "", "message: line 1: expected valid JSON, found: illegal value");
    row("no JSON", false, "hello", "message: line 1: expected valid JSON, found: illegal value");
    row("cut off", false, R"({"type":)",
        "message: line 1: expected valid JSON, found: unterminated object");
    row("list", false, "[]", "message: line 1: expected an object, found a list");
    row("no type", false, "{}", "message: type: expected a text, found nothing");
    row("type is a number", false, R"({"type":1})",
        "message: type: expected a text, found the number 1");
    row("unknown type", false, R"({"type":"goodbye"})",
        R"(message: type: expected one of command, hello, found \"goodbye\")");
    row("hello without a version", false, R"({"type":"hello"})",
        "message: protocol: expected a whole number from 0 to 2147483647, found nothing");
    row("version as text", false, R"({"type":"hello","protocol":"1"})",
        R"(message: protocol: expected a whole number from 0 to 2147483647, found \"1\")");
    row("another version", false, R"({"type":"hello","protocol":2,"colour":"red"})",
        "message: protocol: expected version 3, found version 2");
    row("token is a list", false, R"({"type":"hello","protocol":3,"token":[]})",
        "message: token: expected a text, found a list");
    row("unknown key", false, R"({"type":"hello","protocol":3,"colour":"red"})",
        "message: colour: expected one of the keys protocol, token, type, found an unknown key");
    row("command before the hello", false, R"({"type":"command","id":1,"name":"getSnoozeList"})",
        "message: expected a hello first");
    row("second hello", true, Hello, "message: expected one hello, found another");
    row("command without an id", true, R"({"type":"command","name":"x"})",
        "message: id: expected a whole number from 0 to 2147483647, found nothing");
    row("fraction as id", true, R"({"type":"command","id":1.5,"name":"x"})",
        "message: id: expected a whole number from 0 to 2147483647, found the number 1.5");
    row("id too great", true, R"({"type":"command","id":2147483648,"name":"x"})",
        "message: id: expected a whole number from 0 to 2147483647, found the number 2147483648");
    row("command without a name", true, R"({"type":"command","id":1})",
        "message: name: expected a text, found nothing");
    row("command with an empty name", true, R"({"type":"command","id":1,"name":""})",
        "message: name: expected a text, found an empty text");
    row("target is an object", true, R"({"type":"command","id":1,"name":"x","target":{}})",
        "message: target: expected a text, found an object");
    row("nested too deeply", true, nested(2000),
        "message: line 1: expected valid JSON, found: too deeply nested document");
    row("message of a server", true, R"({"type":"welcome","site":{}})",
        R"(message: type: expected one of command, hello, found \"welcome\")");
}

void tst_ClientSession::messagesThatAreNotUnderstoodAreRefused()
{
    QFETCH(bool, isWelcome);
    QFETCH(QByteArray, message);
    QFETCH(QByteArray, reason);
    RawClient client(m_site->gate.url());
    if (isWelcome)
        client.sendText(Hello);
    client.sendText(message);
    QCOMPARE(lastText(client, isWelcome ? 2 : 1), refusal(reason.constData()));
    QTRY_COMPARE(client.closeCode(), 1008);
    QTRY_COMPARE(m_site->gate.connectionCount(), std::size_t(0));
    verifyUnharmed();
}

void tst_ClientSession::framesThatBreakTheRulesEndTheConnection_data()
{
    QTest::addColumn<quint8>("opcode");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<bool>("isMasked");
    QTest::addColumn<int>("code");
    const quint8 text = RawClient::Text;
    QTest::newRow("binary data") << quint8(RawClient::Binary) << QByteArray("\1\2") << true << 1008;
    QTest::newRow("too large") << text << QByteArray(ClientMessage::MaxBytes + 1, ' ') << true
                               << 1009;
    QTest::newRow("no UTF-8") << text << QByteArray("\"\xff\xfe\"") << true << 1007;
    QTest::newRow("unmasked") << text << QByteArray("{}") << false << 1008;
    QTest::newRow("reserved kind") << quint8(5) << QByteArray("{}") << true << 1002;
    QTest::newRow("continuation of nothing") << quint8(0) << QByteArray("{}") << true << 1002;
    QTest::newRow("long ping") << quint8(RawClient::Ping) << QByteArray(200, 'x') << true << 1002;
}

void tst_ClientSession::framesThatBreakTheRulesEndTheConnection()
{
    QFETCH(quint8, opcode);
    QFETCH(QByteArray, payload);
    QFETCH(bool, isMasked);
    QFETCH(int, code);
    RawClient client(m_site->gate.url());
    client.sendText(Hello);
    lastText(client, 1);
    client.sendFrame(opcode, payload, isMasked);
    QTRY_COMPARE(client.closeCode(), code);
    QTRY_COMPARE(m_site->gate.connectionCount(), std::size_t(0));
    verifyUnharmed();
}

void tst_ClientSession::nothingIsHeardAfterARefusal()
{
    RawClient client(m_site->gate.url());
    client.sendText("{}");
    client.sendText(Hello);
    client.sendText("{}");
    QTRY_COMPARE(client.closeCode(), 1008);
    QCOMPARE(client.texts(), QList<QByteArray>{refusal("message: type: expected a text, found "
                                                       "nothing")});
}

void tst_ClientSession::tokenIsAskedFor_data()
{
    QTest::addColumn<QByteArray>("token");
    QTest::addColumn<QByteArray>("answer");
    const QByteArray wrong = refusal("the token is wrong");
    QTest::newRow("right") << QByteArray(R"(,"token":"correct-horse-battery")") << QByteArray();
    QTest::newRow("none") << QByteArray() << refusal("expected a token");
    QTest::newRow("wrong") << QByteArray(R"(,"token":"correct-horse-batterY")") << wrong;
    QTest::newRow("cut off") << QByteArray(R"(,"token":"correct-horse-batter")") << wrong;
    QTest::newRow("too long") << QByteArray(R"(,"token":"correct-horse-battery2")") << wrong;
}

void tst_ClientSession::tokenIsAskedFor()
{
    QFETCH(QByteArray, token);
    QFETCH(QByteArray, answer);
    const TextFile file("correct-horse-battery\n");
    serve(AccessToken::fromFile(file.path()));
    RawClient client(m_site->gate.url());
    client.sendText(R"({"type":"hello","protocol":3)" + token + '}');
    const QByteArray text = lastText(client, 1);
    if (answer.isEmpty())
        QVERIFY(text.contains(R"("type":"welcome")"));
    else
        QCOMPARE(text, answer);
}

void tst_ClientSession::clientWithoutAHelloIsDropped()
{
    RawClient client(m_site->gate.url());
    QTRY_COMPARE(m_site->gate.connectionCount(), std::size_t(1));
    m_site->clock.set(-3'600'000);
    m_site->clock.advance(ClientSession::HelloMs);
    QCOMPARE(lastText(client, 1), refusal("expected a hello within 5 seconds", "false"));
    QTRY_COMPARE(client.closeCode(), 1013);
    QTRY_COMPARE(m_site->gate.connectionCount(), std::size_t(0));
}

void tst_ClientSession::silentClientIsDropped()
{
    RawClient client(m_site->gate.url());
    client.sendText(Hello);
    lastText(client, 1);
    m_site->clock.advance(ClientSession::Pace.intervalMs * ClientSession::Pace.patience - 1);
    QCOMPARE(m_site->gate.connectionCount(), std::size_t(1));
    m_site->clock.advance(1);
    QTRY_COMPARE(m_site->gate.connectionCount(), std::size_t(0));
}

void tst_ClientSession::clientThatDoesNotReadIsDropped()
{
    RawClient client(m_site->gate.url());
    client.sendText(Hello);
    lastText(client, 1);
    client.stopReading();
    const QString longName(qsizetype{1024} * 1024, u'x');
    for (int i = 0; i < 100 && m_site->gate.connectionCount() > 0; ++i) {
        m_site->server.reportReachingLimit(longName, 90);
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(m_site->gate.connectionCount(), std::size_t(0));
}

// What arrives at a time waits together; what has been answered counts no more.
void tst_ClientSession::clientThatAsksFasterThanItIsServedIsSentAway()
{
    const QByteArray command = R"({"type":"command","id":1,"name":"getSnoozeList"})";
    QWebSocketServer listener(QString(), QWebSocketServer::NonSecureMode);
    QVERIFY(listener.listen(QHostAddress::LocalHost));
    RawClient client(listener.serverUrl());
    QTRY_VERIFY(listener.hasPendingConnections());
    std::unique_ptr<QWebSocket> socket(listener.nextPendingConnection());
    socket->setParent(nullptr);
    ClientSession session(std::move(socket), {}, m_site->server, m_site->clock, nullptr,
                          2 * command.size());
    connect(&session, &ClientSession::introduced, &session, &ClientSession::welcome);
    client.sendText(Hello);
    lastText(client, 1);
    for (int i = 0; i < 5; ++i) {
        client.sendText(command);
        lastText(client, 2 + i);
    }
    const auto texts = [&client] { return client.texts().mid(6); };
    QCOMPARE(texts().size(), 0);
    for (int i = 0; i < 3; ++i)
        client.sendText(command);
    QTRY_COMPARE(client.closeCode(), 1013);
    QCOMPARE(texts(), QList<QByteArray>{refusal("too many commands at a time", "false")});
}

QTEST_GUILESS_MAIN(tst_ClientSession)
#include "tst_ClientSession.moc"
