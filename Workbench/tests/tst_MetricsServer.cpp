#include "MetricsServer.h"

#include "HostFailure.h"
#include "NoDescriptors.h"
#include "ReadMetrics.h"
#include "WorkbenchFixture.h"

#include <QNetworkInterface>
#include <QRegularExpression>
#include <QTcpSocket>
#include <QTest>

#include <memory>

namespace {

const QByteArray Good = QByteArrayLiteral("GET /metrics HTTP/1.1\r\nHost: localhost\r\n\r\n");

} // namespace

class tst_MetricsServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void answersWithWhatAParserAccepts();
    void requestMayComeInPieces();
    void freePortIsChosen();
    void onlyThisMachineIsAnswered();
    void portInUseIsRefused();
    void requestsAreAnswered_data();
    void requestsAreAnswered();
    void slowRequestsEnd();
    void connectionsBeyondTheLimitAreEnded();
    void placesOfEndedConnectionsAreFree();
    void connectionThatCannotBeTakenIsTakenLater();
    void clientMayGoAtAnyTime_data();
    void clientMayGoAtAnyTime();

private:
    std::unique_ptr<QTcpSocket> connected() const;
    QByteArray ask(const QByteArray &request) const;
    void serve(const MetricsLimits &limits);

    std::unique_ptr<WorkbenchFixture> m_fixture;
    std::unique_ptr<MetricsServer> m_server;
};

void tst_MetricsServer::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_fixture = std::make_unique<WorkbenchFixture>(
        QStringLiteral(TEST_PLUGIN_FOLDER "/FakeMonitorPlugin.so"));
    serve({});
}

void tst_MetricsServer::cleanup()
{
    m_server.reset();
    m_fixture.reset();
}

void tst_MetricsServer::serve(const MetricsLimits &limits)
{
    m_server = std::make_unique<MetricsServer>(m_fixture->workbench, quint16(0), limits);
}

std::unique_ptr<QTcpSocket> tst_MetricsServer::connected() const
{
    auto socket = std::make_unique<QTcpSocket>();
    socket->connectToHost(QHostAddress::LocalHost, m_server->port());
    return socket;
}

// Sends bytes and returns all that comes until the connection ends.
QByteArray tst_MetricsServer::ask(const QByteArray &request) const
{
    const std::unique_ptr<QTcpSocket> socket = connected();
    socket->write(request);
    QByteArray answer;
    const auto hasEnded = [&] {
        answer += socket->readAll();
        return socket->state() == QTcpSocket::UnconnectedState;
    };
    return QTest::qWaitFor(hasEnded) ? answer : QByteArray("no end: " + answer);
}

void tst_MetricsServer::answersWithWhatAParserAccepts()
{
    const QByteArray answer = ask(Good);
    QVERIFY2(answer.startsWith("HTTP/1.1 200 OK\r\n"), answer.constData());
    QVERIFY(answer.toLower().contains("\r\ncontent-type: application/openmetrics-text; "
                                      "version=1.0.0; charset=utf-8\r\n"));
    const QByteArray body = answer.mid(answer.indexOf("\r\n\r\n") + 4);
    QVERIFY(answer.toLower().contains("\r\ncontent-length: " + QByteArray::number(body.size())
                                      + "\r\n"));
    QVERIFY(
        readMetrics(body).contains(QStringLiteral("gauge system_monitor_server_connected{} 0")));
}

void tst_MetricsServer::requestMayComeInPieces()
{
    const std::unique_ptr<QTcpSocket> socket = connected();
    QVERIFY(socket->waitForConnected());
    QByteArray answer;
    for (const char byte : Good) {
        socket->write(&byte, 1);
        socket->flush();
        QCoreApplication::processEvents();
    }
    QVERIFY(QTest::qWaitFor([&] {
        answer += socket->readAll();
        return answer.endsWith("# EOF\n");
    }));
}

void tst_MetricsServer::freePortIsChosen()
{
    QVERIFY(m_server->port() > 0);
}

void tst_MetricsServer::onlyThisMachineIsAnswered()
{
    const QList<QHostAddress> addresses = QNetworkInterface::allAddresses();
    for (const QHostAddress &address : addresses) {
        if (address.isLoopback() || address.protocol() != QAbstractSocket::IPv4Protocol)
            continue;
        QTcpSocket socket;
        socket.connectToHost(address, m_server->port());
        QVERIFY(!socket.waitForConnected());
        QCOMPARE(socket.error(), QTcpSocket::ConnectionRefusedError);
    }
}

void tst_MetricsServer::portInUseIsRefused()
{
    const quint16 port = m_server->port();
    QCOMPARE(
        hostFailure([&] { MetricsServer(m_fixture->workbench, port); }),
        QStringLiteral("--metrics: port %1 cannot be used: The bound address is already in use")
            .arg(port));
    QVERIFY(ask(Good).startsWith("HTTP/1.1 200 OK\r\n"));
}

