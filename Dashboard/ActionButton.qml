import QtQuick
import QtQuick.Controls.Basic

/// A button with a drawing, a text or both.
Button {
    id: button

    /// Name of a drawing in Icons, or nothing.
    property string glyph
    /// What a pointer that rests here is told, or nothing.
    property string hint
    /// Whether a small arrow promises a menu.
    property bool opensMenu: false
    /// Whether the button is filled, as what a dialog is there for is when it is highlighted.
    readonly property bool filled: highlighted && enabled && !down
    property color textColor: filled ? Theme.onStatus : enabled ? Theme.text : Theme.disabledText

    implicitHeight: Theme.controlHeight
    implicitWidth: Math.max(implicitHeight, implicitContentWidth + leftPadding + rightPadding)
    leftPadding: text === "" ? Theme.em(0.4) : Theme.em(0.7)
    rightPadding: leftPadding
    topPadding: 0
    bottomPadding: 0
    activeFocusOnTab: true
    font.pixelSize: Theme.normalFont

    Accessible.name: text !== "" ? text : hint
    Accessible.description: hint

    contentItem: ButtonFace {
        text: button.text
        font: button.font
        color: button.textColor
        glyph: button.glyph
        opensMenu: button.opensMenu
    }

    background: Rectangle {
        radius: Theme.radius
        color: {
            if (button.filled)
                return button.hovered ? Qt.lighter(Theme.accent, 1.1) : Theme.accent;
            if (button.down || button.checked)
                return Theme.selection;
            return button.hovered && button.enabled ? Theme.hover : Theme.raised;
        }
        opacity: button.flat && !button.hovered && !button.down ? 0 : 1
        border.color: button.enabled ? Theme.outline : Theme.border
        border.width: button.flat ? 0 : Theme.line
    }

    FocusRing {
        // Around a filled button it would not be seen.
        anchors.margins: button.filled ? -3 * Theme.line : -Theme.line
        visible: button.visualFocus
    }

    Tip {
        text: button.hint
        visible: button.hint !== "" && (button.hovered || button.visualFocus) && !button.down
    }
}
