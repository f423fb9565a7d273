pragma Singleton

import QtQuick

/// The line drawings of the dashboard as SVG path data, each in a box of 24 by 24.
QtObject {
    readonly property string slash: " M3 3 L21 21"
    readonly property string disc: "M2 12 a10 10 0 1 0 20 0 a10 10 0 1 0 -20 0 z"

    readonly property var paths: ({
            "cameraOff": "M3 8 h11 v9 h-11 z M14 12 l6 -4 v9 l-6 -4" + slash,
            "stationOff": "M4 4 h16 v7 h-16 z M4 13 h16 v7 h-16 z M7.5 7.5 h1 M7.5 16.5 h1" + slash,
            "volumeOff": "M4 6 a8 3 0 1 0 16 0 a8 3 0 1 0 -16 0 M4 6 v12 a8 3 0 0 0 16 0 v-12" + slash,
            "cpu": "M7 7 h10 v10 h-10 z M10 3 v4 M14 3 v4 M10 17 v4 M14 17 v4"
                   + " M3 10 h4 M3 14 h4 M17 10 h4 M17 14 h4",
            "memory": "M3 7 h18 v8 h-18 z M8 10 v2 M12 10 v2 M16 10 v2 M5 15 v3 M9.6 15 v3"
                      + " M14.3 15 v3 M19 15 v3",
            "network": "M8 20 V5 M4 9 L8 5 L12 9 M16 4 V19 M12 15 L16 19 L20 15",
            "calendar": "M4 6 h16 v14 h-16 z M4 10.5 h16 M8 3 v4 M16 3 v4",
            "station": "M4 4 h16 v7 h-16 z M4 13 h16 v7 h-16 z M7.5 7.5 h1 M7.5 16.5 h1",
            "computer": "M3 5 h18 v11 h-18 z M9 20 h6 M12 16 v4",
            "errors": "M12 4 L21.5 20 H2.5 z M12 10 v4.5 M12 17.4 v0.2",
            "clock": "M3 12 a9 9 0 1 0 18 0 a9 9 0 1 0 -18 0 M12 7 v5 l3.5 2",
            "copy": "M9 9 h11 v12 h-11 z M5 15 h-1 v-12 h11 v2",
            "export": "M12 4 v11 M7.5 10.5 L12 15 L16.5 10.5 M4 20 h16",
            "overview": "M3 4 h18 v16 h-18 z M3 9 h18 M9 9 v11",
            "snoozed": "M3 12 a9 9 0 1 0 18 0 a9 9 0 1 0 -18 0 M9 8.5 h6 l-6 7 h6",
            "log": "M5 3 h14 v18 h-14 z M8.5 8 h7 M8.5 12 h7 M8.5 16 h4",
            "reconnect": "M20 11 a8 8 0 0 0 -14.5 -3.5 M5 3 v5 h5 M4 13 a8 8 0 0 0 14.5 3.5"
                         + " M19 21 v-5 h-5",
            "search": "M4 10.5 a6.5 6.5 0 1 0 13 0 a6.5 6.5 0 1 0 -13 0 M15.5 15.5 L21 21",
            "close": "M6 6 L18 18 M18 6 L6 18",
            "plus": "M12 5 V19 M5 12 H19",
            "minus": "M5 12 H19",
            "right": "M9 6 L15 12 L9 18",
            "down": "M6 9 L12 15 L18 9",
            "filter": "M3 5 h18 l-7 8 v7 l-4 -2 v-5 z",
            "sun": "M8 12 a4 4 0 1 0 8 0 a4 4 0 1 0 -8 0 M12 2.5 v2 M12 19.5 v2 M2.5 12 h2"
                   + " M19.5 12 h2 M5.3 5.3 l1.4 1.4 M17.3 17.3 l1.4 1.4 M5.3 18.7 l1.4 -1.4"
                   + " M17.3 6.7 l1.4 -1.4",
            "moon": "M20 14.5 A8.5 8.5 0 1 1 9.5 4 A7 7 0 0 0 20 14.5 z",
            "check": "M5 12.5 L10 17.5 L19 7.5",
            "question": "M8.8 9 a3.2 3.2 0 1 1 4.6 3 q-1.4 0.8 -1.4 2.2 M12 17.3 v0.2",
            "bang": "M12 10 v4.5 M12 17.4 v0.2",
            "cross": "M8.5 8.5 L15.5 15.5 M15.5 8.5 L8.5 15.5",
            "tick": "M7.8 12.3 L10.8 15.3 L16.2 9.3"
        })

    /// Filled bodies behind the marks of the states.
    readonly property var bodies: ({
            "good": disc,
            "done": disc,
            "critical": "M8 2 h8 l6 6 v8 l-6 6 h-8 l-6 -6 v-8 z",
            "warning": "M12 2.5 L23 21.5 H1 z",
            "unknown": "M4 3 h16 q1 0 1 1 v16 q0 1 -1 1 h-16 q-1 0 -1 -1 v-16 q0 -1 1 -1 z"
        })

    /// What stands on such a body.
    readonly property var marks: ({
            "good": paths.tick,
            "done": paths.tick,
            "critical": paths.cross,
            "warning": paths.bang,
            "unknown": paths.question
        })
}
