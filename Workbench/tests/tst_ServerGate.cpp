#include "ServerGate.h"

#include "NoDescriptors.h"
#include "RawClient.h"
#include "ServedSite.h"
#include "ServerNames.h"

#include <QTest>

#include <memory>
#include <vector>

namespace {

const QByteArray Hello = QByteArrayLiteral(R"({"type":"hello","protocol":3})");

QVariantMap snoozeRequest(const QString &cameraId, qint64 endSeconds)
{
    return {{ServerNames::KeyNodeId, cameraId},
            {ServerNames::KeyType, ServerNames::CameraDisconnected},
            {ServerNames::KeyTimestamp, endSeconds}};
}

} // namespace

class tst_ServerGate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tellsWhereItListens();
    void addressThatIsTakenIsReported();
    void allClientsHearWhatHappens();
    void nobodyHearsAnythingBeforeItsHello();
    void clientsThatLeaveAreForgotten();
    void pagesInBrowsersAreTurnedAway();
    void requestsThatAreNoneAreTurnedAway_data();
    void requestsThatAreNoneAreTurnedAway();
    void clientsBeyondTheLimitAreSentAway();
    void connectionsWithoutAHelloKeepNobodyOut();
    void connectionThatCannotBeTakenIsTakenLater();
    void changedSnoozesAreToldOneByOne();
    void snoozesAtATimeDoNotEndTheConnection();
    void gateMayGoWithItsClients();

private:
    std::unique_ptr<ServedSite> m_site;
};

void tst_ServerGate::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_site = std::make_unique<ServedSite>();
}

void tst_ServerGate::cleanup()
{
    m_site.reset();
}

void tst_ServerGate::tellsWhereItListens()
{
    const QUrl url = m_site->gate.url();
    QCOMPARE(url.scheme(), QStringLiteral("ws"));
    QCOMPARE(url.host(), QStringLiteral("127.0.0.1"));
    QVERIFY(url.port() > 0);
}

void tst_ServerGate::addressThatIsTakenIsReported()
{
    ServerGate other(m_site->server, {}, m_site->clock);
    QVERIFY(
        !other.listen(QHostAddress::LocalHost, static_cast<quint16>(m_site->gate.url().port())));
    QCOMPARE(other.errorText(), QStringLiteral("The bound address is already in use"));
}

void tst_ServerGate::allClientsHearWhatHappens()
{
    RawClient first(m_site->gate.url());
    RawClient second(m_site->gate.url());
    first.sendText(Hello);
    second.sendText(Hello);
    QTRY_COMPARE(first.texts().size(), 1);
    QTRY_COMPARE(second.texts().size(), 1);

    SiteServer &server = m_site->server;
    server.setCameraConnected(QStringLiteral("north/c1"), false);
    server.setStationConnected(QStringLiteral("south"), false);
    server.setVolumeConnected(QStringLiteral("north"), QStringLiteral("v1"), false);
    server.removeCamera(QStringLiteral("north/c2"));
    server.removeStation(QStringLiteral("north/annex"));
    server.reportResources(QStringLiteral("north"), {12, 34, {}});
    QTRY_COMPARE(first.texts().size(), 7);
    QCOMPARE(first.texts().mid(1),
             QList<QByteArray>(
                 {R"({"camera":"north/c1","connected":false,"type":"nodeStatus"})",
                  R"({"connected":false,"station":"south","type":"nodeStatus"})",
                  R"({"recordingGroups":[{"id":"g1","name":"Entrances","recordedDays":30,)"
                  R"("requiredDays":30}],"station":"north","type":"storageChanged",)"
                  R"("volumes":[{"connected":false,"id":"v1","name":"Archive A"},)"
                  R"({"connected":true,"id":"v2","name":"Archive B"}]})",
                  R"({"camera":"north/c2","type":"cameraRemoved"})",
                  R"({"station":"north/annex","type":"stationRemoved"})",
                  R"({"data":{"cpuPercentage":12,"memPercentage":34,"networkUsageList":[]},)"
                  R"("name":"SystemResChanged","source":"north","type":"event"})"}));
    QTRY_COMPARE(second.texts().mid(1), first.texts().mid(1));
}

void tst_ServerGate::nobodyHearsAnythingBeforeItsHello()
{
    RawClient client(m_site->gate.url());
    QTRY_COMPARE(m_site->gate.connectionCount(), std::size_t(1));
    m_site->server.setCameraConnected(QStringLiteral("north/c1"), false);
    client.sendText(Hello);
    QTRY_COMPARE(client.texts().size(), 1);
    QVERIFY(client.texts().constFirst().contains("welcome"));
}

void tst_ServerGate::clientsThatLeaveAreForgotten()
{
    {
        const RawClient client(m_site->gate.url());
        QTRY_COMPARE(m_site->gate.connectionCount(), std::size_t(1));
    }
    QTRY_COMPARE(m_site->gate.connectionCount(), std::size_t(0));
}

void tst_ServerGate::pagesInBrowsersAreTurnedAway()
{
    RawClient client(m_site->gate.url(), "Origin: http://example.org\r\n");
    QTRY_COMPARE(client.status(), QByteArray("HTTP/1.1 403 Access Forbidden"));
    QCOMPARE(m_site->gate.connectionCount(), std::size_t(0));
}

void tst_ServerGate::requestsThatAreNoneAreTurnedAway_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::newRow("page") << QByteArray("GET / HTTP/1.1\r\nHost: x\r\n\r\n");
    QTest::newRow("noise") << QByteArray("\1\2\3\r\n\r\n");
}

