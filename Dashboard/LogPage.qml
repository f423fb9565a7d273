pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

/// The page with the host's operational log, newest first. It is read while it is visible.
///
/// Keys: arrows, Page, Home and End move.
Panel {
    id: page

    /// See DashboardView.operationalLog; null when the host offers none.
    required property var log
    /// See DashboardView.files.
    property var files: null

    /// Something happened that the user should read.
    signal noticed(status: string, text: string)

    readonly property int portion: 500
    /// How many entries are read at most.
    property int limit: portion
    /// What name or details contain; empty for every entry.
    property string text
    /// Whether there are entries beyond the limit.
    property bool hasMore: false
    /// Whether the log has changed since it was read.
    property bool outdated: true

    readonly property LogSheet sheet: LogSheet {}

    function focusTextFilter() {
        field.start();
    }

    function clearFilters() {
        text = "";
        field.reset();
    }

    function exportShown() {
        if (files && sheet.entries.length > 0)
            dialog.ask(qsTr("log-%1.csv", "date and time").arg(Format.fileStamp(Clock.now)), sheet);
    }

    function showMore() {
        limit += portion;
    }

    function refresh() {
        outdated = true;
        burst.start();
    }

    function read() {
        if (!visible || !outdated)
            return;
        const found = log ? log.newest(limit + 1, text) : [];
        hasMore = found.length > limit;
        sheet.entries = found.slice(0, limit);
        outdated = false;
    }

    onVisibleChanged: read()
    onLogChanged: refresh()
    onTextChanged: {
        list.contentY = 0;
        limit = portion;
        refresh();
    }
    onLimitChanged: refresh()

    // Thousands of entries may be added at once.
    Timer {
        id: burst

        interval: 0
        onTriggered: page.read()
    }

    Connections {
        target: page.log
        ignoreUnknownSignals: true

        function onChanged() {
            page.refresh();
        }
    }

    ExportDialog {
        id: dialog

        files: page.files
        rowCount: page.sheet.entries.length
        onSaved: (path, count) => page.noticed("done", Format.fill(
                                                   qsTr("%n entries saved as %1", "", count), path))
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.line
        spacing: 0

        RowLayout {
            Layout.fillWidth: true
            Layout.margins: Theme.pad
            spacing: Theme.gap

            PaneTitle {
                Layout.fillWidth: true
                Layout.preferredHeight: Theme.controlHeight
                text: qsTr("Operational log")
                remark: !page.log ? "" : page.hasMore
                                    ? qsTr("newest %1", "number of entries").arg(page.limit)
                                    : page.sheet.entries.length
            }

            ActionButton {
                visible: page.files !== null && page.log !== null
                text: page.width < Theme.em(44) ? "" : qsTr("Export")
                glyph: "export"
                enabled: page.sheet.entries.length > 0
                hint: qsTr("Save the entries shown as a CSV file (Ctrl+E)")
                onClicked: page.exportShown()
            }
        }

        SearchField {
            id: field

            Layout.fillWidth: true
            Layout.leftMargin: Theme.pad
            Layout.rightMargin: Theme.pad
            Layout.bottomMargin: Theme.pad
            visible: page.log !== null
            placeholderText: qsTr("Search the log")
            applied: page.text
            onSearched: text => page.text = text
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.line
            color: Theme.border
        }

        ThemedList {
            id: list

            readonly property bool narrow: width < Theme.em(60)

            Layout.fillWidth: true
            Layout.fillHeight: true
            rows: page.sheet.entries
            keyOf: entry => entry.time + entry.name + page.sheet.details(entry)
            rowHeight: narrow ? Theme.em(4.6) : Theme.rowHeight
            Accessible.name: qsTr("Operational log")

            delegate: LogRow {
                id: row

                width: list.width
                sheet: page.sheet
                narrow: list.narrow
                current: ListView.isCurrentItem && list.activeFocus
                onPressed: {
                    list.forceActiveFocus(Qt.MouseFocusReason);
                    list.currentIndex = row.index;
                }
            }

            EmptyState {
                anchors.centerIn: parent
                width: Math.min(parent.width - 2 * Theme.pad, Theme.em(40))
                visible: list.count === 0
                status: "unknown"
                glyph: page.log && page.text !== "" ? "filter" : "log"
                title: !page.log ? qsTr("No operational log")
                                 : page.text !== "" ? qsTr("Nothing matches “%1”").arg(page.text)
                                                    : qsTr("The log is empty")
                detail: !page.log ? qsTr("This program offers the dashboard no operational log.")
                                  : page.text !== "" ? qsTr("Press Esc to show all entries.")
                                                     : qsTr("What operators do stands here.")
            }
        }

        ActionButton {
            Layout.alignment: Qt.AlignHCenter
            Layout.margins: Theme.gap
            visible: page.hasMore
            text: qsTr("Show %1 more", "number of entries").arg(page.portion)
            glyph: "down"
            onClicked: page.showMore()
        }
    }

    FocusRing {
        visible: list.activeFocus && list.count === 0
    }
}
