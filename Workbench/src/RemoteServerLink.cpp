#include "RemoteServerLink.h"

#include "ClientMessages.h"
#include "Clock.h"
#include "InputError.h"
#include "ServerNames.h"
#include "SiteServer.h"

#include <QWebSocket>

#include <utility>

RemoteServerLink::RemoteServerLink(QUrl url, const AccessToken &token, Clock &clock,
                                   RetryPauses pauses, QObject *parent)
    : ServerLink(parent)
    , m_url(std::move(url))
    , m_token(token)
    , m_clock(clock)
    , m_pauses(std::move(pauses))
    , m_heartbeat(clock, Pace)
{
    connect(&m_heartbeat, &Heartbeat::pingDue, this, [this] { m_socket->ping(); });
    connect(&m_heartbeat, &Heartbeat::fellSilent, this,
            [this] { retryLater(tr("the server does not answer")); });
}

RemoteServerLink::~RemoteServerLink()
{
    if (m_socket)
        m_socket->disconnect(this);
}

void RemoteServerLink::open()
{
    if (!m_socket && !m_wait)
        tryNow();
}

void RemoteServerLink::close()
{
    m_wait.reset();
    m_pauses.reset();
    drop();
}

void RemoteServerLink::execute(const QString &command, const QVariant &data, const QString &target,
                               const Answer &answer)
{
    if (!isOpen()) {
        answer({ServerNames::FrameworkInternalError, data});
        return;
    }
    m_questions[++m_lastId] = {data, answer};
    m_socket->sendTextMessage(toText(ClientMessage::Command{m_lastId, command, data, target}));
}

// A server that is stopped still accepts connections, so the welcome is what counts.
void RemoteServerLink::tryNow()
{
    m_socket = std::make_unique<QWebSocket>();
    m_socket->setMaxAllowedIncomingFrameSize(ServerMessage::MaxBytes);
    m_socket->setMaxAllowedIncomingMessageSize(ServerMessage::MaxBytes);
    connect(m_socket.get(), &QWebSocket::connected, this, &RemoteServerLink::sayHello);
    connect(m_socket.get(), &QWebSocket::disconnected, this, [this] { retryLater(reasonOfEnd()); });
    connect(m_socket.get(), &QWebSocket::textMessageReceived, this,
            [this](const QString &text) { take(text); });
    connect(m_socket.get(), &QWebSocket::binaryMessageReceived, this,
            [this] { retryLater(tr("message: expected text, found binary data")); });
    connect(m_socket.get(), &QWebSocket::pong, &m_heartbeat, &Heartbeat::heard);
    m_wait = std::make_unique<QObject>();
    m_clock.callAfter(AttemptMs, m_wait.get(),
                      [this] { retryLater(tr("the server does not answer")); });
    m_socket->open(m_url);
}

void RemoteServerLink::sayHello()
{
    m_helloMs = m_clock.nowMs();
    m_socket->sendTextMessage(toText(ClientMessage::Hello{m_token.text()}));
}

// An orderly end is no error of the socket.
QString RemoteServerLink::reasonOfEnd() const
{
    return m_socket->error() == QAbstractSocket::UnknownSocketError
               ? tr("the server has closed the connection")
               : m_socket->errorString();
}

void RemoteServerLink::retryLater(const QString &reason)
{
    const qint64 pauseMs = m_pauses.takeNextMs();
    m_wait = std::make_unique<QObject>();
    m_clock.callAfter(pauseMs, m_wait.get(), [this] { tryNow(); });
    drop();
    Q_EMIT attemptFailed(reason, pauseMs);
}

// The socket may be the one that is calling.
void RemoteServerLink::drop()
{
    m_heartbeat.stop();
    if (m_socket) {
        m_socket->disconnect(this);
        m_socket->abort();
        m_socket.release()->deleteLater();
    }
    setOpen(false);
    for (const auto &[id, question] : std::exchange(m_questions, {}))
        question.answer({ServerNames::FrameworkInternalError, question.data});
}

void RemoteServerLink::take(const QString &text)
{
    m_heartbeat.heard();
    try {
        const AnyServerMessage message = readServerMessage(text);
        const bool isWelcome = std::holds_alternative<ServerMessage::Welcome>(message);
        if (isOpen() && isWelcome)
            throw InputError(tr("message: expected one welcome, found another"));
        if (!isOpen() && !isWelcome && !std::holds_alternative<ServerMessage::Refused>(message))
            throw InputError(tr("expected a welcome first"));
        std::visit([this](const auto &one) { take(one); }, message);
    } catch (const InputError &error) {
        retryLater(error.message());
    }
}

void RemoteServerLink::take(const ServerMessage::Welcome &welcome)
{
    // A server that welcomes and then fails is not to be asked several times a second.
    m_wait = std::make_unique<QObject>();
    m_clock.callAfter(ProvenMs, m_wait.get(), [this] { m_pauses.reset(); });
    // The server has said its time halfway between the hello and now, as far as anybody can tell.
    m_clockAheadMs = welcome.timeMs - (m_helloMs + m_clock.nowMs()) / 2;
    m_site = welcome.site;
    m_snoozes.clear();
    for (const Snooze &snooze : welcome.snoozes)
        m_snoozes.set(snooze);
    m_heartbeat.start();
    setOpen(true);
}

void RemoteServerLink::take(const ServerMessage::Refused &refusal)
{
    if (!refusal.isFinal) {
        retryLater(refusal.reason);
        return;
    }
    close();
    Q_EMIT refused(refusal.reason);
}

void RemoteServerLink::take(const ServerMessage::Result &result)
{
    const auto question = m_questions.extract(result.id);
    if (question)
        question.mapped().answer({result.code, result.data});
}

void RemoteServerLink::take(const ServerMessage::NodeStatus &status)
{
    if (Camera *const camera = m_site.findCamera(status.nodeId))
        camera->connected = status.connected;
    else if (Station *const station = m_site.findStation(status.nodeId))
        station->connected = status.connected;
    Q_EMIT nodeStatusChanged(status.type, status.nodeId, status.connected);
}

void RemoteServerLink::take(const ServerMessage::CameraRemoved &removed)
{
    m_site.removeCamera(removed.cameraId);
    Q_EMIT cameraRemoved(removed.cameraId);
}

void RemoteServerLink::take(const ServerMessage::StationRemoved &removed)
{
    m_site.removeStation(removed.stationId);
    Q_EMIT stationRemoved(removed.stationId);
}

void RemoteServerLink::take(const ServerMessage::StorageChanged &changed)
{
    if (Station *const station = m_site.findStation(changed.station.id)) {
        station->volumes = changed.station.volumes;
        station->recordingGroups = changed.station.recordingGroups;
    }
    Q_EMIT storageChanged(changed.station.id);
}

void RemoteServerLink::take(const ServerMessage::Snoozed &snoozed)
{
    m_snoozes.set(snoozed.snooze);
}

void RemoteServerLink::take(const ServerMessage::SnoozeEnded &ended)
{
    m_snoozes.remove(ended.nodeId);
}

void RemoteServerLink::take(const ServerMessage::Event &event)
{
    Q_EMIT eventRaised(event.name, event.data, event.sourceId);
}
