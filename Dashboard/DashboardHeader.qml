import QtQuick
import QtQuick.Layouts

/// The site, the state of its server, and the time.
Rectangle {
    id: header

    property string siteName
    property bool serverConnected: false
    property var connectionSince

    implicitHeight: Math.max(Theme.em(3.2), connection.implicitHeight + Theme.gap)
    color: serverConnected ? Theme.surface : Theme.criticalGround

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.em(1)
        anchors.rightMargin: Theme.pad
        spacing: Theme.em(1.5)

        ToldLabel {
            Layout.maximumWidth: header.width * 0.35
            text: header.siteName
            font.pixelSize: Theme.largeFont
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        ConnectionState {
            id: connection

            Layout.fillWidth: true
            connected: header.serverConnected
            since: header.connectionSince
        }

        PlainLabel {
            visible: header.width >= Theme.em(64)
            text: Format.dateTime(Clock.now)
            color: Theme.mutedText
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("Local time: %1").arg(text)
        }

        ActionButton {
            flat: true
            glyph: Theme.dark ? "sun" : "moon"
            hint: Theme.dark ? qsTr("Switch to light colours") : qsTr("Switch to dark colours")
            onClicked: Theme.dark = !Theme.dark
        }
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.line
        color: Theme.border
    }
}
