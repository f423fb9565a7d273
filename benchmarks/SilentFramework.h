#ifndef SILENTFRAMEWORK_H
#define SILENTFRAMEWORK_H

#include "FrameworkWrapperBase.h"

#include <QHash>
#include <QObject>

/// The host's services, done with as little work as they take.
class SilentFramework final : public FrameworkWrapperBase
{
public:
    /// Makes an object known under a plug-in id; it is not owned.
    void registerPlugin(const QString &pluginID, QObject *object);

    bool SendCommand(void *handle, const QString &senderID, const QString &command,
                     const QVariant &data, void *context, int flag, const QString &target) override;
    bool ConnectPluginSignal(void *handle, const QString &sourceID, const char *signal,
                             const QString &receiverID, const char *slot, int flag) override;
    bool ShouldSkipPairWiring(void *handle) override;
    QObject *GetPluginObject(void *handle, const QString &pluginID) override;

private:
    QHash<QString, QObject *> m_plugins;
};

#endif
