import QtQuick

/// Chooses one station or all of them.
ThemedComboBox {
    id: box

    required property StationDirectory directory
    /// The station's id; empty for all.
    property string stationID

    /// The user chose; the owner decides whether it becomes this box's station.
    signal chosen(stationID: string)

    /// Whether the station chosen is one that is no longer listed.
    readonly property bool isGone: stationID !== ""
                                   && !directory.rows.some(row => row.stationID === stationID)

    function showChoice() {
        currentIndex = Math.max(0, indexOfValue(stationID));
    }

    textRole: "text"
    valueRole: "stationID"
    model: [
        { "stationID": "", "text": qsTr("All stations") },
        ...directory.rows.filter(row => row.stationID !== "").map(
            row => ({ "stationID": row.stationID, "text": row.name })),
        ...(isGone ? [{ "stationID": stationID, "text": stationID }] : [])
    ]
    Accessible.name: qsTr("Station")

    onActivated: chosen(currentValue)
    onModelChanged: showChoice()
    onStationIDChanged: showChoice()
    Component.onCompleted: showChoice()
}
