pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

/// Warns of servers that are near their capacity, one line each. A dismissed warning comes back
/// only when that server has filled up further.
Column {
    id: banner

    required property var surface

    /// List of {server, percentage}, as they first came.
    property var warnings: []
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

    function dismiss(server: string) {
        const warning = warnings.find(entry => entry.server === server);
        dismissed[server] = warning.percentage;
        warnings = warnings.filter(entry => entry !== warning);
    }

    Connections {
        target: banner.surface

        function onNotifyServerReachingLimited(serverName, percentage) {
            banner.warn(serverName, percentage);
        }
    }

    Repeater {
        model: banner.warnings

        Rectangle {
            id: line

            required property var modelData

            width: banner.width
            height: Math.max(Theme.em(2.8), label.implicitHeight + Theme.gap)
            color: Theme.dark ? "#3a2d14" : "#fdf0d5"
            Accessible.role: Accessible.AlertMessage
            Accessible.name: label.text

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
                    text: Format.fill(qsTr("%1 has reached %2 of its capacity",
                                           "server and percentage"),
                                      line.modelData.server || qsTr("A server"),
                                      Format.percent(line.modelData.percentage))
                    textFormat: Text.PlainText
                    wrapMode: Text.Wrap
                    color: Theme.text
                    font.pixelSize: Theme.normalFont
                }

                ActionButton {
                    flat: true
                    glyph: "close"
                    hint: qsTr("Dismiss the warning")
                    onClicked: banner.dismiss(line.modelData.server)
                }
            }
        }
    }
}
