import QtQuick
import QtQuick.Shapes

/// A line drawing of Icons, as large as a letter or larger.
Shape {
    id: glyph

    /// A name in Icons.paths.
    property string name
    property color color: Theme.text
    property real size: Theme.em(1.3)

    implicitWidth: size
    implicitHeight: size

    ShapePath {
        scale: Qt.size(glyph.size / 24, glyph.size / 24)
        strokeColor: glyph.color
        strokeWidth: Math.max(1.2, glyph.size / 13)
        fillColor: "transparent"
        capStyle: ShapePath.RoundCap
        joinStyle: ShapePath.RoundJoin

        PathSvg {
            path: Icons.paths[glyph.name] ?? ""
        }
    }
}
