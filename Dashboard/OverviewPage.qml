import QtQuick

/// The page with what is wrong now: errors, stations and usage. There is room for all three side by
/// side, for the errors and one of the others, or for one at a time, which its owner has tabs for.
FocusScope {
    id: page

    required property var surface
    required property StationDirectory directory
    property bool serverConnected: false
    property var connectionSince
    property string connectionFailure
    property var nextAttempt
    property var statesSince
    /// How many errors are snoozed.
    property int snoozed: 0
    property var files: null
    property var clipboard: null

    /// The pane to show where there is no room for all: "errors", "stations" or "usage".
    property string pane: "errors"

    /// Something happened that the user should read.
    signal noticed(status: string, text: string)
    /// The errors of nodes, a list of {nodeID, type, stationID, device}, are to be snoozed until
    /// @p seconds since the epoch.
    signal snoozeAsked(nodes: var, seconds: real)
    /// The pane with the keyboard has gone.
    signal keyboardLost

    readonly property string arrangement: width >= Theme.em(92) ? "columns"
                                                                : width >= Theme.em(60) ? "side"
                                                                                        : "single"
    readonly property var panes: [{ "key": "errors", "text": qsTr("Errors"), "glyph": "errors" },
                                  { "key": "stations", "text": qsTr("Stations"), "glyph": "station" },
                                  { "key": "usage", "text": qsTr("Usage"), "glyph": "computer" }]
    /// What stands beside the errors, where there is room for one of them.
    readonly property string sidePane: pane === "usage" ? "usage" : "stations"

    readonly property real margin: Theme.gap
    readonly property real paneHeight: height - 2 * margin
    readonly property real innerWidth: width - 2 * margin
    readonly property real stationsWidth: Math.min(Theme.em(26), Math.max(Theme.em(19), width * 0.16))
    readonly property real usageWidth: Math.min(Theme.em(40), Math.max(Theme.em(21.5), width * 0.22))

    readonly property MonitoringSupport support: MonitoringSupport {
        surface: page.surface
        directory: page.directory
        serverConnected: page.serverConnected
    }

    function showStation(stationID: string) {
        surface.focusStationResource = stationID;
        support.ask(stationID);
        pane = "usage";
        if (arrangement === "single")
            keyboardLost();
        else if (arrangement === "side" && !errors.hasFocus)
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
            pane = "errors";
    }

    function clearFilters() {
        errors.filters.clear();
    }

    function exportShown() {
        errors.exportShown();
    }

    onArrangementChanged: pane = "errors"

    TabStrip {
        id: tabs

        visible: page.arrangement === "side"
        x: usage.x
        y: page.margin
        tabs: page.panes.slice(1)
        current: page.sidePane
        onChosen: key => page.pane = key
    }

    StationsPane {
        id: stations

        x: page.arrangement === "side" ? usage.x : page.margin
        y: page.arrangement === "side" ? usage.y : page.margin
        width: page.arrangement === "columns" ? page.stationsWidth : usage.width
        height: page.arrangement === "side" ? usage.height : page.paneHeight
        visible: page.arrangement === "columns"
                 || (page.arrangement === "side" ? page.sidePane : page.pane) === "stations"
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
        y: page.margin
        width: page.arrangement === "single" ? page.innerWidth : usage.x - page.margin - x
        height: page.paneHeight
        visible: page.arrangement !== "single" || page.pane === "errors"
        surface: page.surface
        directory: page.directory
        serverConnected: page.serverConnected
        connectionSince: page.connectionSince
        connectionFailure: page.connectionFailure
        nextAttempt: page.nextAttempt
        statesSince: page.statesSince
        snoozed: page.snoozed
        files: page.files
        clipboard: page.clipboard
        onStationRequested: stationID => page.showStation(stationID)
        onNoticed: (status, text) => page.noticed(status, text)
        onSnoozeAsked: (nodes, seconds) => page.snoozeAsked(nodes, seconds)
    }

    Item {
        id: usage

        x: page.width - width - page.margin
        y: page.arrangement === "side" ? page.margin + tabs.height + page.margin : page.margin
        width: page.arrangement === "single" ? page.innerWidth : page.usageWidth
        height: page.height - y - page.margin
        visible: page.arrangement === "columns" || page.pane === "usage"

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
