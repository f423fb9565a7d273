import QtQuick

/// Which errors are selected, by their unique ids, so that sorting does not disturb it. Errors that
/// leave the view, because they are over or a filter hides them, leave the selection too: what is
/// selected can be seen.
QtObject {
    id: selection

    /// The proxy whose rows are selected from, or null.
    property var proxy: null

    property int count: 0
    /// How many of them the server can snooze.
    property int snoozableCount: 0
    /// Counts the changes; whatever depends on contains() is bound to it.
    property int revision: 0
    /// Where a range starts that Shift extends.
    property string anchor

    // Thousands may come and go at once, so these change in place and publish() tells of it once.
    // An id that left stays as a key with the value false, which costs less than to delete it.
    property var ids: ({})
    property var tally: ({ "count": 0, "snoozable": 0 })

    function contains(uniqueID: string): bool {
        return revision >= 0 && ids[uniqueID] === true;
    }

    function clear() {
        if (count > 0)
            selectRange(0, -1);
    }

    function selectOnly(row: int) {
        selectRange(row, row);
        anchor = idAt(row);
    }

    function toggle(row: int) {
        anchor = idAt(row);
        if (ids[anchor] === true)
            drop(anchor);
        else
            add(anchor);
        publish();
    }

    /// Selects from the anchor to @p row and nothing else; the row alone when the anchor's error is
    /// over.
    function extendTo(row: int) {
        const from = rowOf(anchor);
        if (from < 0)
            selectOnly(row);
        else
            selectRange(Math.min(from, row), Math.max(from, row));
    }

    function selectAll() {
        selectRange(0, proxy ? proxy.rowCount() - 1 : -1);
    }

    /// The rows of the selection in the order of the view.
    function rows(): var {
        const found = [];
        const end = count > 0 ? proxy.rowCount() : 0;
        for (let row = 0; row < end && found.length < count; ++row) {
            if (ids[idAt(row)] === true)
                found.push(row);
        }
        return found;
    }

    /// The row of an error, or -1 when the view does not show it.
    function rowOf(uniqueID: string): int {
        if (!proxy || proxy.rowCount() === 0 || uniqueID === "")
            return -1;
        const hits = proxy.match(proxy.index(0, 0), ErrorRoles.uniqueID, uniqueID, 1,
                                 Qt.MatchExactly);
        return hits.length > 0 ? hits[0].row : -1;
    }

    function idAt(row: int): string {
        return value(row, ErrorRoles.uniqueID) ?? "";
    }

    function value(row: int, role: int): var {
        return proxy.data(proxy.index(row, 0), role);
    }

    function selectRange(first: int, last: int) {
        ids = {};
        tally = { "count": 0, "snoozable": 0 };
        for (let row = first; row <= last; ++row)
            add(idAt(row));
        publish();
    }

    function add(uniqueID: string) {
        if (ids[uniqueID] === true)
            return;
        ids[uniqueID] = true;
        ++tally.count;
        if (canBeSnoozed(uniqueID))
            ++tally.snoozable;
    }

    function drop(uniqueID: string) {
        if (ids[uniqueID] !== true)
            return;
        ids[uniqueID] = false;
        --tally.count;
        if (canBeSnoozed(uniqueID))
            --tally.snoozable;
    }

    // The kind stands at the beginning of the id, which saves a look at the row.
    function canBeSnoozed(uniqueID: string): bool {
        return ErrorKinds.canBeSnoozed(parseInt(uniqueID, 10));
    }

    function publish() {
        if (tally.count === 0)
            ids = {};
        count = tally.count;
        snoozableCount = tally.snoozable;
        ++revision;
    }

    readonly property Connections changes: Connections {
        target: selection.proxy

        function onRowsAboutToBeRemoved(parent, first, last) {
            for (let row = first; row <= last && selection.tally.count > 0; ++row)
                selection.drop(selection.idAt(row));
            if (selection.count !== selection.tally.count)
                selection.publish();
        }

        function onModelReset() {
            selection.clear();
        }
    }
}
