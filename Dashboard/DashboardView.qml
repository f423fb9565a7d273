import QtQuick

/// The health dashboard of a site, shown from the plug-in's surface and from what the host knows
/// about the site.
///
/// Keys: Ctrl+F goes to the text filter, Esc clears the filters, Ctrl+E exports; see also ErrorTable and
/// StationsPane.
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

    /// Writes files for the dashboard, or null, which takes the export away. It offers
    /// `resolve(path)`, the absolute path of a name or path; `exists(path)`; and
    /// `write(path, text)`, which writes a file whole or not at all and returns an empty text or
    /// the reason why that failed.
    property QtObject files: null

    readonly property var knownSince: connectionSince && !isNaN(connectionSince.getTime())
                                      ? connectionSince : undefined

    // What it offers is known only at run time.
    readonly property var surface: plugin

    anchors.fill: parent
    focus: true

    Keys.onEscapePressed: overview.clearFilters()

    Shortcut {
        sequence: "Ctrl+F"
        onActivated: overview.showTextFilter()
    }

    Shortcut {
        sequence: "Ctrl+E"
        onActivated: overview.exportShown()
    }

    StationDirectory {
        id: directory

        stations: root.stations
        errorCounts: root.surface?.stationErrorList ?? []
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

    OverviewPage {
        id: overview

        anchors.top: banner.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        surface: root.surface
        directory: directory
        serverConnected: root.serverConnected
        connectionSince: root.knownSince
        files: root.files
        onNoticed: (status, text) => notice.show(status, text)
    }

    NoticeBar {
        id: notice

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.em(1.5)
    }
}
