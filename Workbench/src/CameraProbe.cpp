#include "CameraProbe.h"

#include "RtspOptions.h"

#include <utility>

namespace {

constexpr int RtspPort = 554;
constexpr int Sequence = 1;

bool isRtsp(const QUrl &address)
{
    return address.scheme() == QLatin1String("rtsp");
}

} // namespace

CameraProbe::CameraProbe(const QUrl &address, std::chrono::milliseconds timeout, QObject *parent)
    : QObject(parent)
    , m_address(address)
{
    m_deadline.setSingleShot(true);
    m_deadline.setInterval(timeout);
    m_socket.setReadBufferSize(MaxRtspHeadSize);
    connect(&m_deadline, &QTimer::timeout, this, [this] { end(tr("no answer in time")); });
    connect(&m_socket, &QTcpSocket::connected, this, &CameraProbe::ask);
    connect(&m_socket, &QTcpSocket::readyRead, this, &CameraProbe::read);
    connect(
        &m_socket, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError error) {
            end(error == QAbstractSocket::RemoteHostClosedError ? tr("the connection was closed")
                                                                : m_socket.errorString());
        });
}

void CameraProbe::start()
{
    m_deadline.start();
    m_socket.connectToHost(m_address.host(), static_cast<quint16>(m_address.port(RtspPort)));
}

void CameraProbe::ask()
{
    if (isRtsp(m_address))
        m_socket.write(rtspOptionsRequest(m_address, Sequence));
    else
        end();
}

void CameraProbe::read()
{
    const QByteArray received = m_socket.peek(MaxRtspHeadSize);
    if (isRtspHeadComplete(received))
        end(rtspFailure(received, Sequence));
    else if (received.size() >= MaxRtspHeadSize)
        end(tr("the answer is too long"));
}

// Aborting makes the socket report nothing more that is of interest.
void CameraProbe::end(const QString &failure)
{
    if (std::exchange(m_hasEnded, true))
        return;
    m_deadline.stop();
    m_socket.abort();
    if (failure.isEmpty())
        Q_EMIT answered();
    else
        Q_EMIT failed(failure);
}
