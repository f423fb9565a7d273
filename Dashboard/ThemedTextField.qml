import QtQuick
import QtQuick.Controls.Basic

/// A line to type in.
TextField {
    id: field

    implicitHeight: Theme.controlHeight
    leftPadding: Theme.gap
    rightPadding: Theme.gap
    topPadding: 0
    bottomPadding: 0
    verticalAlignment: TextInput.AlignVCenter
    activeFocusOnTab: true
    selectByMouse: true
    color: Theme.text
    placeholderTextColor: Theme.mutedText
    selectionColor: Theme.accent
    selectedTextColor: Theme.onStatus
    font.pixelSize: Theme.normalFont

    Accessible.name: placeholderText

    background: Rectangle {
        radius: Theme.radius
        color: Theme.window
        border.color: Theme.outline
        border.width: Theme.line
    }

    FocusRing {
        visible: field.activeFocus
    }
}
