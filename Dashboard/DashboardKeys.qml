import QtQuick

/// The keys that work wherever the keyboard is on the dashboard: Ctrl+Page Down and Ctrl+Page Up turn
/// the pages, Ctrl+F goes to the text filter, Ctrl+E exports; Ctrl+Plus, Ctrl+Minus and Ctrl+0 show
/// everything larger, smaller and in its usual size.
Item {
    id: keys

    signal findWanted
    signal exportWanted
    /// The page that is @p step tabs further on is wanted.
    signal turned(step: int)

    Shortcut {
        sequence: "Ctrl+F"
        onActivated: keys.findWanted()
    }

    Shortcut {
        sequence: "Ctrl+E"
        onActivated: keys.exportWanted()
    }

    Shortcut {
        sequence: "Ctrl+PgDown"
        onActivated: keys.turned(1)
    }

    Shortcut {
        sequence: "Ctrl+PgUp"
        onActivated: keys.turned(-1)
    }

    Shortcut {
        sequences: ["Ctrl++", "Ctrl+="]
        onActivated: Theme.zoomBy(1)
    }

    Shortcut {
        sequence: "Ctrl+-"
        onActivated: Theme.zoomBy(-1)
    }

    Shortcut {
        sequence: "Ctrl+0"
        onActivated: Theme.zoom = 1
    }
}
