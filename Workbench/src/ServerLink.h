#ifndef SERVERLINK_H
#define SERVERLINK_H

#include "SiteServer.h"

#include <QDateTime>
#include <QObject>

/// A client's connection to a site server in the same process.
///
/// While the connection is closed nothing comes through, in either direction, and the client knows
/// nothing of what happens at the site.
class ServerLink : public QObject
{
    Q_OBJECT

public:
    /// Starts closed. The server must outlive the link.
    explicit ServerLink(SiteServer &server, QObject *parent = nullptr);

    bool isOpen() const { return m_isOpen; }

    /// Since when the link has been open or closed.
    QDateTime since() const { return m_since; }

    /// The site as the server knows it at this moment.
    const Site &site() const { return m_server.site(); }

    /// The snoozes in force, as the server knows them at this moment.
    std::vector<Snooze> snoozes() const { return m_server.snoozes(); }

    void open();
    void close();

    /// Has the server carry out a command; ServerNames::FrameworkInternalError without a
    /// connection.
    CommandResult execute(const QString &command, const QVariant &data, const QString &target);

Q_SIGNALS:
    void opened();
    void closed();
    // What the server signals, while the link is open.
    void nodeStatusChanged(NodeType type, const QString &nodeId, bool connected);
    void cameraRemoved(const QString &cameraId);
    void stationRemoved(const QString &stationId);
    void storageChanged(const QString &stationId);
    void eventRaised(const QString &name, const QVariant &data, const QString &sourceId);

private:
    SiteServer &m_server;
    bool m_isOpen = false;
    QDateTime m_since = QDateTime::currentDateTime();
};

#endif
