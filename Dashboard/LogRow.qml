import QtQuick

/// One entry of the operational log: when, what, and the details, below both in a narrow list.
Item {
    id: row

    required property var modelData
    required property int index

    required property LogSheet sheet
    required property bool narrow
    /// Whether the keyboard is on this row.
    required property bool current

    readonly property string time: Format.dateTime(modelData.time)
    readonly property string details: sheet.details(modelData)
    readonly property bool truncated: nameLabel.truncated || detailsLabel.truncated

    signal pressed

    height: narrow ? Theme.em(4.6) : Theme.rowHeight

    Accessible.role: Accessible.ListItem
    Accessible.name: Format.fill(qsTr("%1, %2: %3", "time, entry, details"), time, modelData.name,
                                 details)
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
    }

    PlainLabel {
        id: timeLabel

        x: Theme.pad
        y: row.narrow ? Theme.em(0.35) : 0
        width: Theme.em(14.5)
        height: row.narrow ? Theme.em(1.4) : row.height
        text: row.time
        color: Theme.mutedText
    }

    PlainLabel {
        id: nameLabel

        x: timeLabel.x + timeLabel.width + Theme.pad
        y: timeLabel.y
        width: row.narrow ? row.width - x - Theme.em(1)
                          : Math.min(Theme.em(20), (row.width - x) * 0.3)
        height: timeLabel.height
        text: row.modelData.name
    }

    PlainLabel {
        id: detailsLabel

        x: row.narrow ? Theme.pad : nameLabel.x + nameLabel.width + Theme.pad
        y: row.narrow ? Theme.em(1.7) : 0
        width: row.width - x - Theme.em(1)
        height: row.narrow ? Theme.em(2.7) : row.height
        verticalAlignment: row.narrow ? Text.AlignTop : Text.AlignVCenter
        wrapMode: row.narrow ? Text.Wrap : Text.NoWrap
        maximumLineCount: row.narrow ? 2 : 1
        text: row.details
        color: row.narrow ? Theme.mutedText : Theme.text
    }

    Tip {
        text: row.modelData.name + "\n" + row.details
        visible: row.truncated && (mouse.containsMouse || row.current)
    }

    RowRing {
        visible: row.current
    }
}
