import QtQuick
import QtQuick.Controls.Basic

/// A list that creates only the rows in sight, which stay in sight when others come or go; at its top
/// it stays at the top.
///
/// Keys: arrows, Page, Home and End move.
ListView {
    id: list

    /// What the list shows: a list of objects, each its row's modelData.
    property var rows: []
    /// The key of a row. By it, the list and the keyboard stay on their rows when others come or go.
    required property var keyOf
    required property real rowHeight

    /// The row that the keyboard is on first.
    property int firstRow: 0

    readonly property int rowsPerPage: Math.max(1, Math.floor(height / rowHeight) - 1)

    clip: true
    cacheBuffer: 0
    currentIndex: -1
    highlightMoveDuration: 0
    highlightMoveVelocity: -1
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    pixelAligned: true
    Accessible.role: Accessible.List

    ScrollBar.vertical: ThemedScrollBar {}

    // The rows before the last change.
    property var shownRows: []

    onRowsChanged: {
        const isAtTop = contentY <= 0;
        const top = contentY + (isAtTop ? 0 : moveOf(Math.floor(contentY / rowHeight)) * rowHeight);
        const row = currentIndex + moveOf(currentIndex);
        shownRows = rows;
        model = rows;
        currentIndex = Math.min(row, count - 1);
        takeFirst();
        forceLayout();
        contentY = Math.max(0, Math.min(top, contentHeight - height));
    }

    /// How many rows further down stands now what stood in @p row; 0 when it is gone.
    function moveOf(row: int): int {
        if (row < 0 || row >= shownRows.length)
            return 0;
        const key = keyOf(shownRows[row]);
        const now = rows.findIndex(candidate => keyOf(candidate) === key);
        return now < 0 ? 0 : now - row;
    }

    onActiveFocusChanged: takeFirst()

    // The keyboard is always on a row where there is one.
    function takeFirst() {
        if (activeFocus && currentIndex < 0 && count > 0)
            currentIndex = Math.max(0, Math.min(count - 1, firstRow));
    }

    function moveTo(row: int) {
        currentIndex = Math.max(0, Math.min(count - 1, row));
    }

    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home)
            moveTo(0);
        else if (event.key === Qt.Key_End)
            moveTo(count - 1);
        else if (event.key === Qt.Key_PageUp)
            moveTo(currentIndex - rowsPerPage);
        else if (event.key === Qt.Key_PageDown)
            moveTo(currentIndex + rowsPerPage);
        else
            return;
        event.accepted = true;
    }
}
