import QtQuick
import QtQuick.Layouts

/// The heading of a panel, with a remark on its right.
RowLayout {
    id: title

    property string text
    property string remark
    /// How wide both are when there is room for them.
    readonly property real textWidth: textLabel.implicitWidth + spacing + remarkLabel.implicitWidth

    spacing: Theme.gap

    PlainLabel {
        id: textLabel

        text: title.text
        font.pixelSize: Theme.largeFont
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    ToldLabel {
        id: remarkLabel

        Layout.fillWidth: true
        text: title.remark
        font.pixelSize: Theme.largeFont
        color: Theme.mutedText
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
