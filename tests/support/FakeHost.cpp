#include "FakeHost.h"

#include "PrintedValue.h"

#include <QObject>

bool FakeHost::sendCommand(const SentCommand &command)
{
    checkHandle(command.handle);
    m_commands.append(command);
    m_log.add(QStringLiteral("send %1 %2 to %3")
                  .arg(command.command, printedValue(command.data), printedValue(command.target)));
    return acceptsCommands;
}

bool FakeHost::connectPluginSignal(const RequestedConnection &connection)
{
    checkHandle(connection.handle);
    m_connections.append(connection);
    m_log.add(QStringLiteral("connect %1 %2 to %3 %4")
                  .arg(connection.sourceID, QString::fromUtf8(connection.signal),
                       connection.receiverID, QString::fromUtf8(connection.slot)));

    const QObject *source = m_plugins.value(connection.sourceID);
    const QObject *receiver = m_plugins.value(connection.receiverID);
    const bool refused = refusedConnections.contains(static_cast<int>(m_connections.size()));
    return !refused && source && receiver
           && QObject::connect(source, connection.signal.constData(), receiver,
                               connection.slot.constData());
}

bool FakeHost::shouldSkipPairWiring(void *handle)
{
    checkHandle(handle);
    m_log.add(QStringLiteral("ask whether to skip pair wiring"));
    return skipsPairWiring;
}

QObject *FakeHost::pluginObject(void *handle, const QString &pluginID)
{
    checkHandle(handle);
    m_log.add(QStringLiteral("find %1").arg(pluginID));
    return m_plugins.value(pluginID);
}
