#include "LocalServerLink.h"

#include "ServerNames.h"

LocalServerLink::LocalServerLink(SiteServer &server, QObject *parent)
    : ServerLink(parent)
    , m_server(server)
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
}

void LocalServerLink::execute(const QString &command, const QVariant &data, const QString &target,
                              const Answer &answer)
{
    if (isOpen())
        answer(m_server.execute(command, data, target));
    else
        answer({ServerNames::FrameworkInternalError, data});
}