void tst_ServerGate::requestsThatAreNoneAreTurnedAway()
{
    QFETCH(QByteArray, request);
    QTcpSocket socket;
    RawClient::connectOnly(socket, m_site->gate.url());
    socket.write(request);
    QTRY_COMPARE(socket.state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(m_site->gate.connectionCount(), std::size_t(0));
}

void tst_ServerGate::clientsBeyondTheLimitAreSentAway()
{
    std::vector<std::unique_ptr<RawClient>> clients;
    for (std::size_t i = 0; i < ServerGate::MaxClients; ++i) {
        clients.push_back(std::make_unique<RawClient>(m_site->gate.url()));
        clients.back()->sendText(Hello);
    }
    QTRY_COMPARE(clients.back()->texts().size(), 1);
    RawClient late(m_site->gate.url());
    late.sendText(Hello);
    QTRY_COMPARE(late.texts(), QList<QByteArray>{R"({"final":false,"reason":"the server has 100 )"
                                                 R"(clients already","type":"refused"})"});
    QTRY_COMPARE(late.closeCode(), 1013);
    QTRY_COMPARE(m_site->gate.connectionCount(), ServerGate::MaxClients);
    clients.pop_back();
    QTRY_COMPARE(m_site->gate.connectionCount(), ServerGate::MaxClients - 1);
}

void tst_ServerGate::connectionsWithoutAHelloKeepNobodyOut()
{
    std::vector<std::unique_ptr<RawClient>> strangers;
    for (std::size_t i = 0; i < ServerGate::MaxStrangers; ++i) {
        strangers.push_back(std::make_unique<RawClient>(m_site->gate.url()));
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(m_site->gate.connectionCount(), ServerGate::MaxStrangers);
    RawClient client(m_site->gate.url());
    client.sendText(Hello);
    QTRY_COMPARE(client.texts().size(), 1);
    QVERIFY(client.texts().constFirst().contains("welcome"));
    QTRY_COMPARE(strangers.front()->texts(),
                 QList<QByteArray>{R"({"final":false,"reason":"too many connections wait for a )"
                                   R"(hello","type":"refused"})"});
    QVERIFY(strangers.back()->isConnected());
}

// The client is connected as soon as the system has it, before the server takes the connection.
void tst_ServerGate::connectionThatCannotBeTakenIsTakenLater()
{
    RawClient client(m_site->gate.url());
    {
        const NoDescriptors full;
        QCoreApplication::processEvents();
    }
    QCoreApplication::processEvents();
    QCOMPARE(client.status(), QByteArray());
    m_site->clock.advance(1000);
    client.sendText(Hello);
    QTRY_COMPARE(client.texts().size(), 1);
    QVERIFY(client.texts().constFirst().contains("welcome"));
}

void tst_ServerGate::changedSnoozesAreToldOneByOne()
{
    RawClient client(m_site->gate.url());
    client.sendText(Hello);
    QTRY_COMPARE(client.texts().size(), 1);
    const qint64 end = m_site->clock.nowMs() / 1000 + 60;
    for (const QString &nodeId : {QStringLiteral("north/c1"), QStringLiteral("north/c2")})
        m_site->server.execute(ServerNames::SetSnooze, snoozeRequest(nodeId, end), {});
    m_site->server.removeCamera(QStringLiteral("north/c1"));
    QTRY_COMPARE(client.texts().size(), 8);
    const QByteArray endText = QByteArray::number(end);
    QCOMPARE(client.texts().mid(1),
             QList<QByteArray>(
                 {R"({"camera":"north/c1","type":"cameraRemoved"})",
                  // It is over before there was time to tell of it.
                  R"({"nodeID":"north/c1","type":"snoozeEnded"})",
                  R"({"data":{"nodeID":"north/c1","type":3},"name":"SnoozeError","type":"event"})",
                  R"({"snooze":{"nodeID":"north/c2","timestamp":)" + endText
                      + R"(,"type":3},"type":"snoozed"})",
                  R"({"data":{"nodeID":"north/c2","type":3},"name":"SnoozeError","type":"event"})",
                  R"({"nodeID":"north/c1","type":"snoozeEnded"})",
                  R"({"data":"north/c1","name":"RemoveSnooze","type":"event"})"}));
}

// What a client is sent for each must not grow with their number: it would not keep up.
void tst_ServerGate::snoozesAtATimeDoNotEndTheConnection()
{
    constexpr int Count = 2000;
    Station station;
    station.id = QStringLiteral("st");
    station.name = QStringLiteral("Station");
    for (int i = 0; i < Count; ++i)
        station.cameras.push_back(
            {QStringLiteral("st/%1").arg(i), QStringLiteral("Camera"), false});
    Site site;
    site.stations = {station};

    RawClient reader(m_site->gate.url());
    reader.sendText(Hello);
    QTRY_COMPARE(reader.texts().size(), 1);
    m_site->server.reset(site);
    const qint64 end = m_site->clock.nowMs() / 1000 + 60;
    std::vector<SiteCommand> commands;
    for (const Camera &camera : station.cameras)
        commands.push_back({ServerNames::SetSnooze, snoozeRequest(camera.id, end), {}});
    m_site->server.executeAll(commands);
    QTRY_COMPARE(reader.texts().size(), 1 + 2 * Count);
    qsizetype bytes = 0;
    for (const QByteArray &text : reader.texts())
        bytes += text.size();
    QVERIFY2(bytes < qsizetype{1024} * 1024, qPrintable(QString::number(bytes)));
}

void tst_ServerGate::gateMayGoWithItsClients()
{
    RawClient client(m_site->gate.url());
    client.sendText(Hello);
    QTRY_COMPARE(client.texts().size(), 1);
    m_site.reset();
    QTRY_VERIFY(!client.isConnected());
}

QTEST_GUILESS_MAIN(tst_ServerGate)
#include "tst_ServerGate.moc"
