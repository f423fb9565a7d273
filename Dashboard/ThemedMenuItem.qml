import QtQuick
import QtQuick.Controls.Basic

/// One line of a ThemedMenu.
MenuItem {
    id: item

    implicitHeight: Theme.controlHeight
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    leftPadding: Theme.pad
    rightPadding: subMenu ? Theme.em(2) : Theme.pad
    Accessible.name: text

    contentItem: PlainLabel {
        text: item.text
        font.pixelSize: Theme.normalFont
        color: item.enabled ? Theme.text : Theme.disabledText
    }

    arrow: Glyph {
        x: item.width - width - Theme.gap
        y: (item.height - height) / 2
        visible: item.subMenu !== null
        size: Theme.em(0.8)
        name: "right"
    }

    background: Rectangle {
        color: item.highlighted ? Theme.selection : "transparent"
    }
}
