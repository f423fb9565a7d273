import QtQuick
import QtQuick.Layouts

/// The health dashboard of a site, shown from the plug-in's surface and from what the host knows
/// about the site.
FocusScope {
    id: root

    /// The plug-in; not owned.
    required property QtObject plugin
    property string siteName
    property bool serverConnected: false
    /// Since when serverConnected has its value: a Date, or undefined when nobody knows.
    property var connectionSince
    /// List of {stationID, name, parentID, connected}; parentID is empty for a top-level station.
    property var stations: []

    // Its members are known only at run time.
    readonly property var surface: plugin

    anchors.fill: parent
    focus: true

    StationDirectory {
        id: directory

        stations: root.stations
        errorCounts: root.surface?.stationErrorList ?? []
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.window
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Theme.gap

        DashboardHeader {
            Layout.fillWidth: true
            siteName: root.siteName
            serverConnected: root.serverConnected
            connectionSince: root.connectionSince
        }

        ErrorsPane {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.margins: Theme.gap
            surface: root.surface
            directory: directory
            serverConnected: root.serverConnected
            connectionSince: root.connectionSince
        }
    }
}
