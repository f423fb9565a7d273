#include "RawClient.h"

#include <QTest>
#include <QtEndian>

namespace {

const QByteArray HeaderEnd = QByteArrayLiteral("\r\n\r\n");

QByteArray lengthBytes(quint64 length, bool isMasked)
{
    const quint8 mask = isMasked ? 0x80 : 0;
    QByteArray bytes;
    if (length < 126)
        return bytes.append(static_cast<char>(mask | length));
    if (length < 65536) {
        char size[2];
        qToBigEndian(static_cast<quint16>(length), size);
        return bytes.append(static_cast<char>(mask | 126)).append(size, 2);
    }
    char size[8];
    qToBigEndian(length, size);
    return bytes.append(static_cast<char>(mask | 127)).append(size, 8);
}

} // namespace

RawClient::RawClient(const QUrl &url, const QByteArray &headers)
{
    connectOnly(m_socket, url);
    sendBytes("GET / HTTP/1.1\r\nHost: " + url.authority().toLatin1()
              + "\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
                "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\nSec-WebSocket-Version: 13\r\n"
              + headers + "\r\n");
}

void RawClient::connectOnly(QTcpSocket &socket, const QUrl &url)
{
    socket.connectToHost(url.host(), static_cast<quint16>(url.port()));
    socket.waitForConnected();
    socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
}

void RawClient::sendBytes(const QByteArray &bytes)
{
    m_socket.write(bytes);
    m_socket.flush();
}

// The mask is all zeros, which leaves the payload as it is.
void RawClient::sendFrame(quint8 opcode, const QByteArray &payload, bool isMasked)
{
    [[maybe_unused]] const bool isAnswered =
        QTest::qWaitFor([this] { return !status().isEmpty(); });
    QByteArray frame(1, static_cast<char>(0x80 | opcode));
    frame += lengthBytes(static_cast<quint64>(payload.size()), isMasked);
    if (isMasked)
        frame += QByteArray(4, '\0');
    sendBytes(frame + payload);
}

QByteArray RawClient::status()
{
    m_received += m_socket.readAll();
    return m_received.contains(HeaderEnd) ? m_received.left(m_received.indexOf('\r'))
                                          : QByteArray();
}

QList<QByteArray> RawClient::texts()
{
    QList<QByteArray> texts;
    for (const Frame &frame : frames()) {
        if (frame.opcode == Text)
            texts.append(frame.payload);
    }
    return texts;
}

int RawClient::closeCode()
{
    for (const Frame &frame : frames()) {
        if (frame.opcode == Close)
            return qFromBigEndian<quint16>(frame.payload.constData());
    }
    return 0;
}

QList<RawClient::Frame> RawClient::frames()
{
    m_received += m_socket.readAll();
    QList<Frame> frames;
    qsizetype at = m_received.indexOf(HeaderEnd);
    if (at < 0)
        return frames;
    at += HeaderEnd.size();
    while (at + 2 <= m_received.size()) {
        const auto opcode = static_cast<quint8>(m_received.at(at) & 0x0f);
        qsizetype length = static_cast<quint8>(m_received.at(at + 1));
        at += 2;
        if (length == 126) {
            length = qFromBigEndian<quint16>(m_received.constData() + at);
            at += 2;
        }
        if (at + length > m_received.size())
            break;
        frames.append({opcode, m_received.mid(at, length)});
        at += length;
    }
    return frames;
}
