import QtQuick

/// The ground on which related things stand together.
Rectangle {
    color: Theme.surface
    radius: Theme.radius
    border.color: Theme.border
    border.width: Theme.line
}
