import QtQuick

/// Sends snoozes to the server and keeps count of its answers, which do not say what they answer.
QtObject {
    id: requests

    required property var surface
    property bool serverConnected: true

    property int sent: 0
    property int confirmed: 0
    property int refused: 0
    /// How many were on their way when the server went; it may have set them.
    property int lost: 0
    /// How many the host did not take on.
    property int unsent: 0
    readonly property int pending: Math.max(0, sent - confirmed - refused - lost)

    /// Something about the numbers changed.
    signal updated

    /// How many stayed without an answer, for too long or for ever.
    readonly property int unanswered: lost + (patience.running ? 0 : pending)

    /// "done", "critical", or "unknown" while answers are awaited.
    readonly property string status: refused + unsent + unanswered > 0
                                     ? "critical" : pending > 0 ? "unknown" : "done"

    /// Where the requests stand, in words.
    readonly property string summary: {
        const parts = [];
        if (confirmed > 0)
            parts.push(qsTr("%n error(s) snoozed", "", confirmed));
        if (refused > 0)
            parts.push(qsTr("The server refused %n snooze(s)", "", refused));
        if (unsent > 0)
            parts.push(qsTr("%n snooze(s) could not be sent", "", unsent));
        if (unanswered > 0)
            parts.push(qsTr("No answer to %n snooze(s)", "", unanswered));
        if (pending > 0 && patience.running)
            parts.push(qsTr("Waiting for the answer to %n snooze(s)", "", pending));
        return parts.join(" · ");
    }

    /// Asks to snooze each of @p nodes, a list of {nodeID, type}, until @p seconds since the epoch.
    /// Returns those that the host took on.
    function send(nodes: var, seconds: real): var {
        if (!patience.running)
            forget();
        const taken = nodes.filter(node => surface.setSnooze(node.nodeID, seconds, node.type));
        sent += taken.length;
        unsent += nodes.length - taken.length;
        if (pending > 0)
            patience.restart();
        updated();
        return taken;
    }

    function forget() {
        sent = 0;
        confirmed = 0;
        refused = 0;
        lost = 0;
        unsent = 0;
    }

    function take(success: bool) {
        if (pending === 0) {
            forget();
            sent = 1;
        }
        if (success)
            ++confirmed;
        else if (serverConnected)
            ++refused;
        else
            ++lost;
        patience.running = pending > 0;
        updated();
    }

    readonly property Timer patience: Timer {
        id: patience

        interval: 30000
        onTriggered: requests.updated()
    }

    readonly property Connections answers: Connections {
        target: requests.surface

        function onSetSnoozeResponse(success) {
            requests.take(success);
        }
    }
}
