pragma Singleton

import QtQuick

/// The one timer that keeps every age on the dashboard current.
QtObject {
    id: clock

    /// Milliseconds since the epoch, brought up to date once a second.
    property real now: Date.now()

    /// The time of the site's server, by which snoozes end: now × serverRate + serverOffset. It is
    /// that of this machine unless the host says otherwise.
    readonly property real serverNow: now * serverRate + serverOffset
    property real serverRate: 1
    property real serverOffset: 0

    /// Whether time goes on by itself.
    property alias running: timer.running

    readonly property Timer timer: Timer {
        id: timer

        interval: 1000
        repeat: true
        running: true
        onTriggered: clock.refresh()
    }

    /// Brings the time up to date at once, unless it stands still.
    function refresh() {
        if (running)
            now = Date.now();
    }
}
