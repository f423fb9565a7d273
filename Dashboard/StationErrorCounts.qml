import QtQuick

/// How many errors of each station stand in a model of errors, counted as its rows come and go.
///
/// The plug-in offers such a list too, but makes it anew only when its errors have been left alone
/// for half a second. While cameras flap it would stand still beside a list that moves.
QtObject {
    id: counter

    /// The model, or null.
    property var model: null
    /// List of {stationID, errorNumber} in the order of the ids; stations without errors are not in
    /// it.
    property var counts: []

    // By station. Thousands of errors may come and go at once, so it changes in place and publish()
    // tells of it once.
    property var numbers: ({})

    function recount() {
        numbers = {};
        add(0, (model ? model.rowCount() : 0) - 1, 1);
        publish();
    }

    /// Adds @p number to the count of each row's station.
    function add(first: int, last: int, number: int) {
        for (let row = first; row <= last; ++row) {
            const stationID = model.data(model.index(row, 0), ErrorRoles.stationID) ?? "";
            numbers[stationID] = (numbers[stationID] ?? 0) + number;
        }
    }

    function publish() {
        const stationIDs = Object.keys(numbers).filter(stationID => numbers[stationID] > 0);
        counts = stationIDs.sort().map(
                    stationID => ({ "stationID": stationID, "errorNumber": numbers[stationID] }));
    }

    onModelChanged: recount()

    // At once after a burst: a number beside a station never differs from the list that is seen.
    readonly property Timer burst: Timer {
        interval: 0
        onTriggered: counter.publish()
    }

    readonly property Connections changes: Connections {
        target: counter.model

        function onRowsInserted(parent, first, last) {
            counter.add(first, last, 1);
            counter.burst.start();
        }

        function onRowsAboutToBeRemoved(parent, first, last) {
            // Twenty thousand go at once when the server does.
            if (last - first + 1 === counter.model.rowCount())
                counter.numbers = {};
            else
                counter.add(first, last, -1);
            counter.burst.start();
        }

        function onModelReset() {
            counter.recount();
        }
    }
}
