import QtQuick

/// Which stations support system monitoring, asked once for each connection to the server.
QtObject {
    id: support

    required property var surface
    property bool serverConnected: false

    /// Station id to its answer, or to undefined while it is awaited.
    property var answers: ({})
    property int revision: 0

    /// True, false, or undefined while nobody knows.
    function answerOf(stationID: string): var {
        return revision >= 0 ? answers[stationID] : undefined;
    }

    /// Asks unless that was done already; what the host does not take on is asked again.
    function ask(stationID: string) {
        if (!serverConnected || stationID === "" || stationID in answers)
            return;
        if (surface.checkSupportSystemMonitor(stationID))
            answers[stationID] = undefined;
    }

    onServerConnectedChanged: {
        answers = {};
        ++revision;
    }

    readonly property Connections replies: Connections {
        target: support.surface

        function onIsSupportSystemMonitor(stationId, isSupport) {
            support.answers[stationId] = isSupport;
            ++support.revision;
        }
    }
}
