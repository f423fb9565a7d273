#ifndef RAWCLIENT_H
#define RAWCLIENT_H

#include <QByteArray>
#include <QList>
#include <QTcpSocket>
#include <QUrl>

/// A WebSocket client made by hand, byte by byte, that can say what a proper one never would.
class RawClient
{
public:
    enum Opcode : quint8 { Text = 1, Binary = 2, Close = 8, Ping = 9, Pong = 10 };

    struct Frame
    {
        quint8 opcode;
        QByteArray payload;
    };

    /// Connects, and asks for a WebSocket with some more header lines.
    explicit RawClient(const QUrl &url, const QByteArray &headers = {});

    /// A connection without a request.
    static void connectOnly(QTcpSocket &socket, const QUrl &url);

    void sendBytes(const QByteArray &bytes);
    void sendText(const QByteArray &text) { sendFrame(Text, text); }
    /// Waits for the answer to the request before.
    void sendFrame(quint8 opcode, const QByteArray &payload, bool isMasked = true);

    /// Lets what comes pile up from now on.
    void stopReading() { m_socket.setReadBufferSize(1); }

    /// The status line of the answer to the request; empty while there is none.
    QByteArray status();

    /// The payloads of all texts that have come.
    QList<QByteArray> texts();

    /// The code with which the server has closed the connection; 0 as long as it has not.
    int closeCode();

    bool isConnected() const { return m_socket.state() == QAbstractSocket::ConnectedState; }

private:
    QList<Frame> frames();

    QTcpSocket m_socket;
    QByteArray m_received;
};

#endif
