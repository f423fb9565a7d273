import QtQuick

/// What stands on an ActionButton: a drawing, a text, an arrow.
Item {
    id: face

    property string text
    property string glyph
    property bool opensMenu: false
    property color color: Theme.text
    property font font

    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Theme.em(0.4)

        Glyph {
            anchors.verticalCenter: parent.verticalCenter
            visible: face.glyph !== ""
            name: face.glyph
            color: face.color
        }

        PlainLabel {
            anchors.verticalCenter: parent.verticalCenter
            visible: face.text !== ""
            text: face.text
            font: face.font
            color: face.color
        }

        Glyph {
            anchors.verticalCenter: parent.verticalCenter
            visible: face.opensMenu
            size: Theme.em(0.8)
            name: "down"
            color: face.color
        }
    }
}
