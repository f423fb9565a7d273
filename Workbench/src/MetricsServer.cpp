#include "MetricsServer.h"

#include "HostError.h"

#include <QRegularExpression>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>

namespace {

enum Status : int {
    Ok = 200,
    BadRequest = 400,
    NotFound = 404,
    MethodNotAllowed = 405,
    HeadersTooLarge = 431,
};

QByteArray statusLine(int status)
{
    switch (status) {
    case Ok:
        return "200 OK";
    case NotFound:
        return "404 Not Found";
    case MethodNotAllowed:
        return "405 Method Not Allowed\r\nAllow: GET";
    case HeadersTooLarge:
        return "431 Request Header Fields Too Large";
    default:
        return "400 Bad Request";
    }
}

// The status for a request line and its headers, without the empty line that ends them.
Status judged(const QByteArray &head)
{
    static const QRegularExpression requestLine(
        QStringLiteral(R"(\A([A-Z]+) (/[!-~]*) HTTP/1\.[01]\z)"));
    static const QRegularExpression header(
        QStringLiteral(R"(\A[!#$%&'*+.^_`|~0-9A-Za-z-]+:[^\x00-\x08\x0a-\x1f\x7f]*\z)"));

    const QStringList lines = QString::fromLatin1(head).split(QStringLiteral("\r\n"));
    const QRegularExpressionMatch request = requestLine.match(lines.constFirst());
    const QStringList headers = lines.mid(1);
    if (!request.hasMatch()
        || !std::all_of(headers.begin(), headers.end(),
                        [](const QString &line) { return header.match(line).hasMatch(); }))
        return BadRequest;
    if (request.captured(2).section(u'?', 0, 0) != QStringLiteral("/metrics"))
        return NotFound;
    return request.captured(1) == QStringLiteral("GET") ? Ok : MethodNotAllowed;
}

} // namespace

MetricsServer::MetricsServer(Workbench &workbench, quint16 port, const MetricsLimits &limits)
    : m_limits(limits)
    , m_metrics(workbench)
{
    connect(&m_tcp, &QTcpServer::newConnection, this, &MetricsServer::takeConnections);
    // Where there is no file descriptor left for a connection, Qt would never take one again.
    connect(&m_tcp, &QTcpServer::acceptError, this, [this] {
        QTimer::singleShot(m_limits.acceptPauseMs, &m_tcp, &QTcpServer::resumeAccepting);
    });
    if (!m_tcp.listen(QHostAddress::LocalHost, port))
        throw HostError(
            tr("--metrics: port %1 cannot be used: %2").arg(port).arg(m_tcp.errorString()));
}

void MetricsServer::takeConnections()
{
    while (QTcpSocket *const socket = m_tcp.nextPendingConnection()) {
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        if (m_connectionCount >= m_limits.connections) {
            socket->abort();
            continue;
        }
        ++m_connectionCount;
        connect(socket, &QTcpSocket::disconnected, this, [this] { --m_connectionCount; });
        socket->setReadBufferSize(m_limits.requestBytes);
        QTimer::singleShot(m_limits.connectionMs, socket, &QTcpSocket::abort);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { takeRequest(*socket); });
    }
}

// What has come stays in the socket's buffer, which is limited, until the request is whole.
void MetricsServer::takeRequest(QTcpSocket &socket)
{
    const QByteArray request = socket.peek(m_limits.requestBytes);
    const qsizetype end = request.indexOf("\r\n\r\n");
    if (end >= 0)
        answer(socket, judged(request.left(end)));
    else if (request.size() >= m_limits.requestBytes)
        answer(socket, HeadersTooLarge);
}

void MetricsServer::answer(QTcpSocket &socket, int status)
{
    disconnect(&socket, &QTcpSocket::readyRead, this, nullptr);
    const QByteArray body = status == Ok ? m_metrics.text() : QByteArray();
    const QByteArray type =
        status == Ok ? "application/openmetrics-text; version=1.0.0; charset=utf-8" : "text/plain";
    socket.write("HTTP/1.1 " + statusLine(status) + "\r\nContent-Type: " + type
                 + "\r\nContent-Length: " + QByteArray::number(body.size())
                 + "\r\nConnection: close\r\n\r\n" + body);
    socket.disconnectFromHost();
}
