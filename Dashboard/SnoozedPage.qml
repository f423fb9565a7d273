pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

/// The page with what is snoozed: first what fails still although its snooze is over.
///
/// Keys: arrows, Page, Home and End move; Return asks for the station of the row.
Panel {
    id: page

    required property SnoozeBook book
    required property StationDirectory directory
    property bool serverConnected: false
    property var connectionSince

    /// The user wants to see a station.
    signal stationRequested(stationID: string)

    function requestStation(row: int) {
        if (row >= 0 && row < book.rows.length)
            stationRequested(book.rows[row].stationID);
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.line
        spacing: 0

        PaneTitle {
            Layout.fillWidth: true
            Layout.margins: Theme.pad
            Layout.preferredHeight: Theme.controlHeight
            text: qsTr("Snoozed")
            remark: {
                const parts = [String(page.book.rows.length)];
                if (page.book.failingCount > 0)
                    parts.push(qsTr("%n still failing", "", page.book.failingCount));
                if (page.book.askedCount > 0)
                    parts.push(qsTr("%n not confirmed", "", page.book.askedCount));
                return parts.join(" · ");
            }
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: Theme.pad
            Layout.rightMargin: Theme.pad
            Layout.bottomMargin: Theme.pad
            visible: note.text !== ""
            spacing: Theme.gap

            StateMark {
                status: page.serverConnected ? "unknown" : "critical"
            }

            Text {
                id: note

                Layout.fillWidth: true
                text: {
                    if (!page.serverConnected && page.connectionSince)
                        return qsTr("As last known: nothing is known since %1.")
                               .arg(Format.dateTime(page.connectionSince.getTime()));
                    if (!page.serverConnected)
                        return qsTr("As last known: the server is away.");
                    return page.book.isTold ? "" : qsTr("Only what was snoozed here is listed; what"
                                                        + " others snoozed is not known.");
                }
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                color: Theme.mutedText
                font.pixelSize: Theme.normalFont
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.line
            color: Theme.border
        }

        ThemedList {
            id: list

            readonly property bool narrow: width < Theme.em(56)

            Layout.fillWidth: true
            Layout.fillHeight: true
            rows: page.book.rows
            keyOf: row => row.type + "_" + row.nodeID
            rowHeight: Theme.em(narrow ? 5 : 3.6)
            Accessible.name: qsTr("Snoozed")
            Keys.onReturnPressed: page.requestStation(currentIndex)
            Keys.onEnterPressed: page.requestStation(currentIndex)

            delegate: SnoozedRow {
                id: row

                width: list.width
                directory: page.directory
                narrow: list.narrow
                viewTop: list.contentY
                viewBottom: list.contentY + list.height
                current: ListView.isCurrentItem && list.activeFocus
                onPressed: {
                    list.forceActiveFocus(Qt.MouseFocusReason);
                    list.currentIndex = row.index;
                }
                onDoubleClicked: page.requestStation(row.index)
            }

            EmptyState {
                anchors.centerIn: parent
                width: Math.min(parent.width - 2 * Theme.pad, Theme.em(40))
                visible: list.count === 0
                status: "unknown"
                glyph: "snoozed"
                title: page.serverConnected ? qsTr("Nothing is snoozed")
                                            : qsTr("No snooze is known")
                detail: qsTr("Errors that are snoozed stand here until they come back.")
            }
        }
    }

    FocusRing {
        visible: list.activeFocus && list.count === 0
    }
}
