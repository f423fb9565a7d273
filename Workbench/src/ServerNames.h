#ifndef SERVERNAMES_H
#define SERVERNAMES_H

#include <QString>

/// The names that a server and its clients share. They are contracts, compared byte by byte.
namespace ServerNames {

// Commands to the server.
inline const QString GetSnoozeList = QStringLiteral("getSnoozeList");
inline const QString SetSnooze = QStringLiteral("setSnooze");
inline const QString IsSupportSystemMonitor = QStringLiteral("isSupportSystemMonitor");
inline const QString ReconnectSubstations = QStringLiteral("reconnectSubstations");
inline const QString ReconnectCameras = QStringLiteral("reconnectCameras");

// Events from the server.
inline const QString SystemResChanged = QStringLiteral("SystemResChanged");
inline const QString ServerReachingLimited = QStringLiteral("ServerReachingLimited");
inline const QString SnoozeError = QStringLiteral("SnoozeError");
inline const QString DeviceStillError = QStringLiteral("DeviceStillError");
inline const QString RemoveSnooze = QStringLiteral("RemoveSnooze");

// Keys of the data of "SystemResChanged".
inline const QString KeyCpuPercentage = QStringLiteral("cpuPercentage");
inline const QString KeyMemPercentage = QStringLiteral("memPercentage");
inline const QString KeyNetworkUsageList = QStringLiteral("networkUsageList");

// Keys of one entry of its network usage list.
inline const QString KeyNetworkInterface = QStringLiteral("networkInterface");
inline const QString KeyNetworkPercentage = QStringLiteral("networkPercentage");
inline const QString KeyNetworkBandwidth = QStringLiteral("networkBandwidth");

// Keys of the data of "ServerReachingLimited".
inline const QString KeyServerName = QStringLiteral("serverName");
inline const QString KeyVirtualSizePercentage = QStringLiteral("virtualSizePercentage");

// Keys of the argument of "setSnooze" and of the snooze events.
inline const QString KeyNodeId = QStringLiteral("nodeID");
inline const QString KeyTimestamp = QStringLiteral("timestamp");
inline const QString KeyType = QStringLiteral("type");

// Kinds of error that can be snoozed, as they travel under KeyType.
constexpr int CameraDisconnected = 3;
constexpr int StationDisconnected = 4;

// Result codes of commands.
inline const QString Success = QStringLiteral("0");
inline const QString InvalidArgument = QStringLiteral("InvalidArgument");
inline const QString UnknownNode = QStringLiteral("UnknownNode");
inline const QString UnknownCommand = QStringLiteral("UnknownCommand");
inline const QString StoreFailed = QStringLiteral("StoreFailed");
/// What a client sees when a command could not be carried out at all.
inline const QString FrameworkInternalError =
    QStringLiteral("{2C85B19D-AE6F-45D9-B8FE-DC436FCBEABE}FrameworkInternalError");

} // namespace ServerNames

#endif
