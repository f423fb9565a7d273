import QtQuick

/// One snooze: its state and who asked for it; the device and its error; the station; what is left
/// of it and until when. In a narrow list the station stands between the device and its error.
Item {
    id: row

    required property var modelData
    required property int index

    required property StationDirectory directory
    required property bool narrow
    /// What is seen of the list that the row is in, in the list's coordinates.
    required property real viewTop
    required property real viewBottom
    /// Whether the keyboard is on this row.
    required property bool current

    readonly property string progress: modelData.state
    // The software renderer forgets the clip of a Shape that lies outside it entirely, so drawings
    // that are scrolled out of sight are hidden.
    readonly property bool drawn: y + height > viewTop && y < viewBottom

    readonly property string stationName: directory.nameOf(modelData.stationID)
    readonly property string device: modelData.device || stationName
    readonly property string error: modelData.type === ErrorKinds.cameraDisconnected
                                    ? qsTr("Camera disconnected") : qsTr("Station disconnected")
    readonly property string stateText: progress === "failing" ? qsTr("Still failing")
                                                            : progress === "asked" ? qsTr("Not confirmed")
                                                                                : qsTr("Snoozed")
    readonly property string request: {
        if (modelData.askedAt === 0)
            return qsTr("asked elsewhere");
        if (narrow)
            return qsTr("asked here");
        return qsTr("asked here %1", "time").arg(Format.recentTime(modelData.askedAt,
                                                                   Clock.serverNow));
    }
    readonly property string remaining: {
        if (progress === "failing")
            return qsTr("over for %1").arg(Format.age(modelData.endedAt, Clock.serverNow));
        if (progress === "asked")
            return qsTr("waiting");
        const left = modelData.until - Clock.serverNow;
        return left <= 0 ? qsTr("due") : qsTr("%1 left").arg(Format.duration(left / 1000));
    }
    readonly property string until: qsTr("until %1").arg(Format.recentTime(modelData.until,
                                                                           Clock.serverNow))

    /// Whether a text does not fit.
    readonly property bool truncated: stateLines.truncated || deviceLines.truncated
                                      || stationLines.truncated || timeLines.truncated
    readonly property string fullText: stateText + " · " + request + "\n" + device + "\n" + error + "\n"
                                       + stationName + "\n" + remaining + " · " + until

    signal pressed
    signal doubleClicked

    height: Theme.em(narrow ? 5 : 3.6)

    Accessible.role: Accessible.ListItem
    Accessible.name: Format.fill(qsTr("%1: %2, %3, %4, %5, %6, %7",
                                      "state, device, error, station, time left, time, request"),
                                 stateText, device, error, stationName, remaining, until, request)
    Accessible.focusable: true
    Accessible.focused: current

    Rectangle {
        anchors.fill: parent
        color: mouse.containsMouse ? Theme.hover : "transparent"
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
        onPressed: row.pressed()
        onDoubleClicked: row.doubleClicked()
    }

    StateMark {
        id: mark

        visible: row.drawn && row.progress !== "snoozed"
        anchors.verticalCenter: parent.verticalCenter
        x: Theme.pad
        size: Theme.em(1.4)
        status: row.progress === "failing" ? "critical" : "unknown"
    }

    Glyph {
        visible: row.drawn && row.progress === "snoozed"
        anchors.verticalCenter: parent.verticalCenter
        x: mark.x
        size: mark.size
        name: "snoozed"
        color: Theme.accent
    }

    component Lines: Column {
        property alias first: firstLine.text
        property alias second: secondLine.text
        property alias third: thirdLine.text
        property alias firstColor: firstLine.color
        property int alignment: Text.AlignLeft
        readonly property bool truncated: visible && (firstLine.truncated || secondLine.truncated
                                                      || thirdLine.truncated)

        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.em(0.15)

        PlainLabel {
            id: firstLine

            width: parent.width
            horizontalAlignment: parent.alignment
        }

        PlainLabel {
            id: secondLine

            width: parent.width
            visible: text !== ""
            horizontalAlignment: parent.alignment
            color: Theme.mutedText
        }

        PlainLabel {
            id: thirdLine

            width: parent.width
            visible: text !== ""
            color: Theme.mutedText
        }
    }

    Lines {
        id: stateLines

        x: mark.x + mark.width + Theme.gap
        width: Theme.em(row.narrow ? 11 : 15)
        first: row.stateText
        firstColor: row.progress === "failing" ? Theme.critical : Theme.text
        second: row.request
    }

    Lines {
        id: deviceLines

        x: stateLines.x + stateLines.width + Theme.pad
        width: row.narrow ? timeLines.x - Theme.pad - x
                          : (timeLines.x - 2 * Theme.pad - x) * 0.55
        first: row.device
        second: row.narrow && row.device !== row.stationName ? row.stationName : ""
        third: row.error
    }

    Lines {
        id: stationLines

        visible: !row.narrow
        x: deviceLines.x + deviceLines.width + Theme.pad
        width: timeLines.x - Theme.pad - x
        first: row.stationName
    }

    Lines {
        id: timeLines

        x: parent.width - width - Theme.em(1)
        width: Theme.em(12)
        alignment: Text.AlignRight
        first: row.remaining
        second: row.until
    }

    Tip {
        text: row.fullText
        visible: row.truncated && row.drawn && (mouse.containsMouse || row.current)
    }

    RowRing {
        visible: row.current
    }
}
