import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts

/// Asks until when to snooze, in local time.
Popup {
    id: dialog

    /// The moment that the fields name, in milliseconds since the epoch.
    readonly property real moment: new Date(year.value, month.value - 1, day.value, hour.value,
                                            minute.value).getTime()
    readonly property bool valid: moment > Clock.serverNow

    /// The user confirmed @p milliseconds since the epoch.
    signal chosen(milliseconds: real)

    /// Opens with @p milliseconds since the epoch in the fields.
    function ask(milliseconds: real) {
        const date = new Date(milliseconds);
        year.value = date.getFullYear();
        month.value = date.getMonth() + 1;
        day.value = date.getDate();
        hour.value = date.getHours();
        minute.value = date.getMinutes();
        open();
        hour.forceActiveFocus(Qt.PopupFocusReason);
    }

    function daysInMonth(): int {
        return new Date(year.value, month.value, 0).getDate();
    }

    function confirm() {
        if (!valid)
            return;
        close();
        chosen(moment);
    }

    anchors.centerIn: parent
    modal: true
    focus: true
    padding: Theme.em(1.2)

    background: Panel {
        color: Theme.surface
        border.color: Theme.outline
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Theme.em(1)
        Accessible.role: Accessible.Dialog
        Accessible.name: title.text
        Keys.onReturnPressed: dialog.confirm()
        Keys.onEnterPressed: dialog.confirm()

        PlainLabel {
            id: title

            text: qsTr("Snooze until")
            font.pixelSize: Theme.largeFont
            font.weight: Font.DemiBold
        }

        GridLayout {
            columns: 5
            columnSpacing: Theme.gap
            rowSpacing: Theme.em(0.3)

            PlainLabel {
                text: qsTr("Year")
                color: Theme.mutedText
            }
            PlainLabel {
                text: qsTr("Month")
                color: Theme.mutedText
            }
            PlainLabel {
                text: qsTr("Day")
                color: Theme.mutedText
            }
            PlainLabel {
                text: qsTr("Hour")
                color: Theme.mutedText
            }
            PlainLabel {
                text: qsTr("Minute")
                color: Theme.mutedText
            }

            ThemedSpinBox {
                id: year

                digits: 4
                from: 1970
                to: 9999
                Accessible.name: qsTr("Year")
            }
            ThemedSpinBox {
                id: month

                from: 1
                to: 12
                Accessible.name: qsTr("Month")
            }
            ThemedSpinBox {
                id: day

                from: 1
                to: dialog.daysInMonth()
                Accessible.name: qsTr("Day")
            }
            ThemedSpinBox {
                id: hour

                to: 23
                wrap: true
                Accessible.name: qsTr("Hour")
            }
            ThemedSpinBox {
                id: minute

                to: 59
                stepSize: 5
                wrap: true
                Accessible.name: qsTr("Minute")
            }
        }

        RowLayout {
            spacing: Theme.gap

            StateMark {
                visible: !dialog.valid
                status: "warning"
            }

            PlainLabel {
                text: dialog.valid ? qsTr("%1, in %2", "time and duration")
                                     .arg(Format.dateTime(dialog.moment))
                                     .arg(Format.duration((dialog.moment - Clock.serverNow) / 1000))
                                   : qsTr("This moment is over; choose a later one")
            }
        }

        RowLayout {
            Layout.alignment: Qt.AlignRight
            spacing: Theme.gap

            ActionButton {
                text: qsTr("Cancel")
                onClicked: dialog.close()
            }
            ActionButton {
                highlighted: true
                text: qsTr("Snooze")
                enabled: dialog.valid
                onClicked: dialog.confirm()
            }
        }
    }
}
