import QtQuick

/// Why the error list is empty: the server is lost, a filter hides what there is, the site has only
/// just been connected, or all is well.
EmptyState {
    id: state

    property bool serverConnected: false
    property var connectionSince
    property int hidden: 0

    /// A fresh connection knows the state of the devices only after a while.
    readonly property int settlingTime: 10000
    readonly property bool settling: connectionSince !== undefined && connectionSince !== null
                                     && Clock.now - connectionSince.getTime() < settlingTime

    readonly property string reason: !serverConnected ? "lost"
                                                      : hidden > 0 ? "filtered"
                                                                   : settling ? "settling" : "well"

    status: reason === "well" ? "good" : reason === "lost" ? "critical" : "unknown"
    glyph: reason === "filtered" ? "filter" : reason === "settling" ? "clock" : ""
    title: {
        switch (reason) {
        case "lost":
            return qsTr("Server connection lost");
        case "filtered":
            return qsTr("A filter hides %n error(s)", "", hidden);
        case "settling":
            return qsTr("Checking the site");
        default:
            return qsTr("No errors");
        }
    }
    detail: {
        switch (reason) {
        case "lost":
            return connectionSince ? qsTr("Nothing is known about the site since %1.")
                                     .arg(Format.dateTime(connectionSince.getTime()))
                                   : qsTr("Nothing is known about the site.");
        case "filtered":
            return qsTr("Press Esc to show all errors.");
        case "settling":
            return qsTr("The server has just been connected; the state of the devices follows.");
        default:
            return qsTr("All is well: no camera, station or volume reports an error.");
        }
    }
}
