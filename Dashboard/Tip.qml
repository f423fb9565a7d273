import QtQuick
import QtQuick.Controls.Basic

/// A hint beside a control; shown while the pointer rests on it or the keyboard is there.
ToolTip {
    id: tip

    delay: 600
    width: Math.min(implicitWidth, Theme.em(48))
    padding: Theme.gap
    visible: false

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
