#ifndef CLIENTSESSION_H
#define CLIENTSESSION_H

#include "AccessToken.h"
#include "ClientMessages.h"
#include "CommandQueue.h"
#include "Heartbeat.h"
#include "ServerMessages.h"

#include <QObject>

#include <memory>

class Clock;
class QWebSocket;
class SiteServer;

/// One client of a site server, from its hello until the connection ends.
///
/// A client that says what is not understood, that says no hello for five seconds, that falls
/// silent, does not take what it is sent or asks faster than it is served loses its connection, and
/// nothing else happens. One that says what is not understood, or has the wrong token, is told not
/// to try again.
class ClientSession : public QObject
{
    Q_OBJECT

public:
    /// How long a client may take for its hello, in milliseconds.
    static constexpr qint64 HelloMs = 5000;

    /// A silent client is dropped after about a quarter of a minute.
    static constexpr Heartbeat::Pace Pace{5000, 3};

    /// How many characters the commands of a client may have that wait to be carried out: a hundred
    /// thousand snoozes.
    static constexpr qsizetype MaxWaiting = qsizetype{16} * 1024 * 1024;

    /// @param socket an open connection, owned by the session from now on
    /// @param token  what the client has to give
    /// @param server like the clock, it must outlive the session
    ClientSession(std::unique_ptr<QWebSocket> socket, const AccessToken &token, SiteServer &server,
                  Clock &clock, QObject *parent = nullptr, qsizetype maxWaiting = MaxWaiting);
    ~ClientSession() override;

    ClientSession(const ClientSession &) = delete;
    ClientSession &operator=(const ClientSession &) = delete;

    /// Sends a message that is for all clients. It goes nowhere before this one was welcomed.
    void send(const QString &message);

    /// Lets a client in that has introduced itself.
    void welcome();

    /// Ends the connection and says why. Unlike a client that is refused, this one may try again.
    void sendAway(const QString &reason);

    bool isWelcome() const { return m_phase == Phase::Welcome; }
    /// Whether there has been no hello yet.
    bool isStranger() const { return m_phase == Phase::Unknown; }

Q_SIGNALS:
    /// The client has said its hello and has the token: it is to be welcomed or sent away.
    void introduced();
    /// The connection is gone. The session is of no more use and may be deleted from the event
    /// loop.
    void ended();

private:
    enum class Phase { Unknown, Introduced, Welcome, Refused };

    void refuse(const QString &reason);
    void end(const ServerMessage::Refused &refusal);

    void take(const QString &text);
    void take(const ClientMessage::Hello &hello);
    void take(const ClientMessage::Command &command, qsizetype size);

    const std::unique_ptr<QWebSocket> m_socket;
    const AccessToken m_token;
    SiteServer &m_server;
    Clock &m_clock;
    const qsizetype m_maxWaiting;
    qsizetype m_waiting = 0; // characters of the commands that wait
    Heartbeat m_heartbeat;
    CommandQueue m_commands;
    Phase m_phase = Phase::Unknown;
};

#endif
