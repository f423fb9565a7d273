pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts

// A page of one's own on what the plug-in offers: who fails, how the station in focus does, and a
// button that snoozes the newest disconnection for an hour. docs/own-page.md explains it.
Rectangle {
    id: page

    // The host hands these in; a host that knows less leaves them out.
    required property QtObject plugin
    property string siteName
    property bool serverConnected: false
    property var connectionSince
    property var stations: []

    // QML sees the plug-in's members only at run time.
    readonly property var surface: plugin

    // One proxy for this page, made once. It sorts newest first; its filters are its own.
    readonly property var errors: surface.getSystemErrorSortFilterModel(page)

    readonly property int cameraDisconnected: 3
    readonly property int stationDisconnected: 4
    readonly property int stationIDRole: 257
    readonly property int deviceIDRole: 258
    readonly property int errorTypeRole: 259

    property string answer

    // The first row that the server can snooze, or -1.
    function newestDisconnection(): int {
        for (let row = 0; row < errors.rowCount(); ++row) {
            const type = errors.data(errors.index(row, 0), errorTypeRole);
            if (type === cameraDisconnected || type === stationDisconnected)
                return row;
        }
        return -1;
    }

    function snoozeNewest() {
        const row = newestDisconnection();
        if (row < 0)
            return;
        const index = errors.index(row, 0);
        const type = errors.data(index, errorTypeRole);
        const role = type === cameraDisconnected ? deviceIDRole : stationIDRole;
        const end = Math.floor(Date.now() / 1000) + 3600;
        answer = surface.setSnooze(errors.data(index, role), end, type) ? "asked" : "not sent";
    }

    anchors.fill: parent
    color: "#ffffff"

    // Signals whose answers arrive later.
    Connections {
        target: page.surface

        function onSetSnoozeResponse(success) {
            page.answer = success ? "snoozed" : "refused";
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 12

        Label {
            textFormat: Text.PlainText
            text: page.serverConnected ? page.siteName : page.siteName + ": server lost"
            font.bold: true
        }

        // The counts by station come as a list of maps.
        Repeater {
            model: page.surface.stationErrorList

            Button {
                id: station

                required property var modelData

                contentItem: Label {
                    textFormat: Text.PlainText
                    text: station.text
                }
                text: modelData.stationID + ": " + modelData.errorNumber
                onClicked: page.surface.focusStationResource = modelData.stationID
            }
        }

        ListView {
            objectName: "errors"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            model: page.errors

            // Roles are the required properties of the same names.
            delegate: Label {
                required property string errorNameRole
                required property string triggerDeviceNameRole
                required property double timestampRole

                textFormat: Text.PlainText
                text: Qt.formatDateTime(new Date(timestampRole), "hh:mm:ss t") + "  "
                      + errorNameRole + ": " + triggerDeviceNameRole
            }
        }

        // Three rows or more for the station in focus, each with its last sixty samples.
        Repeater {
            model: page.surface.getSystemResourceModel()

            Label {
                required property string titleRole
                required property string subtitleRole
                required property var usageListRole

                objectName: "usage"
                textFormat: Text.PlainText
                text: titleRole + " " + subtitleRole + " "
                      + Math.round(usageListRole[usageListRole.length - 1]) + "%"
            }
        }

        Button {
            objectName: "snooze"
            text: "Snooze the newest disconnection " + page.answer
            onClicked: page.snoozeNewest()
        }
    }
}
