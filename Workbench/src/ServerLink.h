#ifndef SERVERLINK_H
#define SERVERLINK_H

#include "Site.h"
#include "SnoozeList.h"

#include <QDateTime>
#include <QObject>
#include <QVariant>

#include <functional>
#include <vector>

struct CommandResult;

/// A client's connection to a site server.
///
/// While the connection is closed nothing comes through, in either direction, and the client knows
/// nothing of what happens at the site.
class ServerLink : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(const CommandResult &)>;

    /// Starts closed.
    explicit ServerLink(QObject *parent = nullptr);

    bool isOpen() const { return m_isOpen; }

    /// Since when the link has been open or closed.
    QDateTime since() const { return m_since; }

    /// The site as it is known while the link is open.
    virtual const Site &site() const = 0;

    /// How far the server's clock is ahead of this process's, in milliseconds, as it was when the
    /// link opened. A server in this process has the same clock.
    virtual qint64 clockAheadMs() const { return 0; }

    /// The snoozes in force, as they are known while the link is open.
    virtual std::vector<Snooze> snoozes() const = 0;

    /// Asks for the connection, which may come later, be lost and come again.
    virtual void open() = 0;
    /// Ends the connection, or the wish for it.
    virtual void close() = 0;

    /// Has the server carry out a command.
    ///
    /// @param answer hears the result, exactly once unless the link is destroyed before: during
    ///               this call or later. It is ServerNames::FrameworkInternalError when there is
    ///               no connection or it is lost meanwhile
    virtual void execute(const QString &command, const QVariant &data, const QString &target,
                         const Answer &answer) = 0;

Q_SIGNALS:
    void opened();
    void closed();
    /// There is no connection, and the next try is after a pause.
    void attemptFailed(const QString &reason, qint64 pauseMs);
    /// The server does not want this client, which does not try again before open() is called.
    void refused(const QString &reason);
    // What the server signals, while the link is open.
    void nodeStatusChanged(NodeType type, const QString &nodeId, bool connected);
    void cameraRemoved(const QString &cameraId);
    void stationRemoved(const QString &stationId);
    void storageChanged(const QString &stationId);
    void eventRaised(const QString &name, const QVariant &data, const QString &sourceId);

protected:
    /// Takes note of a change and emits opened() or closed().
    void setOpen(bool isOpen);

private:
    bool m_isOpen = false;
    QDateTime m_since = QDateTime::currentDateTime();
};

#endif
