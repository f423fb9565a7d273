import QtQuick

/// Why the error list is empty: the server is lost, a filter hides what there is, the states of the
/// devices are not known or have only just come, what there is was snoozed, or all is well.
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
    /// How many errors are snoozed. They are out of the list, but not out of the world.
    property int snoozed: 0

    /// States that have just come are in the list only after a while.
    readonly property int settlingTime: 10000
    readonly property real lastChange: Math.max(connectionSince?.getTime() ?? 0,
                                                statesSince?.getTime() ?? 0)
    readonly property bool settling: !statesSince || Clock.now - lastChange < settlingTime

    readonly property string reason: {
        if (!serverConnected)
            return "lost";
        if (hidden > 0)
            return "filtered";
        if (settling)
            return "settling";
        return snoozed > 0 ? "snoozed" : "well";
    }
    readonly property var glyphs: ({ "filtered": "filter", "settling": "clock",
                                     "snoozed": "snoozed" })

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
    glyph: glyphs[reason] ?? ""
    title: {
        switch (reason) {
        case "lost":
            return qsTr("Server connection lost");
        case "filtered":
            return qsTr("A filter hides %n error(s)", "", hidden);
        case "settling":
            return qsTr("Checking the site");
        case "snoozed":
            return qsTr("%n error(s) snoozed, no others", "", snoozed);
        default:
            return qsTr("No errors");
        }
    }
    detail: {
        switch (reason) {
        case "lost":
            return lostSince + (failure === "" ? "" : "\n" + failure)
                   + (attempt === "" ? "" : "\n" + attempt);
        case "filtered":
            return qsTr("Press Esc to show all errors.");
        case "settling":
            return statesSince ? qsTr("The states of the devices have just come.")
                               : qsTr("The states of the devices are not known yet.");
        case "snoozed":
            return qsTr("What is snoozed may fail still; the page of the snoozes lists it.");
        default:
            return qsTr("All is well: no camera, station or volume reports an error.");
        }
    }
}
