import QtQuick

/// A line to search with. What is typed applies after a short pause or with Return, since a long
/// list is not to be searched anew for every letter of a quick typist.
ThemedTextField {
    id: field

    /// The text that applies.
    property string applied

    /// Whether something was typed that does not apply yet.
    readonly property bool waiting: typing.running

    /// The user wants @p text to apply; the owner decides whether it becomes applied.
    signal searched(text: string)

    /// Takes the keyboard, ready to type over what is there.
    function start() {
        forceActiveFocus(Qt.ShortcutFocusReason);
        selectAll();
    }

    /// Forgets what was typed but does not apply yet.
    function reset() {
        typing.stop();
        text = applied;
    }

    leftPadding: Theme.em(2.2)
    onTextEdited: typing.restart()
    onEditingFinished: {
        if (typing.running)
            typing.finish();
    }
    onAppliedChanged: reset()

    Glyph {
        x: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        name: "search"
        color: Theme.mutedText
    }

    HoverHandler {
        id: hover
    }

    Tip {
        text: qsTr("%1 (Ctrl+F)", "what the field is for").arg(field.placeholderText)
        visible: hover.hovered && !field.activeFocus
    }

    Timer {
        id: typing

        interval: 150
        onTriggered: field.searched(field.text)

        function finish() {
            stop();
            field.searched(field.text);
        }
    }
}
