#ifndef HEARTBEAT_H
#define HEARTBEAT_H

#include <QObject>

#include <memory>

class Clock;

/// Finds out that the other end of a connection has fallen silent.
///
/// Silence is counted in pings, not in time: when this process itself was held up, the other end
/// still has its chance to answer.
class Heartbeat : public QObject
{
    Q_OBJECT

public:
    struct Pace
    {
        qint64 intervalMs; ///< between two pings
        int patience;      ///< pings in a row that may go unanswered
    };

    /// @param clock must outlive this object
    Heartbeat(Clock &clock, const Pace &pace, QObject *parent = nullptr);
    ~Heartbeat() override;

    Heartbeat(const Heartbeat &) = delete;
    Heartbeat &operator=(const Heartbeat &) = delete;

    /// Pings at once, and then again and again.
    void start();
    void stop();

    /// Something has come from the other end.
    void heard() { m_unanswered = 0; }

Q_SIGNALS:
    void pingDue();
    /// The other end is silent. Emitted once, then the heartbeat has stopped.
    void fellSilent();

private:
    void beat();

    Clock &m_clock;
    const Pace m_pace;
    std::unique_ptr<QObject> m_run; // the context of clock calls, null while stopped
    int m_unanswered = 0;
};

#endif