void tst_MetricsServer::requestsAreAnswered_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QByteArray>("status");
    const QByteArray end = "\r\nHost: localhost\r\n\r\n";
    QTest::newRow("with a query") << "GET /metrics?a=b HTTP/1.1" + end << QByteArray("200");
    QTest::newRow("with headers") << QByteArray(
        "GET /metrics HTTP/1.1\r\nHost: a\r\nAccept: */*\r\nX: y\r\n\r\n")
                                  << QByteArray("200");
    QTest::newRow("another path") << "GET / HTTP/1.1" + end << QByteArray("404");
    QTest::newRow("a path below") << "GET /metrics/x HTTP/1.1" + end << QByteArray("404");
    QTest::newRow("a path that climbs") << "GET /../metrics HTTP/1.1" + end << QByteArray("404");
    QTest::newRow("post") << "POST /metrics HTTP/1.1\r\nContent-Length: 1" + end + "x"
                          << QByteArray("405");
    QTest::newRow("delete") << "DELETE /metrics HTTP/1.1" + end << QByteArray("405");
    QTest::newRow("head") << "HEAD /metrics HTTP/1.1" + end << QByteArray("405");
    QTest::newRow("older version")
        << QByteArray("GET /metrics HTTP/1.0\r\n\r\n") << QByteArray("200");

    const QByteArray bad("400");
    QTest::newRow("nothing") << QByteArray("\r\n\r\n") << bad;
    QTest::newRow("no HTTP") << QByteArray("hello\r\n\r\n") << bad;
    QTest::newRow("no version") << QByteArray("GET /metrics\r\n\r\n") << bad;
    QTest::newRow("another version") << QByteArray("GET /metrics HTTP/2.0\r\n\r\n") << bad;
    QTest::newRow("two spaces") << QByteArray("GET  /metrics HTTP/1.1\r\n\r\n") << bad;
    QTest::newRow("no path") << QByteArray("GET metrics HTTP/1.1\r\n\r\n") << bad;
    QTest::newRow("bytes of no text") << QByteArray(100, '\xff') + "\r\n\r\n" << bad;
    QTest::newRow("zeros") << QByteArray(100, '\0') + "\r\n\r\n" << bad;
    QTest::newRow("zero in the path") << QByteArray("GET /metrics\0 HTTP/1.1\r\n\r\n", 26) << bad;
    QTest::newRow("header without a colon")
        << QByteArray("GET /metrics HTTP/1.1\r\nHost\r\n\r\n") << bad;
    QTest::newRow("header without a name")
        << QByteArray("GET /metrics HTTP/1.1\r\n: a\r\n\r\n") << bad;
    QTest::newRow("folded header")
        << QByteArray("GET /metrics HTTP/1.1\r\nA: b\r\n c\r\n\r\n") << bad;
    QTest::newRow("line feed alone") << QByteArray("GET /metrics HTTP/1.1\nA: b\r\n\r\n") << bad;

    const QByteArray large("431");
    const QByteArray start = "GET /metrics HTTP/1.1\r\n";
    QTest::newRow("line without end") << "GET /" + QByteArray(8192, 'a') << large;
    QTest::newRow("header without end") << start + "X: " + QByteArray(8192, 'a') << large;
    QTest::newRow("headers without end") << start + QByteArray("X: y\r\n").repeated(1500) << large;
    QTest::newRow("just within the limit")
        << start + "X: " + QByteArray(8192 - start.size() - 7, 'a') + "\r\n\r\n"
        << QByteArray("200");
}

void tst_MetricsServer::requestsAreAnswered()
{
    QFETCH(QByteArray, request);
    QTEST(ask(request).mid(9, 3), "status");
    QVERIFY(ask(Good).startsWith("HTTP/1.1 200 OK\r\n"));
}

void tst_MetricsServer::slowRequestsEnd()
{
    MetricsLimits limits;
    limits.connectionMs = 1;
    serve(limits);
    QCOMPARE(ask(Good.chopped(2)), QByteArray());
}

void tst_MetricsServer::connectionsBeyondTheLimitAreEnded()
{
    MetricsLimits limits;
    limits.connections = 2;
    serve(limits);
    const std::unique_ptr<QTcpSocket> first = connected();
    const std::unique_ptr<QTcpSocket> second = connected();
    QCOMPARE(ask(Good), QByteArray());
    QCOMPARE(second->state(), QTcpSocket::ConnectedState);
    first->write(Good);
    QVERIFY(QTest::qWaitFor([&] { return first->readAll().contains("# EOF\n"); }));
}

void tst_MetricsServer::placesOfEndedConnectionsAreFree()
{
    MetricsLimits limits;
    limits.connections = 1;
    serve(limits);
    for (int i = 0; i < 5; ++i)
        QVERIFY(ask(Good).startsWith("HTTP/1.1 200 OK\r\n"));
}

// The client is connected as soon as the system has it, before the server takes the connection.
void tst_MetricsServer::connectionThatCannotBeTakenIsTakenLater()
{
    MetricsLimits limits;
    limits.acceptPauseMs = 0;
    serve(limits);
    const std::unique_ptr<QTcpSocket> socket = connected();
    QVERIFY(socket->waitForConnected());
    socket->write(Good);
    {
        const NoDescriptors full;
        QCoreApplication::processEvents();
    }
    QVERIFY(QTest::qWaitFor([&] { return socket->readAll().contains("# EOF\n"); }));
}

void tst_MetricsServer::clientMayGoAtAnyTime_data()
{
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("half a line") << QByteArray("GET /met");
    QTest::newRow("without the end") << Good.chopped(2);
    QTest::newRow("whole") << Good;
    QTest::newRow("many") << Good.repeated(100);
}

void tst_MetricsServer::clientMayGoAtAnyTime()
{
    QFETCH(QByteArray, sent);
    {
        const std::unique_ptr<QTcpSocket> socket = connected();
        QVERIFY(socket->waitForConnected());
        socket->write(sent);
        socket->flush();
        socket->abort();
    }
    QVERIFY(ask(Good).startsWith("HTTP/1.1 200 OK\r\n"));
}

QTEST_GUILESS_MAIN(tst_MetricsServer)
#include "tst_MetricsServer.moc"
