import QtQuick

/// Category, station and text of the error list's filters.
Flow {
    id: bar

    required property ErrorFilters filters
    required property StationDirectory directory

    readonly property real restWidth: width - categories.width - stations.width - 2 * spacing
    readonly property bool onOneLine: restWidth >= Theme.em(9)

    function focusText() {
        field.forceActiveFocus(Qt.ShortcutFocusReason);
        field.selectAll();
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

    ThemedTextField {
        id: field

        width: bar.onOneLine ? bar.restWidth : bar.width
        leftPadding: Theme.em(2.2)
        placeholderText: qsTr("Filter by error or device")
        onTextEdited: typing.restart()
        onEditingFinished: typing.finish()

        Glyph {
            x: Theme.gap
            anchors.verticalCenter: parent.verticalCenter
            name: "search"
            color: Theme.mutedText
        }
    }

    // A long list is not filtered anew for every letter of a quick typist.
    Timer {
        id: typing

        interval: 150
        onTriggered: bar.filters.text = field.text

        function finish() {
            if (!running)
                return;
            stop();
            bar.filters.text = field.text;
        }
    }

    Connections {
        target: bar.filters

        function onTextChanged() {
            typing.stop();
            field.text = bar.filters.text;
        }

        // There may be text that was typed but not applied yet.
        function onCleared() {
            typing.stop();
            field.clear();
        }
    }
}
