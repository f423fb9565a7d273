import QtQuick

Item {
    id: root

    required property QtObject plugin
    property string siteName
    property bool serverConnected: false
    property var connectionSince
    property string connectionFailure
    property var nextAttempt
    property var statesSince
    property real serverRate: 1
    property real serverOffset: 0
    property var stations: []
    property var snoozes
    property bool dark: true
    property real zoom: 1
    property QtObject files: null
    property QtObject clipboard: null
    property QtObject operationalLog: null

    anchors.fill: parent

    Rectangle {
        width: parent.width / 2
        height: parent.height
        color: root.serverConnected ? "#00ff00" : "#ff0000"
    }
}
