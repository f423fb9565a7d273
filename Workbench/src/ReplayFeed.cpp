#include "ReplayFeed.h"

#include "DashboardWindow.h"
#include "JournalPlayer.h"
#include "StationList.h"

#include <QDateTime>
#include <QStandardItemModel>

ReplayFeed::ReplayFeed(const JournalPlayer &player, DashboardWindow &window)
    : m_player(player)
    , m_window(window)
{
    connect(&player, &JournalPlayer::serverChanged, this, &ReplayFeed::showConnection);
    connect(&player, &JournalPlayer::statesRetrieved, this, &ReplayFeed::showStates);

    m_stationsDue.setSingleShot(true);
    connect(&m_stationsDue, &QTimer::timeout, this, &ReplayFeed::showStations);
    const auto schedule = [this] { m_stationsDue.start(0); };
    const QStandardItemModel &topology = player.topology();
    connect(&topology, &QAbstractItemModel::rowsInserted, this, schedule);
    connect(&topology, &QAbstractItemModel::rowsRemoved, this, schedule);
    connect(&topology, &QAbstractItemModel::dataChanged, this, schedule);
    connect(&topology, &QAbstractItemModel::modelReset, this, schedule);
}

void ReplayFeed::showConnection(bool isConnected)
{
    m_window.setConnection(isConnected, QDateTime::currentDateTime());
    if (!isConnected)
        showStates(false);
}

void ReplayFeed::showStates(bool areKnown)
{
    m_window.setStatesSince(areKnown ? QDateTime::currentDateTime() : QDateTime());
}

void ReplayFeed::showStations()
{
    m_window.setStations(stationList(m_player.topology()));
}
