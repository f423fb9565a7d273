import QtQuick
import QtQuick.Controls.Basic

/// A menu as wide as its widest line.
Menu {
    id: menu

    padding: Theme.line
    width: {
        let widest = Theme.em(8);
        for (let i = 0; i < count; ++i)
            widest = Math.max(widest, itemAt(i).implicitWidth);
        return widest + 2 * padding;
    }

    delegate: ThemedMenuItem {}

    background: Panel {
        color: Theme.raised
        border.color: Theme.outline
    }
}
