pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

/// The stations of the site. Choosing one shows its usage.
///
/// Keys: arrows, Page, Home and End move; Return or Space choose; F shows only the station's errors.
Panel {
    id: pane

    required property StationDirectory directory
    required property MonitoringSupport support
    property bool serverConnected: false
    /// Id of the station whose usage is shown.
    property string focusedStation

    /// The user chose a station.
    signal chosen(stationID: string)
    /// The user wants to see the errors of a station only.
    signal filterRequested(stationID: string)

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.line
        spacing: 0

        PaneTitle {
            Layout.fillWidth: true
            Layout.margins: Theme.pad
            Layout.preferredHeight: Theme.controlHeight
            text: qsTr("Stations")
            remark: list.count
        }

        ThemedList {
            id: list

            Layout.fillWidth: true
            Layout.fillHeight: true
            rows: pane.directory.rows
            keyOf: row => row.stationID
            rowHeight: Theme.em(3.8)
            firstRow: rows.findIndex(row => row.stationID === pane.focusedStation)
            Accessible.name: qsTr("Stations")

            function stationAt(row: int): string {
                return rows[row]?.stationID ?? "";
            }

            Keys.onReturnPressed: pane.chosen(stationAt(currentIndex))
            Keys.onEnterPressed: pane.chosen(stationAt(currentIndex))
            Keys.onSpacePressed: pane.chosen(stationAt(currentIndex))
            Keys.onPressed: event => {
                if (event.key === Qt.Key_F && event.modifiers === Qt.NoModifier) {
                    pane.filterRequested(stationAt(currentIndex));
                    event.accepted = true;
                }
            }

            delegate: StationRow {
                id: row

                width: list.width
                directory: pane.directory
                support: pane.support
                serverConnected: pane.serverConnected
                focused: stationID === pane.focusedStation && stationID !== ""
                viewTop: list.contentY
                viewBottom: list.contentY + list.height
                current: ListView.isCurrentItem && list.activeFocus
                onChosen: {
                    list.forceActiveFocus(Qt.MouseFocusReason);
                    list.currentIndex = row.index;
                    pane.chosen(row.stationID);
                }
                onFilterRequested: pane.filterRequested(row.stationID)
            }

            PlainLabel {
                anchors.centerIn: parent
                visible: list.count === 0
                text: qsTr("No stations")
                color: Theme.mutedText
            }
        }
    }

    FocusRing {
        visible: list.activeFocus && list.count === 0
    }
}
