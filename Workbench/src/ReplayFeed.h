#ifndef REPLAYFEED_H
#define REPLAYFEED_H

#include <QObject>
#include <QTimer>

class DashboardWindow;
class JournalPlayer;

/// Keeps a dashboard informed of what a replayed plug-in does not tell it: the recorded connection
/// to the server and the stations. Snoozes do not stand in a journal as such.
class ReplayFeed : public QObject
{
    Q_OBJECT

public:
    /// @param player must outlive the feed, as must the window
    ReplayFeed(const JournalPlayer &player, DashboardWindow &window);

private:
    void showConnection(bool isConnected);
    void showStates(bool areKnown);
    void showStations();

    const JournalPlayer &m_player;
    DashboardWindow &m_window;
    QTimer m_stationsDue; // nodes come by the thousand
};

#endif
