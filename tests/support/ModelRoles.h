#ifndef MODELROLES_H
#define MODELROLES_H

#include <Qt>

/// Roles of the models that the plug-in shows, as QML and the host know them.
namespace ErrorRole {
enum : int {
    StationID = Qt::UserRole + 1,
    DeviceID,
    Type,
    Category,
    Timestamp, ///< milliseconds since the epoch, qint64
    Name,
    TriggerDeviceName,
    UniqueID,
};
}

namespace ResourceRole {
enum : int {
    Type = Qt::UserRole + 1, ///< 0 CPU, 1 memory, 2 network
    Title,
    Subtitle, ///< interface name of a network row
    Threshold,
    UsageList, ///< 60 entries, oldest first
    Bandwidth,
};
}

/// Roles of the topology plug-in's model. The id and the name appear twice.
namespace TopologyRole {
enum : int {
    LookupID = Qt::UserRole + 1,
    LookupNames = Qt::UserRole + 2, ///< a map with the name under "nameRole"
    DisplayName = Qt::UserRole + 3,
    NodeID = Qt::UserRole + 4,
    NodeType = Qt::UserRole + 6, ///< 0 camera, 1 station
    Connected = Qt::UserRole + 28,
};
}

#endif
