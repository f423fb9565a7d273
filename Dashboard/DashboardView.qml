import QtQuick

/// The health dashboard of a site, shown from the plug-in's surface and from what the host knows
/// about the site.
///
/// Keys: Esc clears the filters; see also DashboardKeys, ErrorTable and StationsPane.
FocusScope {
    id: root

    /// The plug-in; not owned.
    required property QtObject plugin
    property string siteName
    property bool serverConnected: false
    /// Since when serverConnected has its value: a Date, or undefined when nobody knows.
    property var connectionSince
    /// Why there is no connection: a clause in the user's language, or empty when nobody knows.
    property string connectionFailure
    /// When the host tries to connect again: a Date, or undefined when nobody knows.
    property var nextAttempt
    /// Since when the states of all stations and cameras have been known: a Date, or undefined while
    /// they are not. Before, nothing at the site is said to be well.
    property var statesSince
    /// The server's time is that of this machine, in milliseconds since the epoch, times the rate plus
    /// the offset.
    property real serverRate: 1
    property real serverOffset: 0
    /// List of {stationID, name, parentID, connected}; parentID is empty for a top-level station.
    property var stations: []

    /// The server's snoozes: a list of {nodeID, type, until, name}, where type is the kind of the
    /// error, until is in milliseconds since the epoch and name, the device's, may be missing.
    /// Undefined when the host does not know them.
    property var snoozes

    /// Writes files for the dashboard, or null, which takes the export away. It offers
    /// `resolve(path)`, the absolute path of a name or path; `exists(path)`; and
    /// `write(path, text)`, which writes a file whole or not at all and returns an empty text or
    /// the reason why that failed.
    property QtObject files: null

    /// Takes texts into the clipboard by `put(text)`, or null. The dashboard can do without, but then
    /// it needs seconds for tens of thousands of errors.
    property QtObject clipboard: null

    /// Reads the operational log, or null. It offers `newest(limit, text)`, which returns the newest
    /// entries first, up to a limit, as a list of {time, name, parameters}: milliseconds since the
    /// epoch, a text, a list of texts. With a text, name or parameters contain it, whatever the
    /// case. The signal `changed()` tells of new entries.
    property QtObject operationalLog: null

    /// Whether the colours are dark. The user may change it, and the host may remember it.
    property bool dark: Theme.dark

    /// How many times as large as in the application font everything is shown. The user may change
    /// it, and the host may remember it.
    property real zoom: Theme.zoom

    /// The page shown: "overview", "snoozed" or "log".
    property string page: "overview"

    readonly property var knownSince: validDate(connectionSince)
    readonly property var knownStatesSince: validDate(statesSince)

    // What it offers is known only at run time.
    readonly property var surface: plugin

    readonly property bool isSplit: overview.arrangement === "single"
    readonly property var tabs: [
        ...(isSplit ? overview.panes
                    : [{ "key": "overview", "text": qsTr("Overview"), "glyph": "overview" }]),
        { "key": "snoozed", "text": qsTr("Snoozed"), "glyph": "snoozed" },
        { "key": "log", "text": qsTr("Log"), "glyph": "log" }
    ]

    function validDate(date: var): var {
        return date && !isNaN(date.getTime()) ? date : undefined;
    }

    /// Shows what a tab stands for: a page, or a pane of the overview.
    function show(key: string) {
        const isPane = overview.panes.some(pane => pane.key === key);
        if (isPane)
            overview.pane = key;
        page = isPane ? "overview" : key;
    }

    anchors.fill: parent
    focus: true
    onDarkChanged: Theme.dark = dark
    onZoomChanged: Theme.zoom = zoom
    onServerRateChanged: Clock.serverRate = serverRate
    onServerOffsetChanged: Clock.serverOffset = serverOffset
    Component.onCompleted: {
        Theme.dark = dark;
        Theme.zoom = zoom;
    }

    Connections {
        target: Theme

        function onDarkChanged() {
            root.dark = Theme.dark;
        }

        function onZoomChanged() {
            root.zoom = Theme.zoom;
        }
    }

    Keys.onEscapePressed: {
        if (page === "log")
            log.clearFilters();
        else if (page === "overview")
            overview.clearFilters();
    }

    DashboardKeys {
        onFindWanted: {
            if (root.page === "log" && root.operationalLog) {
                log.focusTextFilter();
            } else {
                root.page = "overview";
                overview.showTextFilter();
            }
        }
        onExportWanted: {
            if (root.page === "log")
                log.exportShown();
            else if (root.page === "overview")
                overview.exportShown();
        }
        onTurned: step => strip.step(step)
    }

    StationErrorCounts {
        id: errorCounts

        model: root.surface ? root.surface.getSystemErrorModel() : null
    }

    StationDirectory {
        id: directory

        stations: root.stations
        statesKnown: root.knownStatesSince !== undefined
        errorCounts: errorCounts.counts
    }

    SnoozeBook {
        id: book

        surface: root.surface
        serverList: root.snoozes
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.window
    }

    DashboardHeader {
        id: header

        width: parent.width
        siteName: root.siteName
        serverConnected: root.serverConnected
        connectionSince: root.knownSince
    }

    CapacityBanner {
        id: banner

        anchors.top: header.bottom
        width: parent.width
        surface: root.surface
    }

    TabStrip {
        id: strip

        anchors.top: banner.bottom
        anchors.topMargin: Theme.em(0.3)
        x: Theme.gap
        bare: root.width < Theme.em(46)
        tabs: root.tabs
        current: root.page === "overview" && root.isSplit ? overview.pane : root.page
        numbers: ({ "snoozed": book.rows.length })
        onChosen: key => root.show(key)
    }

    FocusScope {
        id: pages

        anchors.top: strip.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true

        OverviewPage {
            id: overview

            anchors.fill: parent
            visible: root.page === "overview"
            focus: true
            surface: root.surface
            directory: directory
            serverConnected: root.serverConnected
            connectionSince: root.knownSince
            connectionFailure: root.connectionFailure
            nextAttempt: root.validDate(root.nextAttempt)
            statesSince: root.knownStatesSince
            snoozed: book.snoozedCount
            files: root.files
            clipboard: root.clipboard
            onNoticed: (status, text) => notice.show(status, text)
            onSnoozeAsked: (nodes, seconds) => book.take(nodes, seconds)
            onKeyboardLost: strip.focusCurrent()
        }

        SnoozedPage {
            anchors.fill: parent
            anchors.margins: Theme.gap
            visible: root.page === "snoozed"
            book: book
            directory: directory
            serverConnected: root.serverConnected
            connectionSince: root.knownSince
            onStationRequested: stationID => {
                root.page = "overview";
                overview.showStation(stationID);
                strip.focusCurrent();
            }
        }

        LogPage {
            id: log

            anchors.fill: parent
            anchors.margins: Theme.gap
            visible: root.page === "log"
            log: root.operationalLog
            files: root.files
            onNoticed: (status, text) => notice.show(status, text)
        }
    }

    NoticeBar {
        id: notice

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.em(1.5)
    }
}
