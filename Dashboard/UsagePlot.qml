pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes

/// A history of percentages, the newest at the right edge. What is not a number of at least 0 leaves
/// a gap.
Item {
    id: plot

    /// Oldest first.
    property var samples: []
    /// How many samples fill the width.
    property int capacity: 60
    /// In percent; below 0 there is none.
    property real threshold: -1
    property color color: Theme.accent

    readonly property real step: width / Math.max(1, capacity - 1)

    readonly property var lines: {
        const result = [];
        let line = [];
        const first = Math.max(0, samples.length - capacity);
        for (let i = first; i < samples.length; ++i) {
            const sample = samples[i];
            if (typeof sample === "number" && sample >= 0) {
                line.push(Qt.point(xOf(i), yOf(sample)));
            } else if (line.length > 0) {
                result.push(line);
                line = [];
            }
        }
        if (line.length > 0)
            result.push(line);
        return result.map(points => points.length > 1 ? points : dot(points[0]));
    }

    readonly property var areas: lines.map(
        line => [Qt.point(line[0].x, height)].concat(line, [Qt.point(line[line.length - 1].x, height)]))

    function xOf(index: int): real {
        return width - (samples.length - 1 - index) * step;
    }

    function yOf(percentage: real): real {
        return height * (1 - Math.min(100, percentage) / 100);
    }

    function dot(point: point): var {
        return [Qt.point(point.x - 1, point.y), Qt.point(point.x + 1, point.y)];
    }

    implicitHeight: Theme.em(4.5)

    Rectangle {
        anchors.fill: parent
        color: Theme.window
    }

    Repeater {
        model: [25, 50, 75]

        Rectangle {
            required property int modelData

            y: Math.round(plot.height * (1 - modelData / 100))
            width: plot.width
            height: Theme.line
            color: Theme.border
            opacity: 0.6
        }
    }

    Shape {
        anchors.fill: parent
        clip: true

        ShapePath {
            strokeColor: "transparent"
            fillColor: Qt.alpha(plot.color, 0.18)

            PathMultiline {
                paths: plot.areas
            }
        }

        ShapePath {
            strokeColor: plot.color
            strokeWidth: 1.6 * Theme.line
            fillColor: "transparent"
            joinStyle: ShapePath.RoundJoin

            PathMultiline {
                paths: plot.lines
            }
        }
    }

    Shape {
        anchors.fill: parent
        visible: plot.threshold >= 0

        ShapePath {
            strokeColor: Theme.text
            strokeWidth: Theme.line
            strokeStyle: ShapePath.DashLine
            dashPattern: [4, 3]
            fillColor: "transparent"

            PathPolyline {
                path: [Qt.point(0, plot.yOf(plot.threshold)),
                       Qt.point(plot.width, plot.yOf(plot.threshold))]
            }
        }
    }

    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.color: Theme.border
        border.width: Theme.line
    }
}
