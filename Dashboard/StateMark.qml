import QtQuick
import QtQuick.Shapes

/// A state told by its outline as well as its colour: a disc with a tick for "good", an octagon
/// with a cross for "critical", a triangle for "warning" and a square with a question mark for
/// "unknown". What the user did here is "done", with the tick but not in green, which is kept for what
/// is well at the site.
Shape {
    id: mark

    property string status: "unknown"
    property real size: Theme.em(1.3)

    implicitWidth: size
    implicitHeight: size

    ShapePath {
        scale: Qt.size(mark.size / 24, mark.size / 24)
        strokeColor: "transparent"
        fillColor: Theme.stateColor(mark.status)

        PathSvg {
            path: Icons.bodies[mark.status] ?? ""
        }
    }

    ShapePath {
        scale: Qt.size(mark.size / 24, mark.size / 24)
        strokeColor: Theme.onStatus
        strokeWidth: Math.max(1.5, mark.size / 10)
        fillColor: "transparent"
        capStyle: ShapePath.RoundCap
        joinStyle: ShapePath.RoundJoin

        PathSvg {
            path: Icons.marks[mark.status] ?? ""
        }
    }
}
