#include "SilentFramework.h"

void SilentFramework::registerPlugin(const QString &pluginID, QObject *object)
{
    m_plugins.insert(pluginID, object);
}

bool SilentFramework::SendCommand(void *, const QString &, const QString &, const QVariant &,
                                  void *, int, const QString &)
{
    return true;
}

bool SilentFramework::ConnectPluginSignal(void *, const QString &sourceID, const char *signal,
                                          const QString &receiverID, const char *slot, int)
{
    return QObject::connect(m_plugins.value(sourceID), signal, m_plugins.value(receiverID), slot);
}

bool SilentFramework::ShouldSkipPairWiring(void *)
{
    return false;
}

QObject *SilentFramework::GetPluginObject(void *, const QString &pluginID)
{
    return m_plugins.value(pluginID);
}
