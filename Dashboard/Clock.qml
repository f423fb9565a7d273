pragma Singleton

import QtQuick

/// The one timer that keeps every age on the dashboard current.
QtObject {
    id: clock

    /// Milliseconds since the epoch, brought up to date once a second.
    property real now: Date.now()

    /// Whether time goes on by itself.
    property alias running: timer.running

    readonly property Timer timer: Timer {
        id: timer

        interval: 1000
        repeat: true
        running: true
        onTriggered: clock.now = Date.now()
    }
}
