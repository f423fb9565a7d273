import QtQuick

/// One station: its state by shape and word, whether it supports monitoring, and its errors.
Item {
    id: row

    required property int index
    required property var modelData

    required property StationDirectory directory
    required property MonitoringSupport support
    required property bool serverConnected
    /// Whether the usage of this station is shown.
    required property bool focused
    /// What is seen of the list that the row is in, in the list's coordinates.
    required property real viewTop
    required property real viewBottom
    /// Whether the keyboard is on this row.
    required property bool current

    readonly property string stationID: modelData.stationID
    readonly property var connected: serverConnected ? directory.isConnected(stationID) : undefined
    readonly property var supported: support.answerOf(stationID)
    // The software renderer forgets the clip of a Shape that lies outside it entirely, so drawings
    // that are scrolled out of sight are hidden.
    readonly property bool drawn: y + mark.y + mark.height > viewTop && y + mark.y < viewBottom

    /// In a narrow list the number of errors stands beside the name alone, so that the state has the
    /// whole width.
    readonly property bool narrow: width < Theme.em(26)
    readonly property real textEnd: width - Theme.em(1.1)

    readonly property int supportRevision: support.revision
    readonly property int errorCount: directory.errorsOf(stationID)
    readonly property string name: modelData.name !== "" ? modelData.name : qsTr("Without a station")

    readonly property string stateText: connected === true ? qsTr("Connected")
                                                           : connected === false
                                                             ? qsTr("Disconnected")
                                                             : qsTr("State unknown")
    readonly property string supportText: supported === true ? qsTr("monitored")
                                                             : supported === false
                                                               ? qsTr("unmonitored") : ""
    readonly property string detail: supportText === "" ? stateText
                                                        : stateText + " · " + supportText

    /// Whether a text does not fit.
    readonly property bool truncated: nameLabel.truncated || detailLabel.truncated

    signal chosen
    signal filterRequested

    height: Theme.em(3.8)

    Accessible.role: Accessible.ListItem
    Accessible.name: Format.fill(qsTr("%1, %2, %n error(s)", "station, state", errorCount), name,
                                 detail)
    Accessible.selectable: true
    Accessible.selected: focused
    Accessible.focused: current

    onSupportRevisionChanged: support.ask(stationID)
    Component.onCompleted: support.ask(stationID)

    Rectangle {
        anchors.fill: parent
        color: row.focused ? Theme.selection : mouse.containsMouse ? Theme.hover : "transparent"
    }

    Rectangle {
        visible: row.focused
        width: Theme.em(0.25)
        height: parent.height
        color: Theme.accent
    }

    MouseArea {
        id: mouse

        anchors.fill: parent
        hoverEnabled: true
        onClicked: row.chosen()
    }

    StateMark {
        id: mark

        anchors.verticalCenter: parent.verticalCenter
        x: Theme.pad + Theme.em(1.2) * row.modelData.depth
        opacity: row.drawn ? 1 : 0
        status: row.connected === true ? "good" : row.connected === false ? "critical" : "unknown"
    }

    Column {
        id: texts

        readonly property real widthBesideBadge: (badge.visible ? badge.x - Theme.gap : row.textEnd) - x

        anchors.verticalCenter: parent.verticalCenter
        x: mark.x + mark.width + Theme.gap
        spacing: Theme.em(0.2)

        PlainLabel {
            id: nameLabel

            width: texts.widthBesideBadge
            text: row.name
            font.weight: row.focused ? Font.Bold : Font.Normal
        }

        PlainLabel {
            id: detailLabel

            width: row.narrow ? row.textEnd - texts.x : texts.widthBesideBadge
            wrapMode: Text.Wrap
            maximumLineCount: 2
            text: row.detail
            font.pixelSize: Theme.smallFont
            color: Theme.mutedText
        }
    }

    ErrorBadge {
        id: badge

        x: row.textEnd - width
        y: row.narrow ? texts.y + (nameLabel.height - height) / 2 : (row.height - height) / 2
        opacity: row.drawn ? 1 : 0
        count: row.errorCount
        onClicked: row.filterRequested()
    }

    Tip {
        text: row.name + "\n" + row.detail
        visible: row.truncated && row.drawn && (mouse.containsMouse || row.current)
    }

    RowRing {
        visible: row.current
    }
}
