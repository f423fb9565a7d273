import QtQuick

/// The context menu of the error list.
ThemedMenu {
    id: menu

    property bool canSnooze: false

    signal snoozeChosen(seconds: int)
    signal snoozeMomentWanted
    signal copyChosen
    signal stationChosen

    SnoozeMenu {
        enabled: menu.canSnooze
        onDurationChosen: seconds => menu.snoozeChosen(seconds)
        onMomentWanted: menu.snoozeMomentWanted()
    }

    ThemedMenuItem {
        text: qsTr("Copy")
        onTriggered: menu.copyChosen()
    }

    ThemedMenuItem {
        text: qsTr("Show the station's usage")
        onTriggered: menu.stationChosen()
    }
}
