#ifndef REMOTESERVERLINK_H
#define REMOTESERVERLINK_H

#include "AccessToken.h"
#include "Heartbeat.h"
#include "RetryPauses.h"
#include "ServerLink.h"
#include "ServerMessages.h"

#include <QUrl>

#include <map>
#include <memory>

class Clock;
class QWebSocket;

/// A connection to a site server in another process, over a WebSocket.
///
/// It keeps a copy of the site and its snoozes, which the server's messages change, and compares
/// the clocks when it is welcomed. A connection that is lost, or whose server has been silent for
/// two seconds and a half, is tried again after a pause, and again after longer ones.
class RemoteServerLink : public ServerLink
{
    Q_OBJECT

public:
    /// How long a try may take until the server's welcome, in milliseconds.
    static constexpr qint64 AttemptMs = 2500;

    /// How long a connection has to hold until its loss is followed by a short pause again, in
    /// milliseconds.
    static constexpr qint64 ProvenMs = 15'000;

    /// A server that answers nothing is noticed after 2 to 2.5 seconds.
    static constexpr Heartbeat::Pace Pace{500, 4};

    /// @param url    the server's, "ws" or "wss"
    /// @param token  is given to the server; may be none
    /// @param clock  runs in real time; it must outlive the link
    /// @param pauses between tries
    RemoteServerLink(QUrl url, const AccessToken &token, Clock &clock,
                     RetryPauses pauses = RetryPauses(), QObject *parent = nullptr);
    ~RemoteServerLink() override;

    RemoteServerLink(const RemoteServerLink &) = delete;
    RemoteServerLink &operator=(const RemoteServerLink &) = delete;

    const Site &site() const override { return m_site; }
    qint64 clockAheadMs() const override { return m_clockAheadMs; }
    std::vector<Snooze> snoozes() const override { return m_snoozes.all(); }
    void open() override;
    void close() override;
    void execute(const QString &command, const QVariant &data, const QString &target,
                 const Answer &answer) override;

private:
    struct Question
    {
        QVariant data;
        Answer answer;
    };

    void tryNow();
    void sayHello();
    QString reasonOfEnd() const;
    void retryLater(const QString &reason);
    void drop();

    void take(const QString &text);
    void take(const ServerMessage::Welcome &welcome);
    void take(const ServerMessage::Refused &refusal);
    void take(const ServerMessage::Result &result);
    void take(const ServerMessage::NodeStatus &status);
    void take(const ServerMessage::CameraRemoved &removed);
    void take(const ServerMessage::StationRemoved &removed);
    void take(const ServerMessage::StorageChanged &changed);
    void take(const ServerMessage::Snoozed &snoozed);
    void take(const ServerMessage::SnoozeEnded &ended);
    void take(const ServerMessage::Event &event);

    const QUrl m_url;
    const AccessToken m_token;
    Clock &m_clock;
    RetryPauses m_pauses;
    Heartbeat m_heartbeat;
    std::unique_ptr<QWebSocket> m_socket; // null while there is nothing but a pause
    std::unique_ptr<QObject> m_wait;      // the context of the clock call that is waited for
    Site m_site;
    SnoozeList m_snoozes;
    qint64 m_helloMs = 0; // when the last hello was said
    qint64 m_clockAheadMs = 0;
    std::map<int, Question> m_questions; // commands without a result, by their ids
    int m_lastId = 0;
};

#endif
