pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic

/// A number to type or to step.
SpinBox {
    id: box

    /// How many digits are shown at least.
    property int digits: 2

    editable: true
    implicitHeight: Theme.controlHeight
    implicitWidth: Theme.em(digits * 0.75 + 3.6)
    leftPadding: Theme.em(1.5)
    rightPadding: Theme.em(1.5)
    topPadding: 0
    bottomPadding: 0
    font.pixelSize: Theme.normalFont
    textFromValue: value => String(value).padStart(digits, "0")
    valueFromText: text => parseInt(text, 10)

    contentItem: TextInput {
        text: box.displayText
        font: box.font
        color: Theme.text
        selectionColor: Theme.accent
        selectedTextColor: Theme.onStatus
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        validator: box.validator
        inputMethodHints: Qt.ImhDigitsOnly
        selectByMouse: true
    }

    component Step: Rectangle {
        property alias glyph: drawing.name
        property bool hovered: false
        property bool pressed: false

        implicitWidth: Theme.em(1.5)
        implicitHeight: box.height
        radius: Theme.radius
        color: pressed ? Theme.selection : hovered ? Theme.hover : "transparent"

        Glyph {
            id: drawing

            anchors.centerIn: parent
            size: Theme.em(0.8)
        }
    }

    up.indicator: Step {
        x: box.width - width
        glyph: "plus"
        hovered: box.up.hovered
        pressed: box.up.pressed
    }

    down.indicator: Step {
        glyph: "minus"
        hovered: box.down.hovered
        pressed: box.down.pressed
    }

    background: Rectangle {
        radius: Theme.radius
        color: Theme.window
        border.color: Theme.outline
        border.width: Theme.line
    }

    FocusRing {
        visible: box.activeFocus
    }
}
