pragma ComponentBehavior: Bound

import QtQuick

/// Tabs side by side; the current one is underlined.
Row {
    id: strip

    /// List of {text, glyph}.
    property var tabs: []
    property int currentIndex: 0

    /// Takes the keyboard from a pane that the change of the tab has hidden.
    function focusCurrent() {
        buttons.itemAt(currentIndex).forceActiveFocus(Qt.ShortcutFocusReason);
    }

    Accessible.role: Accessible.PageTabList

    Repeater {
        id: buttons

        model: strip.tabs

        ActionButton {
            id: tab

            required property int index
            required property var modelData
            readonly property bool current: strip.currentIndex === index

            flat: true
            text: modelData.text
            glyph: modelData.glyph
            font.weight: current ? Font.DemiBold : Font.Normal
            Accessible.role: Accessible.PageTab
            Accessible.selected: current
            onClicked: strip.currentIndex = index

            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: 2 * Theme.line
                visible: tab.current
                color: Theme.accent
            }
        }
    }
}
