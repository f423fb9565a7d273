#ifndef QUIETPERIOD_H
#define QUIETPERIOD_H

#include <QDeadlineTimer>
#include <QObject>
#include <QTimer>

class QAbstractItemModel;

/// How long what is waited for takes, in milliseconds of real time.
struct QuietTimes
{
    qint64 rest = 1000;       ///< after the list's last change
    qint64 walk = 6000;       ///< from the retrieval of the states until the walk is done
    qint64 patience = 10'000; ///< in all
};

/// Waits until an error list has come to rest after a scenario.
///
/// The plug-in's timers run in real time, however fast the scenario went by: it counts errors half
/// a second after the list's last change, and walks through the topology five seconds after the
/// states were retrieved. At rest is a list that has not changed for a second and has no such walk
/// ahead. A list that never rests, because a figure keeps crossing its threshold, is waited for ten
/// seconds.
class QuietPeriod : public QObject
{
    Q_OBJECT

public:
    /// @param list must outlive this object
    explicit QuietPeriod(const QAbstractItemModel &list, const QuietTimes &times = {});

    /// Tells that the plug-in is going to walk through the topology.
    void expectWalk();

    /// Starts to wait.
    void start();

Q_SIGNALS:
    /// The list is at rest, or has had its ten seconds. Emitted once.
    void reached();

private:
    void wait();

    const QuietTimes m_times;
    QDeadlineTimer m_walk; // passed: no walk ahead
    QDeadlineTimer m_patience;
    QTimer m_timer;
    bool m_isWaiting = false;
};

#endif
