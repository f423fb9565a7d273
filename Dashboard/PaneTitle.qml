import QtQuick
import QtQuick.Layouts

/// The heading of a panel, with a remark on its right.
RowLayout {
    id: title

    property string text
    property string remark

    spacing: Theme.gap

    PlainLabel {
        text: title.text
        font.pixelSize: Theme.largeFont
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    ToldLabel {
        Layout.fillWidth: true
        text: title.remark
        font.pixelSize: Theme.largeFont
        color: Theme.mutedText
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
