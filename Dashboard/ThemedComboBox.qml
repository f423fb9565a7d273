pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic

/// A choice of one from a list that opens.
ComboBox {
    id: box

    implicitHeight: Theme.controlHeight
    activeFocusOnTab: true
    font.pixelSize: Theme.normalFont
    topPadding: 0
    bottomPadding: 0
    leftPadding: 0

    Accessible.description: displayText

    contentItem: ToldLabel {
        leftPadding: Theme.gap
        rightPadding: Theme.gap
        text: box.displayText
        font: box.font
        asked: box.visualFocus && !box.popup.visible
    }

    indicator: Glyph {
        x: box.width - width - Theme.gap
        y: (box.height - height) / 2
        size: Theme.em(0.8)
        name: "down"
    }

    background: Rectangle {
        radius: Theme.radius
        color: box.hovered ? Theme.hover : Theme.raised
        border.color: Theme.outline
        border.width: Theme.line
    }

    delegate: ItemDelegate {
        id: option

        required property var modelData
        required property int index

        width: ListView.view ? ListView.view.width : 0
        height: Theme.controlHeight
        highlighted: box.highlightedIndex === index
        text: modelData[box.textRole] ?? modelData
        Accessible.name: text

        contentItem: ToldLabel {
            text: option.text
            font.pixelSize: Theme.normalFont
            asked: option.highlighted
        }

        background: Rectangle {
            color: option.highlighted ? Theme.selection : "transparent"
        }
    }

    popup: Popup {
        y: box.height
        width: box.width
        height: Math.min(contentItem.implicitHeight + 2 * padding,
                         (box.Window.window ? box.Window.window.height : Theme.em(40)) * 0.6)
        padding: Theme.line

        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: box.delegateModel
            currentIndex: box.highlightedIndex
            highlightMoveDuration: 0
            ScrollBar.vertical: ThemedScrollBar {}
        }

        background: Panel {
            color: Theme.raised
            border.color: Theme.outline
        }
    }

    FocusRing {
        visible: box.visualFocus
    }
}
