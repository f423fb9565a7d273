#include "NodeReport.h"

#include "FuzzInput.h"
#include "HostedPlugin.h"
#include "Invariants.h"

void reportNode(HostedPlugin &hosted, FuzzInput &input)
{
    const int type = input.below(3);
    const QString id = input.id();
    const bool isConnected = input.flag();
    const bool isSnoozed = hosted.plugin.snoozedDeviceList.contains(id);
    const ErrorType error = type == 0 ? CameraDisconnected : StationDisconnected;
    const bool wasListed = hosted.plugin.lists(error, id);
    Q_EMIT hosted.topology.nodeStatusChanged(type, id, isConnected);
    if (type > 1)
        return;
    const bool isListed = hosted.plugin.lists(error, id);
    if (isConnected)
        require(!isListed, "a connected node is not listed");
    else if (!isSnoozed)
        require(isListed, "a disconnected node is listed");
    else
        require(!isListed || wasListed, "a snoozed node is not listed again");
}
