import QtQuick

/// The number of rows of a model. A burst of changes is counted once, when control returns to the
/// event loop, so that ten thousand errors at once do not refresh every text ten thousand times.
QtObject {
    id: counter

    /// An item model, or null.
    property var model: null
    property int count: 0

    function recount() {
        count = model ? model.rowCount() : 0;
    }

    onModelChanged: recount()

    readonly property Timer burst: Timer {
        interval: 0
        onTriggered: counter.recount()
    }

    readonly property Connections changes: Connections {
        target: counter.model

        function onRowsInserted() {
            counter.burst.start();
        }

        function onRowsRemoved() {
            counter.burst.start();
        }

        function onModelReset() {
            counter.burst.start();
        }
    }
}
