pragma ComponentBehavior: Bound

import QtQuick

/// Exclusive choices side by side; the chosen one is filled and ticked.
Row {
    id: bar

    /// List of {value, text}.
    property var choices: []
    property var value
    /// What is chosen here, for assistive tools.
    property string name

    /// The user chose @p value; the owner decides whether it becomes this bar's value.
    signal chosen(value: var)

    spacing: -Theme.line
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    Repeater {
        model: bar.choices

        ActionButton {
            required property var modelData

            text: modelData.text
            checkable: true
            autoExclusive: true
            checked: bar.value === modelData.value
            glyph: checked ? "check" : ""
            Accessible.role: Accessible.RadioButton
            Accessible.name: bar.name + ": " + text
            Accessible.checked: checked
            onClicked: bar.chosen(modelData.value)
        }
    }
}
