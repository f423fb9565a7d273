#ifndef FAKEHOST_H
#define FAKEHOST_H

#include "CallLog.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QVariant>

/// A command as the plug-in sent it.
struct SentCommand
{
    void *handle;
    QString senderID;
    QString command;
    QVariant data;
    void *context;
    int flag;
    QString target;
};

/// A connection as the plug-in asked for it.
struct RequestedConnection
{
    void *handle;
    QString sourceID;
    QByteArray signal;
    QString receiverID;
    QByteArray slot;
    int flag;
};

/// What the host does for a plug-in: records it in a log, and answers as the test says.
///
/// The base of the two frameworks that a test can hand to a plug-in; it knows nothing of how the
/// plug-in's calls arrive. Each call adds one line to the log:
/// - `send reconnectCameras ["c1"] to "st1"`
/// - `connect SOURCE 2signal(int) to RECEIVER 1slot(int)`
/// - `ask whether to skip pair wiring`
/// - `find PLUGIN`
class FakeHost
{
public:
    explicit FakeHost(CallLog &log)
        : m_log(log)
    { }

    ~FakeHost() = default;
    FakeHost(const FakeHost &) = delete;
    FakeHost &operator=(const FakeHost &) = delete;

    /// The opaque handle that goes with this host.
    void *handle() { return this; }

    /// Makes an object known under a plug-in id; it is not owned.
    void registerPlugin(const QString &pluginID, QObject *object) { m_plugins[pluginID] = object; }
    void forgetPlugin(const QString &pluginID) { m_plugins.remove(pluginID); }

    const QList<SentCommand> &commands() const { return m_commands; }
    /// Drops what commands() holds, and with it its share of their texts.
    void forgetCommands() { m_commands.clear(); }
    const QList<RequestedConnection> &connections() const { return m_connections; }

    /// Whether every call so far came with this host's handle.
    bool allCallsHadTheHandle() const { return !m_sawForeignHandle; }

    bool acceptsCommands = true;  ///< the answer to every command
    bool skipsPairWiring = false; ///< the answer to the skip query
    QSet<int> refusedConnections; ///< connections, counted from 1, that fail

    bool sendCommand(const SentCommand &command);
    /// Connects the two registered objects for real; false when one is unknown.
    bool connectPluginSignal(const RequestedConnection &connection);
    bool shouldSkipPairWiring(void *handle);
    /// The registered object, or null.
    QObject *pluginObject(void *handle, const QString &pluginID);

private:
    void checkHandle(void *handle) { m_sawForeignHandle |= handle != this; }

    CallLog &m_log;
    QHash<QString, QPointer<QObject>> m_plugins;
    QList<SentCommand> m_commands;
    QList<RequestedConnection> m_connections;
    bool m_sawForeignHandle = false;
};

#endif
