import QtQuick

/// A number of errors beside a warning sign; nothing when there are none.
Rectangle {
    id: badge

    property int count: 0

    signal clicked

    visible: count > 0
    implicitWidth: content.implicitWidth + 2 * Theme.gap
    implicitHeight: Theme.em(1.5)
    radius: height / 2
    color: mouse.containsMouse ? Theme.hover : Theme.raised
    border.color: Theme.critical
    border.width: Theme.line
    Accessible.role: Accessible.Button
    Accessible.name: qsTr("Show the %n error(s)", "", count)
    Accessible.onPressAction: clicked()

    Row {
        id: content

        anchors.centerIn: parent
        spacing: Theme.em(0.3)

        Glyph {
            anchors.verticalCenter: parent.verticalCenter
            size: Theme.em(1)
            name: "errors"
            color: Theme.critical
        }

        PlainLabel {
            anchors.verticalCenter: parent.verticalCenter
            text: badge.count
            font.weight: Font.DemiBold
        }
    }

    MouseArea {
        id: mouse

        anchors.fill: parent
        hoverEnabled: true
        onClicked: badge.clicked()
    }

    Tip {
        text: qsTr("Show only these errors (F)")
        visible: mouse.containsMouse
    }
}
