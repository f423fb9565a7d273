import QtQuick

/// The number of rows of a model.
QtObject {
    id: counter

    /// An item model, or null.
    property var model: null
    property int count: 0

    function recount() {
        count = model ? model.rowCount() : 0;
    }

    onModelChanged: recount()

    readonly property Connections changes: Connections {
        target: counter.model

        function onRowsInserted() {
            counter.recount();
        }

        function onRowsRemoved() {
            counter.recount();
        }

        function onModelReset() {
            counter.recount();
        }
    }
}
