#ifndef LOCALSERVERLINK_H
#define LOCALSERVERLINK_H

#include "CommandQueue.h"
#include "ServerLink.h"
#include "SiteServer.h"

/// A connection to a site server in the same process, there as soon as it is asked for.
class LocalServerLink : public ServerLink
{
    Q_OBJECT

public:
    /// The server must outlive the link.
    explicit LocalServerLink(SiteServer &server, QObject *parent = nullptr);

    const Site &site() const override { return m_server.site(); }
    std::vector<Snooze> snoozes() const override { return m_server.snoozes(); }
    void open() override;
    void close() override;
    void execute(const QString &command, const QVariant &data, const QString &target,
                 const Answer &answer) override;

private:
    SiteServer &m_server;
    CommandQueue m_commands;
};

#endif
