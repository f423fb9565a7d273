#ifndef PLUGINSYSTEMMONITORCOMMON_H
#define PLUGINSYSTEMMONITORCOMMON_H

#include <QString>

// The names that the plug-in shares with the host, the server and other plug-ins.
// They are contracts: two parties compare them byte by byte.

/// The id under which the host files this plug-in; the same as in its metadata.
inline const QString PSSYSTEMMONITOR_PLUGIN_ID =
    QStringLiteral("{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}");

/// The short name of this plug-in.
inline const QString PSSYSTEMMONITOR_PREFIX_NAME = QStringLiteral("SystemMonitorPlugin");

/// The pair plug-in that owns the device topology.
inline const QString TOPOLOGY_PLUGIN_ID = QStringLiteral("1AA33B3D0AA047C9A202F1181284D2CD");

/// The plug-in that manages recordings and their storage.
inline const QString RECORDINGMANAGEMENT_PLUGIN_ID =
    QStringLiteral("8F33495A224D49ABB8F9E875984A1443");

/// Method of the recording-management plug-in: report the storage of one station anew.
inline const QString METHOD_RELOAD_STORAGE_USAGE_INFO = QStringLiteral("reloadStorageUsageInfo");

/// Result code with which the host answers a command that could not be carried out.
inline const QString FRAMEWORK_INTERNAL_ERROR =
    QStringLiteral("{2C85B19D-AE6F-45D9-B8FE-DC436FCBEABE}FrameworkInternalError");

namespace PluginSystemMonitorCommon {

// Server events.
inline const QString EVENT_SYSTEM_RES_CHANGED = QStringLiteral("SystemResChanged");
inline const QString EVENT_SERVER_REACHING_LIMITED = QStringLiteral("ServerReachingLimited");
inline const QString EVENT_SNOOZE_ERROR = QStringLiteral("SnoozeError");
inline const QString EVENT_REMOVE_SNOOZE = QStringLiteral("RemoveSnooze");
inline const QString EVENT_DEVICE_STILL_ERROR = QStringLiteral("DeviceStillError");

// Keys of the data of "SystemResChanged"; percentages are whole or fractional percents.
inline const QString KEY_CPU_PERCENTAGE = QStringLiteral("cpuPercentage");
inline const QString KEY_MEM_PERCENTAGE = QStringLiteral("memPercentage");
inline const QString KEY_NETWORK_USAGE_LIST = QStringLiteral("networkUsageList");

// Keys of one entry of the network usage list.
inline const QString KEY_NETWORK_INTERFACE = QStringLiteral("networkInterface");
inline const QString KEY_NETWORK_PERCENTAGE = QStringLiteral("networkPercentage");
inline const QString KEY_NETWORK_BANDWIDTH = QStringLiteral("networkBandwidth");

// Keys of the data of "ServerReachingLimited".
inline const QString KEY_SERVER_NAME = QStringLiteral("serverName");
inline const QString KEY_VIRTUAL_SIZE_PERCENTAGE = QStringLiteral("virtualSizePercentage");

// Commands to the server.
inline const QString METHOD_RECONNECT_SUBSTATIONS = QStringLiteral("reconnectSubstations");
inline const QString METHOD_RECONNECT_CAMERAS = QStringLiteral("reconnectCameras");
inline const QString METHOD_SET_SNOOZE = QStringLiteral("setSnooze");
inline const QString METHOD_GET_SNOOZE_LIST = QStringLiteral("getSnoozeList");

// Names of the server tunnel. The plug-in sends neither; the first differs from the command
// above in the case of one letter.
inline const QString TUNNEL_CMD_RECONNECT_SUBSTATIONS = QStringLiteral("ReconnectSubstations");
inline const QString TUNNEL_REQ_CMD_GET_NODE_INFO = QStringLiteral("GetNodeInfo");

// Keys of the argument of "setSnooze" and of the snooze events.
inline const QString ARG_SNOOZE_NODE_ID = QStringLiteral("nodeID");
inline const QString ARG_SNOOZE_TIMESTAMP = QStringLiteral("timestamp");
inline const QString ARG_SNOOZE_TYPE = QStringLiteral("type");

// The operational log.
inline const QString METHOD_ADD_OPERATIONAL_LOG = QStringLiteral("addOperationalLog");
inline const QString LOG_PARAM = QStringLiteral("param");
inline const QString ADD_DASHBOARD_SNOOZE_LOG_NAME = QStringLiteral("AddDashboardSnooze");

} // namespace PluginSystemMonitorCommon

#endif
