import QtQuick

/// The page with what is wrong now: errors, stations and usage. There is room for all three side by
/// side, for the errors and one of the others, or for one at a time.
FocusScope {
    id: page

    required property var surface
    required property StationDirectory directory
    property bool serverConnected: false
    property var connectionSince
    property var files: null

    /// Something happened that the user should read.
    signal noticed(status: string, text: string)

    readonly property string arrangement: width >= Theme.em(92) ? "columns"
                                                                : width >= Theme.em(60) ? "side"
                                                                                        : "single"
    readonly property bool hasTabs: arrangement !== "columns"
    readonly property var sideTabs: [{ "text": qsTr("Stations"), "glyph": "station" },
                                     { "text": qsTr("Usage"), "glyph": "computer" }]
    readonly property var singleTabs: [{ "text": qsTr("Errors"), "glyph": "errors" }, ...sideTabs]
    /// The pane that the tabs show: 0 errors, 1 stations, 2 usage.
    readonly property int chosenPane: arrangement === "single" ? tabs.currentIndex
                                                               : tabs.currentIndex + 1

    readonly property real margin: Theme.gap
    readonly property real paneTop: margin + (arrangement === "single" ? tabs.height + margin : 0)
    readonly property real paneHeight: height - paneTop - margin
    readonly property real innerWidth: width - 2 * margin
    readonly property real stationsWidth: Math.min(Theme.em(26), Math.max(Theme.em(19), width * 0.16))
    readonly property real usageWidth: Math.min(Theme.em(40), Math.max(Theme.em(21.5), width * 0.22))

    readonly property MonitoringSupport support: MonitoringSupport {
        surface: page.surface
        serverConnected: page.serverConnected
    }

    function showStation(stationID: string) {
        surface.focusStationResource = stationID;
        support.ask(stationID);
        if (!hasTabs)
            return;
        tabs.currentIndex = tabs.tabs.length - 1;
        if (arrangement === "single" || !errors.hasFocus)
            tabs.focusCurrent();
    }

    function showErrorsOf(stationID: string) {
        errors.filters.stationID = stationID;
        showErrors();
        errors.focusList();
    }

    function showTextFilter() {
        showErrors();
        errors.focusTextFilter();
    }

    function showErrors() {
        if (arrangement === "single")
            tabs.currentIndex = 0;
    }

    function clearFilters() {
        errors.filters.clear();
    }

    function exportShown() {
        errors.exportShown();
    }

    onArrangementChanged: tabs.currentIndex = 0

    TabStrip {
        id: tabs

        visible: page.hasTabs
        x: page.arrangement === "side" ? usage.x : page.margin
        y: page.margin
        tabs: page.arrangement === "single" ? page.singleTabs : page.sideTabs
    }

    StationsPane {
        id: stations

        x: page.arrangement === "side" ? usage.x : page.margin
        y: page.arrangement === "side" ? usage.y : page.paneTop
        width: page.arrangement === "columns" ? page.stationsWidth : usage.width
        height: page.arrangement === "side" ? usage.height : page.paneHeight
        visible: !page.hasTabs || page.chosenPane === 1
        directory: page.directory
        support: page.support
        serverConnected: page.serverConnected
        focusedStation: page.surface?.focusStationResource ?? ""
        onChosen: stationID => page.showStation(stationID)
        onFilterRequested: stationID => page.showErrorsOf(stationID)
    }

    ErrorsPane {
        id: errors

        x: page.arrangement === "columns" ? stations.x + stations.width + page.margin : page.margin
        y: page.paneTop
        width: page.arrangement === "single" ? page.innerWidth : usage.x - page.margin - x
        height: page.paneHeight
        visible: page.arrangement !== "single" || page.chosenPane === 0
        surface: page.surface
        directory: page.directory
        serverConnected: page.serverConnected
        connectionSince: page.connectionSince
        files: page.files
        onStationRequested: stationID => page.showStation(stationID)
        onNoticed: (status, text) => page.noticed(status, text)
    }

    Item {
        id: usage

        x: page.width - width - page.margin
        y: page.arrangement === "side" ? page.margin + tabs.height + page.margin : page.paneTop
        width: page.arrangement === "single" ? page.innerWidth : page.usageWidth
        height: page.height - y - page.margin
        visible: !page.hasTabs || page.chosenPane === 2

        readonly property bool sideBySide: page.arrangement === "single"

        FocusedStationPanel {
            width: usage.sideBySide ? client.x - page.margin : parent.width
            height: usage.sideBySide ? parent.height : client.y - page.margin
            surface: page.surface
            directory: page.directory
            support: page.support
            serverConnected: page.serverConnected
        }

        ClientPanel {
            id: client

            x: parent.width - width
            y: usage.sideBySide ? 0 : parent.height - height
            width: usage.sideBySide ? Theme.em(13) : parent.width
            height: usage.sideBySide ? parent.height : implicitHeight
            surface: page.surface
        }
    }
}
