#include "DashboardFeed.h"

#include "Clock.h"
#include "DashboardSnoozes.h"
#include "DashboardWindow.h"
#include "ServerLink.h"
#include "ServerNames.h"
#include "StationList.h"

#include <QDateTime>

namespace {

bool tellsOfSnoozes(const QString &event)
{
    return event == ServerNames::SnoozeError || event == ServerNames::DeviceStillError
           || event == ServerNames::RemoveSnooze;
}

} // namespace

DashboardFeed::DashboardFeed(const ServerLink &link, const Clock &clock, double rate,
                             DashboardWindow &window, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_clock(clock)
    , m_rate(rate)
    , m_window(window)
{
    m_stationsDue.setSingleShot(true);
    m_snoozesDue.setSingleShot(true);
    connect(&m_stationsDue, &QTimer::timeout, this, &DashboardFeed::showStations);
    connect(&m_snoozesDue, &QTimer::timeout, this, &DashboardFeed::showSnoozes);
    connect(&link, &ServerLink::opened, this, &DashboardFeed::takeAll);
    connect(&link, &ServerLink::closed, this, &DashboardFeed::keepAll);
    connect(&link, &ServerLink::closed, this, [this] { takeStates(false); });
    connect(&link, &ServerLink::attemptFailed, this, [this](const QString &reason, qint64 pauseMs) {
        m_window.setConnectionFailure(reason, QDateTime::currentDateTime().addMSecs(pauseMs));
    });
    connect(&link, &ServerLink::refused, this, [this](const QString &reason) {
        m_window.setConnectionFailure(tr("the server refuses this client for good: %1").arg(reason),
                                      {});
    });
    connect(&link, &ServerLink::eventRaised, this, [this](const QString &name) {
        if (tellsOfSnoozes(name))
            m_snoozesDue.start(0);
    });
    connect(&link, &ServerLink::stationRemoved, this, [this] { m_stationsDue.start(0); });
    connect(&link, &ServerLink::nodeStatusChanged, this, [this](NodeType type) {
        if (type == NodeType::Station)
            m_stationsDue.start(0);
    });
    showConnection();
    showTime();
}

void DashboardFeed::takeStates(bool areKnown)
{
    m_window.setStatesSince(areKnown ? QDateTime::currentDateTime() : QDateTime());
}

void DashboardFeed::takeAll()
{
    // A server of its own is known by its address alone until it welcomes.
    if (!m_link.site().name.isEmpty())
        m_window.setSiteName(m_link.site().name);
    showConnection();
    showTime();
    showStations();
    showSnoozes();
}

// A change that has not been shown yet was known before the connection was lost.
void DashboardFeed::keepAll()
{
    if (m_stationsDue.isActive())
        showStations();
    if (m_snoozesDue.isActive())
        showSnoozes();
    showConnection();
}

void DashboardFeed::showConnection()
{
    m_window.setConnection(m_link.isOpen(), m_link.since());
    m_window.setConnectionFailure({}, {});
}

void DashboardFeed::showTime()
{
    m_window.setServerTime(m_clock.nowMs() + m_link.clockAheadMs(), m_rate);
}

void DashboardFeed::showStations()
{
    m_stationsDue.stop();
    m_window.setStations(stationList(m_link.site()));
}

void DashboardFeed::showSnoozes()
{
    m_snoozesDue.stop();
    m_window.setSnoozes(dashboardSnoozes(m_link.site(), m_link.snoozes()));
}
