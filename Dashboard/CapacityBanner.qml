pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

/// Warns of servers that are near their capacity: of the fullest in a line each, of the others in
/// one. A dismissed warning comes back only when that server has filled up further.
Column {
    id: banner

    required property var surface

    readonly property int maxLines: 3

    /// List of {server, percentage}, as they first came.
    property var warnings: []
    readonly property var ranked: warnings.slice().sort(
                                      (one, other) => other.percentage - one.percentage)
    readonly property var others: ranked.slice(maxLines)
    /// Server to the percentage at which its warning was dismissed.
    property var dismissed: ({})

    function warn(server: string, percentage: real) {
        if (server in dismissed && Math.round(percentage) <= Math.round(dismissed[server]))
            return;
        const others = warnings.slice();
        const at = others.findIndex(warning => warning.server === server);
        others.splice(at < 0 ? others.length : at, at < 0 ? 0 : 1,
                      { "server": server, "percentage": percentage });
        warnings = others;
    }

    /// Takes the warnings of some servers away.
    function dismiss(servers: var) {
        for (const warning of warnings) {
            if (servers.includes(warning.server))
                dismissed[warning.server] = warning.percentage;
        }
        warnings = warnings.filter(warning => !servers.includes(warning.server));
    }

    Connections {
        target: banner.surface

        function onNotifyServerReachingLimited(serverName, percentage) {
            banner.warn(serverName, percentage);
        }
    }

    component Line: Rectangle {
        id: line

        property alias text: label.text

        signal dismissed

        width: parent?.width ?? 0
        height: Math.max(Theme.em(2.8), label.implicitHeight + Theme.gap)
        color: Theme.warningGround
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.em(1)
            anchors.rightMargin: Theme.gap
            spacing: Theme.pad

            StateMark {
                status: "warning"
            }

            Text {
                id: label

                Layout.fillWidth: true
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                color: Theme.text
                font.pixelSize: Theme.normalFont
            }

            ActionButton {
                flat: true
                glyph: "close"
                hint: qsTr("Dismiss the warning")
                onClicked: line.dismissed()
            }
        }
    }

    Repeater {
        model: banner.ranked.slice(0, banner.maxLines)

        Line {
            required property var modelData

            text: Format.fill(qsTr("%1 has reached %2 of its capacity", "server and percentage"),
                              modelData.server || qsTr("A server"),
                              Format.percent(modelData.percentage))
            onDismissed: banner.dismiss([modelData.server])
        }
    }

    Line {
        visible: banner.others.length > 0
        text: qsTr("and %n more server(s)", "near their capacity", banner.others.length)
        onDismissed: banner.dismiss(banner.others.map(warning => warning.server))
    }
}
