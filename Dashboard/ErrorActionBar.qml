import QtQuick
import QtQuick.Layouts

/// How many errors there are, and what can be done about them.
RowLayout {
    id: bar

    required property ErrorSelection selection
    property int shown: 0
    property int total: 0
    property bool serverConnected: false
    property bool statesKnown: false
    /// Whether what is shown can be saved as a file.
    property bool canExport: false
    readonly property bool canSnooze: serverConnected && selection.snoozableCount > 0

    signal snoozeChosen(seconds: int)
    signal snoozeMomentWanted
    signal copyChosen
    signal exportChosen
    signal reconnectCamerasChosen
    signal reconnectSubstationsChosen

    // Where room is short, the drawings stand alone, those of the lesser actions first.
    readonly property bool narrow: width < Theme.em(44)
    readonly property bool crowded: width - title.textWidth < Theme.em(45)
    readonly property string numbers: {
        if (total === 0 && !(serverConnected && statesKnown))
            return qsTr("unknown");
        return shown === total ? qsTr("%1", "number of errors").arg(total)
                               : qsTr("%1 of %2", "shown and all errors").arg(shown).arg(total);
    }
    readonly property string snoozeText: selection.snoozableCount === 0
                                         ? qsTr("Snooze")
                                         : qsTr("Snooze %1", "number of errors")
                                           .arg(selection.snoozableCount)

    function openSnoozeMenu() {
        if (canSnooze)
            snoozeMenu.popup(snooze, 0, snooze.height);
    }

    spacing: Theme.gap

    PaneTitle {
        id: title

        Layout.fillWidth: true
        text: qsTr("Errors")
        remark: bar.selection.count === 0 ? bar.numbers
                                          : bar.numbers + " · " + qsTr("%n selected", "",
                                                                       bar.selection.count)
    }

    ActionButton {
        id: snooze

        text: bar.narrow ? "" : bar.snoozeText
        glyph: "clock"
        opensMenu: true
        enabled: bar.canSnooze
        hint: qsTr("Snooze the selected disconnections (S)")
        onClicked: bar.openSnoozeMenu()

        SnoozeMenu {
            id: snoozeMenu

            onDurationChosen: seconds => bar.snoozeChosen(seconds)
            onMomentWanted: bar.snoozeMomentWanted()
        }
    }

    ActionButton {
        text: bar.crowded ? "" : qsTr("Copy")
        glyph: "copy"
        enabled: bar.selection.count > 0
        hint: qsTr("Copy the selected errors (Ctrl+C)")
        onClicked: bar.copyChosen()
    }

    ActionButton {
        visible: bar.canExport
        text: bar.crowded ? "" : qsTr("Export")
        glyph: "export"
        enabled: bar.shown > 0
        hint: qsTr("Save the errors shown as a CSV file (Ctrl+E)")
        onClicked: bar.exportChosen()
    }

    ActionButton {
        id: reconnect

        text: bar.narrow ? "" : qsTr("Reconnect")
        glyph: "reconnect"
        opensMenu: true
        // What is snoozed may be disconnected, too, and is not in the list.
        enabled: bar.serverConnected
        hint: qsTr("Ask the server to reconnect what is disconnected")
        onClicked: reconnectMenu.popup(reconnect, 0, reconnect.height)

        ThemedMenu {
            id: reconnectMenu

            ThemedMenuItem {
                text: qsTr("All disconnected cameras")
                onTriggered: bar.reconnectCamerasChosen()
            }

            ThemedMenuItem {
                text: qsTr("All disconnected sub-stations")
                onTriggered: bar.reconnectSubstationsChosen()
            }
        }
    }
}
