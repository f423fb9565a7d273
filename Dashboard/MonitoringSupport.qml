import QtQuick

/// Which stations support system monitoring, asked once for each connection to the server and each
/// time that a station is back: of one that is away the server says that it does not.
QtObject {
    id: support

    required property var surface
    required property StationDirectory directory
    property bool serverConnected: false

    /// Station id to its answer, or to undefined while it is awaited.
    property var answers: ({})
    property int revision: 0
    // Station id to whether it was connected at the last look.
    property var reachable: ({})

    /// True, false, or undefined while nobody knows.
    function answerOf(stationID: string): var {
        return revision >= 0 ? answers[stationID] : undefined;
    }

    /// Asks unless that was done already; what the host does not take on is asked again.
    function ask(stationID: string) {
        if (!serverConnected || stationID === "" || stationID in answers
                || directory.isConnected(stationID) === false)
            return;
        if (surface.checkSupportSystemMonitor(stationID))
            answers[stationID] = undefined;
    }

    function forgetReturned() {
        const before = reachable;
        const now = {};
        let returned = false;
        for (const stationID in directory.byID) {
            now[stationID] = directory.isConnected(stationID) === true;
            if (now[stationID] && !before[stationID]) {
                delete answers[stationID];
                returned = true;
            }
        }
        reachable = now;
        if (returned)
            ++revision;
    }

    Component.onCompleted: forgetReturned()
    onServerConnectedChanged: {
        answers = {};
        ++revision;
    }

    readonly property Connections changes: Connections {
        target: support.directory

        function onByIDChanged() {
            support.forgetReturned();
        }

        function onStatesKnownChanged() {
            support.forgetReturned();
        }
    }

    readonly property Connections replies: Connections {
        target: support.surface

        function onIsSupportSystemMonitor(stationId, isSupport) {
            support.answers[stationId] = isSupport;
            ++support.revision;
        }
    }
}
