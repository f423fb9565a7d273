#include "ServerGate.h"

#include "ClientSession.h"
#include "Clock.h"
#include "ServerMessages.h"
#include "ServerNames.h"
#include "SiteServer.h"

#include <QWebSocket>
#include <QWebSocketCorsAuthenticator>

#include <algorithm>
#include <iterator>

namespace {

constexpr int HandshakeMs = 5000;

// How long the server takes no connections after it could not take one.
constexpr qint64 AcceptPauseMs = 1000;

// The node whose snooze an event is about; empty for other events.
QString snoozedNode(const QString &event, const QVariant &data)
{
    if (event == ServerNames::SnoozeError || event == ServerNames::DeviceStillError)
        return data.toMap().value(ServerNames::KeyNodeId).toString();
    return event == ServerNames::RemoveSnooze ? data.toString() : QString();
}

} // namespace

ServerGate::ServerGate(SiteServer &server, const AccessToken &token, Clock &clock, QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_token(token)
    , m_clock(clock)
    , m_listener(QString(), QWebSocketServer::NonSecureMode)
{
    m_listener.setHandshakeTimeout(HandshakeMs);
    connect(&m_listener, &QWebSocketServer::newConnection, this, &ServerGate::admit);
    // Where there is no file descriptor left for a connection, Qt would never take one again.
    connect(&m_listener, &QWebSocketServer::acceptError, this, [this] {
        m_clock.callAfter(AcceptPauseMs, &m_listener, [this] { m_listener.resumeAccepting(); });
    });
    // Only browsers name an origin: a page that its user looks at must not get at the server.
    connect(&m_listener, &QWebSocketServer::originAuthenticationRequired, this,
            [](QWebSocketCorsAuthenticator *request) {
                request->setAllowed(request->origin().isEmpty());
            });
    relaySignals();
}

ServerGate::~ServerGate()
{
    qDeleteAll(m_sessions);
}

bool ServerGate::listen(const QHostAddress &address, quint16 port)
{
    return m_listener.listen(address, port);
}

void ServerGate::admit()
{
    while (std::unique_ptr<QWebSocket> socket{m_listener.nextPendingConnection()}) {
        // Neither the listener nor the socket's own parent is to delete it.
        socket->setParent(nullptr);
        const auto session = new ClientSession(std::move(socket), m_token, m_server, m_clock, this);
        connect(session, &ClientSession::ended, this, [this, session] { drop(session); });
        connect(session, &ClientSession::introduced, this, [this, session] { judge(session); });
        m_sessions.push_back(session);
        limitStrangers();
    }
}

void ServerGate::judge(ClientSession *session)
{
    const auto clients = std::count_if(m_sessions.begin(), m_sessions.end(),
                                       [](const ClientSession *one) { return one->isWelcome(); });
    if (static_cast<std::size_t>(clients) < MaxClients)
        session->welcome();
    else
        session->sendAway(tr("the server has %1 clients already").arg(MaxClients));
}

void ServerGate::limitStrangers()
{
    std::vector<ClientSession *> strangers;
    std::copy_if(m_sessions.begin(), m_sessions.end(), std::back_inserter(strangers),
                 [](const ClientSession *session) { return session->isStranger(); });
    if (strangers.size() > MaxStrangers)
        strangers.front()->sendAway(tr("too many connections wait for a hello"));
}

void ServerGate::drop(ClientSession *session)
{
    m_sessions.erase(std::remove(m_sessions.begin(), m_sessions.end(), session), m_sessions.end());
    session->deleteLater();
}

void ServerGate::relaySignals()
{
    connect(&m_server, &SiteServer::nodeStatusChanged, this,
            [this](NodeType type, const QString &nodeId, bool connected) {
                tellAll(ServerMessage::NodeStatus{type, nodeId, connected});
            });
    connect(&m_server, &SiteServer::cameraRemoved, this,
            [this](const QString &id) { tellAll(ServerMessage::CameraRemoved{id}); });
    connect(&m_server, &SiteServer::stationRemoved, this,
            [this](const QString &id) { tellAll(ServerMessage::StationRemoved{id}); });
    connect(&m_server, &SiteServer::storageChanged, this, [this](const QString &id) {
        if (const Station *const station = m_server.site().findStation(id))
            tellAll(ServerMessage::StorageChanged{*station});
    });
    connect(&m_server, &SiteServer::eventRaised, this,
            [this](const QString &name, const QVariant &data, const QString &sourceId) {
                const QString nodeId = snoozedNode(name, data);
                if (!nodeId.isEmpty())
                    tellOfSnooze(nodeId);
                tellAll(ServerMessage::Event{name, data, sourceId});
            });
}

// The snooze as it is now: much may have happened since the event was raised.
void ServerGate::tellOfSnooze(const QString &nodeId)
{
    if (const std::optional<Snooze> snooze = m_server.snoozeOf(nodeId))
        tellAll(ServerMessage::Snoozed{*snooze});
    else
        tellAll(ServerMessage::SnoozeEnded{nodeId});
}

// A client that does not take its messages ends while it is told, so the list may change.
template <typename Message> void ServerGate::tellAll(const Message &message)
{
    if (m_sessions.empty())
        return;
    const QString text = toText(message);
    const std::vector<ClientSession *> sessions = m_sessions;
    for (ClientSession *const session : sessions)
        session->send(text);
}
