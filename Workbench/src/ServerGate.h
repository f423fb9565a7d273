#ifndef SERVERGATE_H
#define SERVERGATE_H

#include "AccessToken.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QUrl>
#include <QWebSocketServer>

#include <memory>
#include <vector>

class ClientSession;
class Clock;
class SiteServer;

/// Where the clients of a site server come in: listens for WebSocket connections and tells all
/// clients what the server signals.
class ServerGate : public QObject
{
    Q_OBJECT

public:
    /// More clients at a time are sent away.
    static constexpr std::size_t MaxClients = 100;

    /// Where more connections at a time are without a hello, the oldest of them go. Clients say
    /// theirs at once, so whoever opens many connections cannot keep them out.
    static constexpr std::size_t MaxStrangers = 100;

    /// @param token  what clients have to give
    /// @param server like the clock, it must outlive the gate
    ServerGate(SiteServer &server, const AccessToken &token, Clock &clock,
               QObject *parent = nullptr);
    ~ServerGate() override;

    ServerGate(const ServerGate &) = delete;
    ServerGate &operator=(const ServerGate &) = delete;

    /// Starts to listen; false, with errorText(), when the address cannot be had.
    ///
    /// @param port 0 for any that is free
    bool listen(const QHostAddress &address, quint16 port);

    /// Where clients connect to, once the gate listens.
    QUrl url() const { return m_listener.serverUrl(); }
    QString errorText() const { return m_listener.errorString(); }

    /// Clients and those that have not said hello yet.
    std::size_t connectionCount() const { return m_sessions.size(); }

private:
    void admit();
    void judge(ClientSession *session);
    void limitStrangers();
    void drop(ClientSession *session);
    void relaySignals();
    void tellOfSnooze(const QString &nodeId);
    template <typename Message> void tellAll(const Message &message);

    SiteServer &m_server;
    const AccessToken m_token;
    Clock &m_clock;
    QWebSocketServer m_listener;
    std::vector<ClientSession *> m_sessions; // children, until they have ended; oldest first
};

#endif
