import QtQuick

/// A PlainLabel that tells its whole text by a hint where that does not fit.
PlainLabel {
    id: label

    /// Whether the keyboard is here, which asks for the hint as a pointer does.
    property bool asked: false

    HoverHandler {
        id: hover
    }

    Tip {
        text: label.text
        visible: label.truncated && (hover.hovered || label.asked)
    }
}
