import QtQuick

/// Shows where the keyboard is; put it into a control and set what decides.
Rectangle {
    anchors.fill: parent
    anchors.margins: -Theme.line
    radius: Theme.radius + Theme.line
    color: "transparent"
    border.color: Theme.accent
    border.width: 2 * Theme.line
}
