#include "RecordingFramework.h"

bool RecordingFramework::SendCommand(void *handle, const QString &senderID, const QString &command,
                                     const QVariant &data, void *context, int flag,
                                     const QString &target)
{
    return sendCommand({handle, senderID, command, data, context, flag, target});
}

bool RecordingFramework::ConnectPluginSignal(void *handle, const QString &sourceID,
                                             const char *signal, const QString &receiverID,
                                             const char *slot, int flag)
{
    return connectPluginSignal({handle, sourceID, signal, receiverID, slot, flag});
}

bool RecordingFramework::ShouldSkipPairWiring(void *handle)
{
    return shouldSkipPairWiring(handle);
}

QObject *RecordingFramework::GetPluginObject(void *handle, const QString &pluginID)
{
    return pluginObject(handle, pluginID);
}
