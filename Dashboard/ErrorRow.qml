import QtQuick

/// One error of the ErrorTable: kind, device, station, age and time. In a narrow table the station
/// stands below the device and the time below the age.
Item {
    id: row

    required property int index
    required property var uniqueIDRole
    required property var stationIDRole
    required property var deviceIDRole
    required property var errorTypeRole
    required property var errorCategoryRole
    required property var timestampRole
    required property var errorNameRole
    required property var triggerDeviceNameRole

    required property ErrorColumns columns
    required property StationDirectory directory
    required property bool selected
    /// What is seen of the list that the row is in, in the list's coordinates.
    required property real viewTop
    required property real viewBottom
    /// Whether the keyboard is on this row.
    required property bool current

    readonly property int kind: errorTypeRole ?? -1
    readonly property string stationName: directory.nameOf(stationIDRole ?? "")
    readonly property string deviceName: ErrorKinds.deviceName(kind, errorCategoryRole ?? 0,
                                                               deviceIDRole ?? "",
                                                               triggerDeviceNameRole ?? "",
                                                               stationName)
    // The software renderer forgets the clip of a Shape that lies outside it entirely, so drawings
    // that are scrolled out of sight are hidden.
    readonly property bool drawn: y + icon.y + icon.height > viewTop && y + icon.y < viewBottom

    readonly property bool hasTime: (timestampRole ?? 0) > 0
    readonly property string age: hasTime ? Format.age(timestampRole, Clock.now) : qsTr("unknown")
    readonly property string fullTime: hasTime ? Format.dateTime(timestampRole) : ""
    readonly property string time: hasTime ? Format.recentTime(timestampRole, Clock.now) : ""
    readonly property color kindColor: Theme.stateColor(ErrorKinds.severity(kind))

    /// Whether a text does not fit.
    readonly property bool truncated: kindLabel.truncated || deviceLabel.truncated
                                      || stationLabel.truncated
    readonly property string fullText: (errorNameRole ?? "") + "\n" + (triggerDeviceNameRole ?? "")
                                       + "\n" + fullTime

    signal pressed(event: var)
    signal doubleClicked
    signal checkToggled
    signal hoverChanged(hovered: bool)

    height: columns.rowHeight

    Accessible.role: Accessible.ListItem
    Accessible.name: Format.fill(qsTr("%1, %2, %3, since %4", "kind, device, station, time"),
                                 errorNameRole, deviceName, stationName, fullTime)
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.focusable: true
    Accessible.focused: current

    Rectangle {
        anchors.fill: parent
        color: row.selected ? Theme.selection : mouse.containsMouse ? Theme.hover : "transparent"
    }

    Rectangle {
        width: parent.width
        height: Theme.line
        anchors.bottom: parent.bottom
        color: Theme.border
        opacity: 0.6
    }

    MouseArea {
        id: mouse

        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPressed: event => row.pressed(event)
        onDoubleClicked: row.doubleClicked()
        onContainsMouseChanged: row.hoverChanged(containsMouse)
    }

    Rectangle {
        id: check

        anchors.verticalCenter: parent.verticalCenter
        x: Theme.gap
        width: Theme.em(1.1)
        height: width
        radius: Theme.radius / 2
        color: row.selected ? Theme.accent : "transparent"
        border.color: row.selected ? Theme.accent : Theme.outline
        border.width: Theme.line

        Glyph {
            anchors.centerIn: parent
            visible: row.selected && row.drawn
            size: Theme.em(1)
            name: "check"
            color: Theme.onStatus
        }

        MouseArea {
            anchors.fill: parent
            anchors.margins: -Theme.em(0.6)
            onClicked: row.checkToggled()
        }
    }

    Glyph {
        id: icon

        visible: row.drawn
        anchors.verticalCenter: parent.verticalCenter
        x: row.columns.kindX
        size: Theme.em(1.4)
        name: ErrorKinds.icon(row.kind)
        color: row.kindColor
    }

    PlainLabel {
        id: kindLabel

        anchors.verticalCenter: parent.verticalCenter
        x: icon.x + icon.width + Theme.gap
        width: row.columns.kindX + row.columns.kindWidth - x - Theme.gap
        wrapMode: row.columns.stacked ? Text.Wrap : Text.NoWrap
        maximumLineCount: row.columns.stacked ? 2 : 1
        text: row.errorNameRole ?? ""
        color: row.kindColor
    }

    PlainLabel {
        id: deviceLabel

        x: row.columns.deviceX
        y: row.columns.stacked ? Theme.em(0.35) : 0
        width: row.columns.deviceWidth
        height: row.columns.stacked ? Theme.em(1.4) : row.height
        text: row.deviceName
    }

    PlainLabel {
        id: stationLabel

        x: row.columns.stationX
        y: row.columns.stacked ? Theme.em(1.7) : 0
        width: row.columns.stationWidth
        height: row.columns.stacked ? Theme.em(1.4) : row.height
        text: row.stationName
        color: row.columns.stacked ? Theme.mutedText : Theme.text
    }

    PlainLabel {
        x: row.columns.ageX
        y: row.columns.stacked ? Theme.em(0.35) : 0
        width: row.columns.ageWidth
        height: row.columns.stacked ? Theme.em(1.4) : row.height
        horizontalAlignment: Text.AlignRight
        text: row.age
    }

    PlainLabel {
        x: row.columns.timeX
        y: row.columns.stacked ? Theme.em(1.7) : 0
        width: row.columns.timeWidth
        height: row.columns.stacked ? Theme.em(1.4) : row.height
        horizontalAlignment: Text.AlignRight
        text: row.time
        color: Theme.mutedText
    }

    RowRing {
        visible: row.current
    }
}
