pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic

/// The errors that its proxy shows, one a row, creating only the rows in sight.
///
/// Keys: arrows, Page, Home and End move (with Shift they extend the selection, with Ctrl they
/// leave it alone); Space selects or deselects; Ctrl+A selects all; Ctrl+C copies; S snoozes; Return
/// asks for the station of the row; the Menu key asks for the context menu.
ListView {
    id: table

    required property var proxy
    required property ErrorSelection selection
    required property StationDirectory directory
    property ErrorColumns columns: ErrorColumns {
        tableWidth: table.width
    }

    /// The row that the pointer rests on, or null.
    property ErrorRow hoveredRow: null
    /// The row with texts that do not fit, to be told in full: the pointer's or else the keyboard's.
    readonly property ErrorRow toldRow: {
        if (hoveredRow?.truncated)
            return hoveredRow;
        const row = activeFocus ? currentItem as ErrorRow : null;
        return row?.truncated && row.drawn ? row : null;
    }

    /// The user wants to see the station of an error.
    signal stationRequested(stationID: string)
    /// The user wants the context menu at @p position of the table.
    signal menuRequested(position: point)
    signal snoozeRequested
    signal copyRequested

    model: proxy
    clip: true
    reuseItems: true
    // Rows beyond the edge would be made in the background, and to call that off when the list is
    // emptied meanwhile makes the view complain.
    cacheBuffer: 0
    currentIndex: -1
    keyNavigationEnabled: false
    highlightMoveDuration: 0
    highlightMoveVelocity: -1
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    pixelAligned: true

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Errors")

    ScrollBar.vertical: ThemedScrollBar {}

    delegate: ErrorRow {
        id: row

        width: table.width
        columns: table.columns
        directory: table.directory
        viewTop: table.contentY
        viewBottom: table.contentY + table.height
        current: ListView.isCurrentItem && table.activeFocus
        selected: table.selection.contains(uniqueIDRole ?? "")
        onPressed: event => table.pressRow(row.index, event)
        onDoubleClicked: table.stationRequested(row.stationIDRole ?? "")
        onHoverChanged: hovered => {
            if (hovered)
                table.hoveredRow = row;
            else if (table.hoveredRow === row)
                table.hoveredRow = null;
        }
        onCheckToggled: {
            table.takeCurrent(row.index);
            table.selection.toggle(row.index);
        }
    }

    // One hint for all rows; it tells what did not fit. Rows that wait for reuse are in no window, so
    // it belongs to the list.
    Tip {
        parent: table
        y: (table.toldRow?.y ?? 0) - table.contentY - implicitHeight - Theme.gap
        text: table.toldRow?.fullText ?? ""
        visible: table.toldRow !== null
    }

    onActiveFocusChanged: {
        if (activeFocus && currentIndex < 0 && count > 0)
            currentIndex = 0;
    }

    function takeCurrent(row: int) {
        forceActiveFocus(Qt.MouseFocusReason);
        currentIndex = row;
    }

    function pressRow(row: int, event: var) {
        takeCurrent(row);
        const known = selection.contains(selection.idAt(row));
        if (event.button === Qt.RightButton) {
            if (!known)
                selection.selectOnly(row);
            menuRequested(currentItem.mapToItem(table, event.x, event.y));
        } else {
            selectRow(row, event.modifiers);
        }
    }

    function selectRow(row: int, modifiers: int) {
        if (modifiers & Qt.ShiftModifier)
            selection.extendTo(row);
        else if (modifiers & Qt.ControlModifier)
            selection.toggle(row);
        else
            selection.selectOnly(row);
    }

    function moveTo(row: int, modifiers: int) {
        if (count === 0)
            return;
        if (modifiers & Qt.ShiftModifier && selection.anchor === "" && currentIndex >= 0)
            selection.anchor = selection.idAt(currentIndex);
        currentIndex = Math.max(0, Math.min(count - 1, row));
        if (!(modifiers & Qt.ControlModifier))
            selectRow(currentIndex, modifiers);
    }

    readonly property int rowsPerPage: Math.max(1, Math.floor(height / columns.rowHeight) - 1)

    Keys.onPressed: event => {
        event.accepted = handleKey(event.key, event.modifiers);
    }

    function handleKey(key: int, modifiers: int): bool {
        switch (key) {
        case Qt.Key_Up:
            moveTo(currentIndex - 1, modifiers);
            return true;
        case Qt.Key_Down:
            moveTo(currentIndex + 1, modifiers);
            return true;
        case Qt.Key_PageUp:
            moveTo(currentIndex - rowsPerPage, modifiers);
            return true;
        case Qt.Key_PageDown:
            moveTo(currentIndex + rowsPerPage, modifiers);
            return true;
        case Qt.Key_Home:
            moveTo(0, modifiers);
            return true;
        case Qt.Key_End:
            moveTo(count - 1, modifiers);
            return true;
        default:
            return handleCommandKey(key, modifiers);
        }
    }

    function handleCommandKey(key: int, modifiers: int): bool {
        const control = modifiers & Qt.ControlModifier;
        if (key === Qt.Key_A && control)
            selection.selectAll();
        else if (key === Qt.Key_C && control)
            copyRequested();
        else if (key === Qt.Key_S && modifiers === Qt.NoModifier)
            snoozeRequested();
        else if (currentIndex < 0)
            return false;
        else if (key === Qt.Key_Space)
            selection.toggle(currentIndex);
        else if (key === Qt.Key_Return || key === Qt.Key_Enter)
            requestCurrentStation();
        else if (key === Qt.Key_Menu || (key === Qt.Key_F10 && modifiers & Qt.ShiftModifier))
            openMenuAtCurrent();
        else
            return false;
        return true;
    }

    function requestCurrentStation() {
        stationRequested(selection.value(currentIndex, ErrorRoles.stationID) ?? "");
    }

    function openMenuAtCurrent() {
        if (selection.count === 0)
            selection.selectOnly(currentIndex);
        menuRequested(currentItem.mapToItem(table, columns.deviceX, currentItem.height));
    }
}
