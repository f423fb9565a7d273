import QtQuick

/// Says why a list shows nothing.
Column {
    id: state

    /// A state of StateMark.
    property alias status: mark.status
    /// Shown instead of the state's mark when it names a drawing of Icons.
    property string glyph
    property string title
    property string detail

    spacing: Theme.pad
    Accessible.role: Accessible.StaticText
    Accessible.name: title
    Accessible.description: detail

    StateMark {
        id: mark

        visible: state.glyph === ""
        anchors.horizontalCenter: parent.horizontalCenter
        size: Theme.em(4)
    }

    Glyph {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: state.glyph !== ""
        size: Theme.em(4)
        name: state.glyph
        color: Theme.mutedText
    }

    Text {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        text: state.title
        textFormat: Text.PlainText
        color: Theme.text
        font.pixelSize: Theme.largeFont
        font.weight: Font.DemiBold
    }

    Text {
        width: parent.width
        visible: text !== ""
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        text: state.detail
        textFormat: Text.PlainText
        color: Theme.mutedText
        font.pixelSize: Theme.normalFont
    }
}
