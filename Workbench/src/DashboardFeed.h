#ifndef DASHBOARDFEED_H
#define DASHBOARDFEED_H

#include <QObject>
#include <QTimer>

class DashboardWindow;
class ServerLink;

/// Keeps a dashboard informed of what the plug-in does not tell it: the connection to the server,
/// the stations of the site and its snoozes. These stay as last known while the connection is lost.
///
/// Thousands of snoozes or stations may change at a time; the lists are handed on once, from the
/// event loop.
class DashboardFeed : public QObject
{
    Q_OBJECT

public:
    /// @param link must outlive the feed, as must the window
    DashboardFeed(const ServerLink &link, DashboardWindow &window, QObject *parent = nullptr);

    /// The states of all nodes have been fetched, or that failed. They are known until the
    /// connection is lost.
    void takeStates(bool areKnown);

private:
    void takeAll();
    void keepAll();
    void showConnection();
    void showStations();
    void showSnoozes();

    const ServerLink &m_link;
    DashboardWindow &m_window;
    QTimer m_stationsDue;
    QTimer m_snoozesDue;
};

#endif
