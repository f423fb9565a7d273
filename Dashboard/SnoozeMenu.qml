pragma ComponentBehavior: Bound

import QtQml.Models
import QtQuick

/// How long to snooze for.
ThemedMenu {
    id: menu

    /// A fixed time from now was chosen.
    signal durationChosen(seconds: int)
    /// The user wants to name the moment.
    signal momentWanted

    readonly property var durations: [
        { "text": qsTr("15 minutes"), "seconds": 15 * 60 },
        { "text": qsTr("1 hour"), "seconds": 60 * 60 },
        { "text": qsTr("8 hours"), "seconds": 8 * 60 * 60 }
    ]

    title: qsTr("Snooze")

    Instantiator {
        model: menu.durations
        delegate: ThemedMenuItem {
            required property var modelData

            text: modelData.text
            onTriggered: menu.durationChosen(modelData.seconds)
        }
        onObjectAdded: (index, object) => menu.insertItem(index, object)
        onObjectRemoved: (index, object) => menu.removeItem(object)
    }

    ThemedMenuItem {
        text: qsTr("Until…")
        onTriggered: menu.momentWanted()
    }
}
