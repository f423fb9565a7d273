#include "DashboardFeed.h"

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

DashboardFeed::DashboardFeed(const ServerLink &link, DashboardWindow &window, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_window(window)
{
    connect(&link, &ServerLink::opened, this, &DashboardFeed::showConnection);
    connect(&link, &ServerLink::closed, this, &DashboardFeed::showConnection);
    connect(&link, &ServerLink::closed, this, [this] { takeStates(false); });
    connect(&link, &ServerLink::opened, this, &DashboardFeed::showStations);
    connect(&link, &ServerLink::opened, this, &DashboardFeed::showSnoozes);
    connect(&link, &ServerLink::eventRaised, this, [this](const QString &name) {
        if (tellsOfSnoozes(name))
            showSnoozes();
    });
    connect(&link, &ServerLink::stationRemoved, this, &DashboardFeed::showStations);
    connect(&link, &ServerLink::nodeStatusChanged, this, [this](NodeType type) {
        if (type == NodeType::Station)
            showStations();
    });
    showConnection();
}

void DashboardFeed::takeStates(bool areKnown)
{
    m_window.setStatesSince(areKnown ? QDateTime::currentDateTime() : QDateTime());
}

void DashboardFeed::showConnection()
{
    m_window.setConnection(m_link.isOpen(), m_link.since());
}

void DashboardFeed::showStations()
{
    m_window.setStations(stationList(m_link.site()));
}

void DashboardFeed::showSnoozes()
{
    m_window.setSnoozes(dashboardSnoozes(m_link.site(), m_link.snoozes()));
}
