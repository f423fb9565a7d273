import QtQuick
import QtQuick.Layouts

/// The error list with what belongs to it.
Panel {
    id: pane

    required property var surface
    required property StationDirectory directory
    required property bool serverConnected
    property var connectionSince

    signal stationRequested(stationID: string)

    readonly property var proxy: surface ? surface.getSystemErrorSortFilterModel(pane) : null
    readonly property ErrorFilters filters: ErrorFilters {
        proxy: pane.proxy
    }
    readonly property ErrorSelection selection: ErrorSelection {
        proxy: pane.proxy
    }
    readonly property RowCounter total: RowCounter {
        model: pane.surface ? pane.surface.getSystemErrorModel() : null
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        ErrorTableHeader {
            Layout.fillWidth: true
            columns: table.columns
        }

        ErrorTable {
            id: table

            Layout.fillWidth: true
            Layout.fillHeight: true
            proxy: pane.proxy
            selection: pane.selection
            directory: pane.directory
            onStationRequested: stationID => pane.stationRequested(stationID)
        }
    }
}
