#ifndef DASHBOARDFEED_H
#define DASHBOARDFEED_H

#include <QObject>
#include <QTimer>

class Clock;
class DashboardWindow;
class ServerLink;

/// Keeps a dashboard informed of what the plug-in does not tell it: the connection to the server or
/// why there is none, the server's time, the stations of the site and its snoozes. These stay as
/// last known while the connection is lost.
///
/// Thousands of snoozes or stations may change at a time; the lists are handed on once, from the
/// event loop.
class DashboardFeed : public QObject
{
    Q_OBJECT

public:
    /// @param clock of this process; like link and window, it must outlive the feed
    /// @param rate  how many seconds pass on the clock, and on the server's, in a real one
    DashboardFeed(const ServerLink &link, const Clock &clock, double rate, DashboardWindow &window,
                  QObject *parent = nullptr);

    /// The states of all nodes have been fetched, or that failed. They are known until the
    /// connection is lost.
    void takeStates(bool areKnown);

private:
    void takeAll();
    void keepAll();
    void showConnection();
    void showTime();
    void showStations();
    void showSnoozes();

    const ServerLink &m_link;
    const Clock &m_clock;
    const double m_rate;
    DashboardWindow &m_window;
    QTimer m_stationsDue;
    QTimer m_snoozesDue;
};

#endif
