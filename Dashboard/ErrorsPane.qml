import QtQuick
import QtQuick.Layouts

/// The error list with its filters and actions.
Panel {
    id: pane

    required property var surface
    required property StationDirectory directory
    property bool serverConnected: false
    property var connectionSince
    property string connectionFailure
    property var nextAttempt
    /// See DashboardView.statesSince.
    property var statesSince
    /// How many errors are snoozed.
    property int snoozed: 0
    /// What writes files for the dashboard, or null; see DashboardView.files.
    property var files: null
    /// What takes texts into the clipboard, or null; see DashboardView.clipboard.
    property var clipboard: null

    /// The user wants to see the station of an error.
    signal stationRequested(stationID: string)
    /// The errors of nodes, a list of {nodeID, type, stationID, device}, are to be snoozed until
    /// @p seconds since the epoch.
    signal snoozeAsked(nodes: var, seconds: real)
    /// Something happened that the user should read.
    signal noticed(status: string, text: string)

    /// Whether the keyboard is on the list.
    readonly property bool hasFocus: table.activeFocus

    readonly property var proxy: surface ? surface.getSystemErrorSortFilterModel(pane) : null
    readonly property ErrorFilters filters: ErrorFilters {
        proxy: pane.proxy
    }
    readonly property ErrorSelection selection: ErrorSelection {
        proxy: pane.proxy
    }
    readonly property RowCounter shown: RowCounter {
        model: pane.proxy
    }
    readonly property RowCounter total: RowCounter {
        model: pane.surface ? pane.surface.getSystemErrorModel() : null
    }
    readonly property ErrorSheet sheet: ErrorSheet {
        proxy: pane.proxy
        directory: pane.directory
    }
    readonly property SnoozeRequests requests: SnoozeRequests {
        surface: pane.surface
        serverConnected: pane.serverConnected
        onUpdated: pane.noticed(status, summary)
    }

    function focusList() {
        table.forceActiveFocus(Qt.ShortcutFocusReason);
    }

    function focusTextFilter() {
        filterBar.focusText();
    }

    function snoozeFor(seconds: int) {
        Clock.refresh();
        snoozeUntil(Clock.serverNow + seconds * 1000);
    }

    function snoozeUntil(milliseconds: real) {
        const nodes = selection.rows().map(nodeAt).filter(node => ErrorKinds.canBeSnoozed(node.type));
        const seconds = Math.floor(milliseconds / 1000);
        const sent = requests.send(nodes, seconds);
        if (sent.length > 0)
            snoozeAsked(sent, seconds);
    }

    /// The camera or station that the error of a row is about.
    function nodeAt(row: int): var {
        const type = selection.value(row, ErrorRoles.errorType);
        const stationID = selection.value(row, ErrorRoles.stationID) ?? "";
        const deviceID = selection.value(row, ErrorRoles.deviceID) ?? "";
        const trigger = selection.value(row, ErrorRoles.triggerDeviceName) ?? "";
        return {
            "nodeID": type === ErrorKinds.cameraDisconnected ? deviceID : stationID,
            "type": type,
            "stationID": stationID,
            "device": ErrorKinds.deviceName(type, selection.value(row, ErrorRoles.errorCategory) ?? 0,
                                            deviceID, trigger, directory.nameOf(stationID))
        };
    }

    function askSnoozeMoment() {
        const hour = 3600 * 1000;
        snoozeDialog.ask(Math.ceil(Clock.serverNow / hour) * hour + hour);
    }

    /// One line for an error, its fields parted by tabs.
    function lineOf(row: int): string {
        const timestamp = selection.value(row, ErrorRoles.timestamp) ?? 0;
        let line = timestamp > 0 ? Format.dateTime(timestamp) : "";
        for (const role of [ErrorRoles.errorName, ErrorRoles.triggerDeviceName,
                            ErrorRoles.stationID, ErrorRoles.deviceID])
            line += "\t" + (selection.value(row, role) ?? "");
        return line;
    }

    function copySelection() {
        const rows = selection.rows();
        if (rows.length === 0)
            return;
        pasteboard.put(rows.map(row => lineOf(row)).join("\n"));
        noticed("done", qsTr("%n error(s) copied", "", rows.length));
    }

    /// Asks where to save what the list shows; does nothing when that cannot be done.
    function exportShown() {
        if (files && shown.count > 0)
            exportDialog.ask(qsTr("errors-%1.csv", "date and time").arg(Format.fileStamp(Clock.now)),
                             sheet);
    }

    function reconnectCameras() {
        surface.reconnectDisconnectCameras();
        noticed("done", qsTr("Asked to reconnect all disconnected cameras"));
    }

    function reconnectSubstations() {
        surface.reconnectDisconnectSubstations();
        noticed("done", qsTr("Asked to reconnect all disconnected sub-stations"));
    }

    Clipboard {
        id: pasteboard

        host: pane.clipboard
    }

    SnoozeUntilDialog {
        id: snoozeDialog

        onChosen: milliseconds => pane.snoozeUntil(milliseconds)
    }

    ExportDialog {
        id: exportDialog

        files: pane.files
        rowCount: pane.shown.count
        onSaved: (path, count) => pane.noticed("done", Format.fill(
                                                   qsTr("%n error(s) saved as %1", "", count), path))
    }

    ErrorMenu {
        id: contextMenu

        canSnooze: actions.canSnooze
        onSnoozeChosen: seconds => pane.snoozeFor(seconds)
        onSnoozeMomentWanted: pane.askSnoozeMoment()
        onCopyChosen: pane.copySelection()
        onStationChosen: table.requestCurrentStation()
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.line
        spacing: 0

        ErrorActionBar {
            id: actions

            Layout.fillWidth: true
            Layout.margins: Theme.pad
            selection: pane.selection
            shown: pane.shown.count
            total: pane.total.count
            serverConnected: pane.serverConnected
            statesKnown: pane.directory.statesKnown
            canExport: pane.files !== null
            onSnoozeChosen: seconds => pane.snoozeFor(seconds)
            onSnoozeMomentWanted: pane.askSnoozeMoment()
            onCopyChosen: pane.copySelection()
            onExportChosen: pane.exportShown()
            onReconnectCamerasChosen: pane.reconnectCameras()
            onReconnectSubstationsChosen: pane.reconnectSubstations()
        }

        FilterBar {
            id: filterBar

            Layout.fillWidth: true
            Layout.leftMargin: Theme.pad
            Layout.rightMargin: Theme.pad
            Layout.bottomMargin: Theme.pad
            filters: pane.filters
            directory: pane.directory
        }

        FilterNotice {
            Layout.fillWidth: true
            filters: pane.filters
            directory: pane.directory
            hidden: pane.total.count - pane.shown.count
        }

        ErrorTableHeader {
            Layout.fillWidth: true
            columns: table.columns
        }

        ErrorTable {
            id: table

            focus: true
            Layout.fillWidth: true
            Layout.fillHeight: true
            proxy: pane.proxy
            selection: pane.selection
            directory: pane.directory
            onStationRequested: stationID => pane.stationRequested(stationID)
            onMenuRequested: position => contextMenu.popup(table, position)
            onSnoozeRequested: actions.openSnoozeMenu()
            onCopyRequested: pane.copySelection()

            ErrorsEmptyState {
                anchors.centerIn: parent
                width: Math.min(parent.width - 2 * Theme.pad, Theme.em(40))
                visible: pane.shown.count === 0
                serverConnected: pane.serverConnected
                connectionSince: pane.connectionSince
                connectionFailure: pane.connectionFailure
                nextAttempt: pane.nextAttempt
                statesSince: pane.statesSince
                hidden: pane.total.count - pane.shown.count
                snoozed: pane.snoozed
            }
        }
    }

    FocusRing {
        visible: table.activeFocus && table.currentIndex < 0
    }
}
