pragma ComponentBehavior: Bound

import QtQuick

/// Tabs side by side; the current one is underlined. Left and Right go to the neighbours.
Row {
    id: strip

    /// List of {key, text, glyph}.
    property var tabs: []
    /// The key of the current tab.
    property string current
    /// Numbers to stand behind the texts, by key; what is 0 or missing does not show.
    property var numbers: ({})
    /// Whether the texts stand alone, for want of room.
    property bool bare: false

    /// The user chose a tab; the owner decides whether it becomes the current one.
    signal chosen(key: string)

    /// Takes the keyboard from what the change of the tab has hidden.
    function focusCurrent() {
        buttons.itemAt(indexOfCurrent()).forceActiveFocus(Qt.ShortcutFocusReason);
    }

    /// Goes @p count tabs on, or back, and starts again where the tabs end.
    function step(count: int) {
        chosen(tabs[(indexOfCurrent() + count + tabs.length) % tabs.length].key);
        focusCurrent();
    }

    function indexOfCurrent(): int {
        return Math.max(0, tabs.findIndex(tab => tab.key === current));
    }

    Accessible.role: Accessible.PageTabList
    Keys.onLeftPressed: step(-1)
    Keys.onRightPressed: step(1)

    Repeater {
        id: buttons

        model: strip.tabs

        ActionButton {
            id: tab

            required property var modelData
            readonly property bool current: strip.current === modelData.key
            readonly property int number: strip.numbers[modelData.key] ?? 0

            flat: true
            text: number > 0 ? modelData.text + " " + number : modelData.text
            glyph: strip.bare ? "" : modelData.glyph
            font.weight: current ? Font.DemiBold : Font.Normal
            Accessible.role: Accessible.PageTab
            Accessible.selected: current
            onClicked: strip.chosen(modelData.key)

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
