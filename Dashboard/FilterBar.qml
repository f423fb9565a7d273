import QtQuick

/// Category, station and text of the error list's filters.
Flow {
    id: bar

    required property ErrorFilters filters
    required property StationDirectory directory

    readonly property real restWidth: width - categories.width - stations.width - 2 * spacing
    readonly property bool onOneLine: restWidth >= Theme.em(9)

    function focusText() {
        field.start();
    }

    spacing: Theme.gap

    ChoiceBar {
        id: categories

        name: qsTr("Category")
        choices: [
            { "value": ErrorKinds.allCategories, "text": qsTr("All") },
            { "value": ErrorKinds.stationCategory, "text": qsTr("Stations") },
            { "value": ErrorKinds.cameraCategory, "text": qsTr("Cameras") }
        ]
        value: bar.filters.categories
        onChosen: value => bar.filters.categories = value
    }

    StationChoice {
        id: stations

        width: Math.min(Theme.em(13), bar.width)
        directory: bar.directory
        stationID: bar.filters.stationID
        onChosen: stationID => bar.filters.stationID = stationID
    }

    SearchField {
        id: field

        width: bar.onOneLine ? bar.restWidth : bar.width
        placeholderText: qsTr("Filter by error or device")
        applied: bar.filters.text
        onSearched: text => bar.filters.text = text
    }

    Connections {
        target: bar.filters

        // There may be text that was typed but not applied yet.
        function onCleared() {
            field.reset();
        }
    }
}
