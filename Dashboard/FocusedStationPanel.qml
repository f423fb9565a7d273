pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts

/// CPU, memory and network usage of the station in focus.
Panel {
    id: panel

    required property var surface
    required property StationDirectory directory
    required property MonitoringSupport support
    property bool serverConnected: false

    readonly property string stationID: surface?.focusStationResource ?? ""
    readonly property ReportCounter reports: ReportCounter {
        surface: panel.surface
    }

    /// Why there is no usage to show; empty when there is.
    readonly property string obstacle: {
        if (stationID === "")
            return qsTr("Choose a station to see its usage.");
        if (!serverConnected)
            return qsTr("Nothing is known while the server is away.");
        if (reports.count > 0)
            return "";
        if (support.answerOf(stationID) === false)
            return qsTr("This station does not support monitoring.");
        return qsTr("Waiting for the first report.");
    }

    /// A report that is older than this no longer tells how the station is.
    readonly property int staleAfter: 10000
    readonly property bool stale: reports.lastTime > 0 && Clock.now - reports.lastTime > staleAfter

    // The plots share the height that the texts leave, as long as they stay legible.
    readonly property real plotHeight: {
        const share = flick.height / Math.max(1, repeater.count) - Theme.em(4.5);
        return Math.min(Theme.em(14), Math.max(Theme.em(4), share));
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.pad + Theme.line
        spacing: Theme.gap

        PaneTitle {
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.controlHeight
            text: qsTr("Usage")
            remark: panel.directory.nameOf(panel.stationID)
        }

        RowLayout {
            Layout.fillWidth: true
            visible: panel.obstacle === "" && panel.stale
            spacing: Theme.gap

            StateMark {
                status: "unknown"
            }

            PlainLabel {
                Layout.fillWidth: true
                text: qsTr("No report for %1").arg(Format.age(panel.reports.lastTime, Clock.now))
                font.weight: Font.DemiBold
            }
        }

        Text {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: panel.obstacle !== ""
            text: panel.obstacle
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            color: Theme.mutedText
            font.pixelSize: Theme.normalFont
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Flickable {
            id: flick

            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: panel.obstacle === ""
            clip: true
            contentHeight: cards.height
            boundsBehavior: Flickable.StopAtBounds
            activeFocusOnTab: contentHeight > height
            Accessible.role: Accessible.Pane
            Accessible.name: qsTr("Usage of %1").arg(panel.directory.nameOf(panel.stationID))

            ScrollBar.vertical: ThemedScrollBar {}

            Keys.onUpPressed: contentY = Math.max(0, contentY - Theme.em(3))
            Keys.onDownPressed: {
                contentY = Math.min(Math.max(0, contentHeight - height), contentY + Theme.em(3));
            }

            Column {
                id: cards

                width: flick.width - (flick.contentHeight > flick.height ? Theme.em(1) : 0)
                spacing: Theme.em(1)

                Repeater {
                    id: repeater

                    model: panel.reports.model

                    UsageCard {
                        required property int index

                        width: cards.width
                        viewTop: flick.contentY - y
                        viewBottom: viewTop + flick.height
                        plotHeight: panel.plotHeight
                        reported: panel.reports.entriesOf(index, repeater.count)
                    }
                }
            }
        }
    }

    FocusRing {
        visible: flick.activeFocus
    }
}
