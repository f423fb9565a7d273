#include "FakePeer.h"

#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <chrono>

namespace {

constexpr std::chrono::milliseconds DribblePause{5};
constexpr qint64 PouredAhead = 1 << 16;

} // namespace

FakePeer::FakePeer()
{
    connect(&m_server, &QTcpServer::newConnection, this, &FakePeer::accept);
    m_server.listen(QHostAddress::LocalHost);
}

QByteArray FakePeer::http(const QByteArray &body, const QByteArray &status)
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size())
           + "\r\nConnection: close\r\n\r\n" + body;
}

void FakePeer::accept()
{
    QTcpSocket *const client = m_server.nextPendingConnection();
    m_mostClients = std::max(m_mostClients, ++m_clients);
    connect(client, &QTcpSocket::readyRead, this, [this, client] { take(client); });
    connect(client, &QTcpSocket::disconnected, this, [this, client] {
        --m_clients;
        client->deleteLater();
    });
}

void FakePeer::take(QTcpSocket *client)
{
    const QByteArray received = client->peek(client->bytesAvailable());
    const qsizetype end = received.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    m_requests.append(client->read(end + 4));
    respond(client);
}

void FakePeer::respond(QTcpSocket *client)
{
    switch (m_manner) {
    case Answers:
        client->write(m_answer);
        client->disconnectFromHost();
        break;
    case Dribbles:
        dribble(client, 0);
        break;
    case Hangs:
        break;
    case Closes:
        client->disconnectFromHost();
        break;
    case Pours:
        connect(client, &QTcpSocket::bytesWritten, this, [this, client] { pour(client); });
        pour(client);
        break;
    }
}

void FakePeer::pour(QTcpSocket *client)
{
    while (client->isOpen() && client->bytesToWrite() < PouredAhead)
        client->write(m_answer);
}

void FakePeer::dribble(QTcpSocket *client, qsizetype position)
{
    client->write(m_answer.mid(position, 1));
    QTimer::singleShot(DribblePause, client,
                       [this, client, position] { dribble(client, position + 1); });
}
