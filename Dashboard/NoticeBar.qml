import QtQuick
import QtQuick.Layouts

/// A notice that goes by itself: soon when all went well, later when not. A pointer that rests
/// on it keeps it.
Panel {
    id: notice

    /// A state of StateMark.
    property string status: "done"
    property string text

    function show(newStatus: string, newText: string) {
        status = newStatus;
        text = newText;
        visible = text !== "";
        timer.restart();
    }

    function dismiss() {
        visible = false;
    }

    visible: false
    color: Theme.raised
    border.color: Theme.stateColor(status)
    implicitWidth: Math.min(row.implicitWidth + 2 * Theme.em(1),
                            parent ? parent.width - 2 * Theme.em(1) : 0)
    implicitHeight: Math.max(Theme.em(3), label.implicitHeight + 2 * Theme.pad)

    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    readonly property Timer timer: Timer {
        id: timer

        interval: notice.status === "critical" ? 15000 : 6000
        onTriggered: {
            if (hover.hovered || close.activeFocus)
                restart();
            else
                notice.dismiss();
        }
    }

    HoverHandler {
        id: hover
    }

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: Theme.em(1)
        anchors.rightMargin: Theme.gap
        spacing: Theme.pad

        StateMark {
            status: notice.status
        }

        Text {
            id: label

            Layout.fillWidth: true
            text: notice.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            color: Theme.text
            font.pixelSize: Theme.normalFont
        }

        ActionButton {
            id: close

            flat: true
            glyph: "close"
            hint: qsTr("Dismiss the notice")
            onClicked: notice.dismiss()
        }
    }
}
