#include "ClientSession.h"

#include "Clock.h"
#include "InputError.h"
#include "SiteServer.h"

#include <QWebSocket>

namespace {

// What a client may leave untaken; the largest sites fit in several times.
constexpr qint64 MaxUntakenBytes = qint64{16} * 1024 * 1024;

// How long a refused client may take to read why.
constexpr qint64 FarewellMs = 1000;

// Registered for WebSockets, but without a name in Qt.
constexpr auto TryAgainLater = static_cast<QWebSocketProtocol::CloseCode>(1013);

} // namespace

ClientSession::ClientSession(std::unique_ptr<QWebSocket> socket, const AccessToken &token,
                             SiteServer &server, Clock &clock, QObject *parent,
                             qsizetype maxWaiting)
    : QObject(parent)
    , m_socket(std::move(socket))
    , m_token(token)
    , m_server(server)
    , m_clock(clock)
    , m_maxWaiting(maxWaiting)
    , m_heartbeat(clock, Pace)
    , m_commands(server)
{
    m_socket->setMaxAllowedIncomingFrameSize(ClientMessage::MaxBytes);
    m_socket->setMaxAllowedIncomingMessageSize(ClientMessage::MaxBytes);
    connect(m_socket.get(), &QWebSocket::textMessageReceived, this,
            [this](const QString &text) { take(text); });
    connect(m_socket.get(), &QWebSocket::binaryMessageReceived, this,
            [this] { refuse(tr("message: expected text, found binary data")); });
    connect(m_socket.get(), &QWebSocket::disconnected, this, &ClientSession::ended);
    connect(m_socket.get(), &QWebSocket::pong, &m_heartbeat, &Heartbeat::heard);
    connect(&m_heartbeat, &Heartbeat::pingDue, this, [this] { m_socket->ping(); });
    connect(&m_heartbeat, &Heartbeat::fellSilent, this, [this] { m_socket->abort(); });
    clock.callAfter(HelloMs, this, [this] {
        if (m_phase == Phase::Unknown)
            sendAway(tr("expected a hello within %1 seconds").arg(HelloMs / 1000));
    });
}

// The socket may speak once more while it goes.
ClientSession::~ClientSession()
{
    m_socket->disconnect(this);
}

void ClientSession::send(const QString &message)
{
    if (m_phase != Phase::Welcome)
        return;
    m_socket->sendTextMessage(message);
    if (m_socket->bytesToWrite() > MaxUntakenBytes)
        m_socket->abort();
}

void ClientSession::welcome()
{
    m_phase = Phase::Welcome;
    send(toText(ServerMessage::Welcome{m_server.site(), m_server.snoozes(), m_clock.nowMs()}));
    m_heartbeat.start();
}

void ClientSession::sendAway(const QString &reason)
{
    end({reason, false});
}

void ClientSession::refuse(const QString &reason)
{
    end({reason, true});
}

void ClientSession::end(const ServerMessage::Refused &refusal)
{
    if (m_phase == Phase::Refused)
        return;
    m_phase = Phase::Refused;
    m_heartbeat.stop();
    m_clock.callAfter(FarewellMs, this, [this] { m_socket->abort(); });
    m_socket->sendTextMessage(toText(refusal));
    m_socket->close(refusal.isFinal ? QWebSocketProtocol::CloseCodePolicyViolated : TryAgainLater);
}

void ClientSession::take(const QString &text)
{
    if (m_phase == Phase::Refused)
        return;
    m_heartbeat.heard();
    try {
        const AnyClientMessage message = readClientMessage(text);
        if (const auto *const hello = std::get_if<ClientMessage::Hello>(&message))
            take(*hello);
        else
            take(std::get<ClientMessage::Command>(message), text.size());
    } catch (const InputError &error) {
        refuse(error.message());
    }
}

void ClientSession::take(const ClientMessage::Hello &hello)
{
    if (m_phase == Phase::Welcome)
        return refuse(tr("message: expected one hello, found another"));
    if (!m_token.admits(hello.token))
        return refuse(hello.token.isEmpty() ? tr("expected a token") : tr("the token is wrong"));
    m_phase = Phase::Introduced;
    Q_EMIT introduced();
}

void ClientSession::take(const ClientMessage::Command &command, qsizetype size)
{
    if (m_phase == Phase::Unknown)
        return refuse(tr("message: expected a hello first"));
    if (m_waiting + size > m_maxWaiting)
        return sendAway(tr("too many commands at a time"));
    m_waiting += size;
    m_commands.add({command.name, command.data, command.target},
                   [this, size, id = command.id](const CommandResult &result) {
                       m_waiting -= size;
                       send(toText(ServerMessage::Result{id, result.code, result.data}));
                   });
}
