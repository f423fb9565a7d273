pragma Singleton

import QtQuick

/// Colours, sizes and type of the dashboard.
///
/// Everything is measured in ems of the application font, so a larger font enlarges the whole
/// dashboard. Colours never carry a meaning alone: a shape and a word stand beside them. Texts have a
/// contrast of 4.5 and marks one of 3, at least, to every ground that they stand on.
QtObject {
    id: theme

    /// Whether the dark palette is shown; the host may set it.
    property bool dark: true

    /// How many times as large as in the application font everything is shown.
    property real zoom: 1
    readonly property var zoomLevels: [0.8, 0.9, 1, 1.1, 1.25, 1.5, 1.75, 2, 2.5, 3]

    /// An em in pixels.
    readonly property real base: Math.max(10, metrics.font.pixelSize * zoom)

    readonly property real gap: em(0.5)
    readonly property real pad: em(0.75)
    readonly property real radius: em(0.3)
    readonly property real line: Math.max(1, Math.round(base / 14))
    readonly property real controlHeight: em(2.2)
    readonly property real rowHeight: em(2.4)

    readonly property real smallFont: em(0.88)
    readonly property real normalFont: em(1)
    readonly property real largeFont: em(1.3)
    readonly property real hugeFont: em(1.9)

    readonly property color window: dark ? "#11161b" : "#e9edf1"
    readonly property color surface: dark ? "#1a2128" : "#ffffff"
    readonly property color raised: dark ? "#242d36" : "#f2f5f8"
    readonly property color hover: dark ? "#2c3742" : "#e4eaf0"
    readonly property color border: dark ? "#36424e" : "#c3ccd6"
    readonly property color outline: dark ? "#788a9c" : "#74828f"
    readonly property color text: dark ? "#e9eef3" : "#16202a"
    readonly property color mutedText: dark ? "#a5b4c3" : "#4c5a68"
    readonly property color disabledText: dark ? "#667584" : "#8895a2"
    readonly property color accent: dark ? "#5aaeff" : "#0a5dc2"
    readonly property color selection: dark ? "#1d3d5c" : "#d3e6fb"

    readonly property color critical: dark ? "#ff7e75" : "#b3241b"
    readonly property color warning: dark ? "#ffbd55" : "#8a5300"
    readonly property color good: dark ? "#56c990" : "#16693c"
    readonly property color unknown: dark ? "#a5b4c3" : "#566472"
    readonly property color onStatus: dark ? "#11161b" : "#ffffff"
    readonly property color criticalGround: dark ? "#3a1c1b" : "#fbe4e2"
    readonly property color warningGround: dark ? "#3a2d14" : "#fdf0d5"

    /// Shows everything larger by @p steps, or smaller when they are negative.
    function zoomBy(steps: int) {
        const reached = zoomLevels.findIndex(level => level >= zoom - 0.01);
        const wanted = (reached < 0 ? zoomLevels.length - 1 : reached) + steps;
        zoom = zoomLevels[Math.max(0, Math.min(zoomLevels.length - 1, wanted))];
    }

    /// A number of ems in whole pixels.
    function em(count: real): real {
        return Math.round(base * count);
    }

    /// The colour of a state: "critical", "warning", "good", "unknown" or "done".
    function stateColor(state: string): color {
        switch (state) {
        case "critical":
            return critical;
        case "warning":
            return warning;
        case "good":
            return good;
        case "done":
            return accent;
        default:
            return unknown;
        }
    }

    readonly property FontMetrics metrics: FontMetrics {
        font: Application.font
    }
}
