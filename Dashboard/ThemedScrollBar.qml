import QtQuick
import QtQuick.Controls.Basic

/// A slim scroll bar that is there whenever there is something to scroll.
ScrollBar {
    id: bar

    policy: size < 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
    minimumSize: 0.05
    padding: Theme.em(0.15)

    contentItem: Rectangle {
        implicitWidth: Theme.em(0.45)
        implicitHeight: Theme.em(0.45)
        radius: width / 2
        color: bar.pressed || bar.hovered ? Theme.mutedText : Theme.outline
    }
}
