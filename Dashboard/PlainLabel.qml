import QtQuick

/// One line of text, cut with an ellipsis where the room ends.
Text {
    color: Theme.text
    font.pixelSize: Theme.normalFont
    elide: Text.ElideRight
    textFormat: Text.PlainText
    verticalAlignment: Text.AlignVCenter
}
