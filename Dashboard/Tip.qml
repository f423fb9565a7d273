import QtQuick
import QtQuick.Controls.Basic

/// A hint beside a control; shown while the pointer rests on it or the keyboard is there.
ToolTip {
    id: tip

    delay: 600
    width: Math.min(unwrapped.implicitWidth + leftPadding + rightPadding, Theme.em(48))
    x: parent ? (parent.width - width) / 2 : 0
    padding: Theme.gap
    visible: false

    // A text that may wrap does not tell how wide its longest line is.
    readonly property Text unwrapped: Text {
        text: tip.text
        textFormat: Text.PlainText
        font.pixelSize: Theme.smallFont
    }

    contentItem: Text {
        text: tip.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        color: Theme.text
        font.pixelSize: Theme.smallFont
    }

    background: Panel {
        color: Theme.raised
        border.color: Theme.outline
    }
}
