import QtQuick
import QtQuick.Controls.Basic

/// One line of a ThemedMenu.
MenuItem {
    id: item

    implicitHeight: Theme.controlHeight
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    leftPadding: Theme.pad
    rightPadding: Theme.pad
    Accessible.name: text

    contentItem: PlainLabel {
        text: item.text
        font.pixelSize: Theme.normalFont
        color: item.enabled ? Theme.text : Theme.disabledText
    }

    background: Rectangle {
        color: item.highlighted ? Theme.selection : "transparent"
    }
}
