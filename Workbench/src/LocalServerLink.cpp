#include "LocalServerLink.h"

#include "ServerNames.h"

LocalServerLink::LocalServerLink(SiteServer &server, QObject *parent)
    : ServerLink(parent)
    , m_server(server)
    , m_commands(server)
{ }

void LocalServerLink::open()
{
    if (isOpen())
        return;
    connect(&m_server, &SiteServer::nodeStatusChanged, this, &ServerLink::nodeStatusChanged);
    connect(&m_server, &SiteServer::cameraRemoved, this, &ServerLink::cameraRemoved);
    connect(&m_server, &SiteServer::stationRemoved, this, &ServerLink::stationRemoved);
    connect(&m_server, &SiteServer::storageChanged, this, &ServerLink::storageChanged);
    connect(&m_server, &SiteServer::eventRaised, this, &ServerLink::eventRaised);
    setOpen(true);
}

void LocalServerLink::close()
{
    disconnect(&m_server, nullptr, this, nullptr);
    setOpen(false);
    m_commands.abandon();
}

void LocalServerLink::execute(const QString &command, const QVariant &data, const QString &target,
                              const Answer &answer)
{
    if (isOpen())
        m_commands.add({command, data, target}, answer);
    else
        answer({ServerNames::FrameworkInternalError, data});
}
