import QtQuick

/// Shows which row of a list the keyboard is on; lies inside the row, which a list may cut.
Rectangle {
    anchors.fill: parent
    color: "transparent"
    border.color: Theme.accent
    border.width: 2 * Theme.line
}
