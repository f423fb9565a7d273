#ifndef TOPOLOGYROLES_H
#define TOPOLOGYROLES_H

#include <Qt>

/// What the topology plug-in's model tells of a node.
namespace Topology {

enum Role : int {
    IdRole = Qt::UserRole + 1,          ///< string; the id by which names are looked up
    PropertiesRole = Qt::UserRole + 2,  ///< map; "nameRole" is the node's name
    DisplayNameRole = Qt::UserRole + 3, ///< string
    NodeIdRole = Qt::UserRole + 4,      ///< string; the id under which the node's errors are listed
    NodeTypeRole = Qt::UserRole + 6,    ///< int, a NodeType
    ConnectedRole = Qt::UserRole + 28,  ///< bool
};

/// Other values occur and stand for nodes of no concern here.
enum NodeType : int {
    CameraNode = 0,
    StationNode = 1,
};

} // namespace Topology

#endif
