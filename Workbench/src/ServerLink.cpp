#include "ServerLink.h"

#include "ServerNames.h"

ServerLink::ServerLink(SiteServer &server, QObject *parent)
    : QObject(parent)
    , m_server(server)
{ }

void ServerLink::open()
{
    if (m_isOpen)
        return;
    connect(&m_server, &SiteServer::nodeStatusChanged, this, &ServerLink::nodeStatusChanged);
    connect(&m_server, &SiteServer::cameraRemoved, this, &ServerLink::cameraRemoved);
    connect(&m_server, &SiteServer::stationRemoved, this, &ServerLink::stationRemoved);
    connect(&m_server, &SiteServer::storageChanged, this, &ServerLink::storageChanged);
    connect(&m_server, &SiteServer::eventRaised, this, &ServerLink::eventRaised);
    m_isOpen = true;
    m_since = QDateTime::currentDateTime();
    Q_EMIT opened();
}

void ServerLink::close()
{
    if (!m_isOpen)
        return;
    disconnect(&m_server, nullptr, this, nullptr);
    m_isOpen = false;
    m_since = QDateTime::currentDateTime();
    Q_EMIT closed();
}

CommandResult ServerLink::execute(const QString &command, const QVariant &data,
                                  const QString &target)
{
    if (!m_isOpen)
        return {ServerNames::FrameworkInternalError, data};
    return m_server.execute(command, data, target);
}
