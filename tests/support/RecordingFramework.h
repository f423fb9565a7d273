#ifndef RECORDINGFRAMEWORK_H
#define RECORDINGFRAMEWORK_H

#include "FakeHost.h"
#include "FrameworkWrapperBase.h"

/// The host's services as a plain subclass, where the layout of the host's table is not the point.
class RecordingFramework final : public FrameworkWrapperBase, public FakeHost
{
public:
    using FakeHost::FakeHost;

    bool SendCommand(void *handle, const QString &senderID, const QString &command,
                     const QVariant &data, void *context, int flag, const QString &target) override;
    bool ConnectPluginSignal(void *handle, const QString &sourceID, const char *signal,
                             const QString &receiverID, const char *slot, int flag) override;
    bool ShouldSkipPairWiring(void *handle) override;
    QObject *GetPluginObject(void *handle, const QString &pluginID) override;
};

#endif
