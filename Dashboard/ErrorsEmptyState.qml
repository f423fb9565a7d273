import QtQuick

/// Why the error list is empty: the server is lost, a filter hides what there is, the states of the
/// devices are not known or have only just come, or all is well.
EmptyState {
    id: state

    property bool serverConnected: false
    property var connectionSince
    /// Why there is no connection; empty when nobody knows.
    property string connectionFailure
    /// When the host tries to connect again: a Date, or undefined.
    property var nextAttempt
    /// Since when the states of the devices have been known: a Date, or undefined.
    property var statesSince
    property int hidden: 0

    /// States that have just come are in the list only after a while.
    readonly property int settlingTime: 10000
    readonly property real lastChange: Math.max(connectionSince?.getTime() ?? 0,
                                                statesSince?.getTime() ?? 0)
    readonly property bool settling: !statesSince || Clock.now - lastChange < settlingTime

    readonly property string reason: !serverConnected ? "lost"
                                                      : hidden > 0 ? "filtered"
                                                                   : settling ? "settling" : "well"

    readonly property string lostSince: connectionSince
                                        ? qsTr("Nothing is known about the site since %1.")
                                          .arg(Format.dateTime(connectionSince.getTime()))
                                        : qsTr("Nothing is known about the site.")
    readonly property string failure: connectionFailure === ""
                                      ? "" : Format.fill(qsTr("Reason: %1"), connectionFailure)
    readonly property string attempt: {
        if (!nextAttempt)
            return "";
        const pause = (nextAttempt.getTime() - Clock.now) / 1000;
        return pause > 0 ? qsTr("Next try in %1").arg(Format.duration(Math.ceil(pause)))
                         : qsTr("Trying to connect")
    }

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
            return [lostSince, failure, attempt].filter(line => line !== "").join("\n");
        case "filtered":
            return qsTr("Press Esc to show all errors.");
        case "settling":
            return statesSince ? qsTr("The states of the devices have just come.")
                               : qsTr("The states of the devices are not known yet.");
        default:
            return qsTr("All is well: no camera, station or volume reports an error.");
        }
    }
}
