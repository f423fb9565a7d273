import QtQuick

/// Which errors are selected, by their unique ids, so that sorting does not disturb it. Errors that
/// leave the view, because they are over or a filter hides them, leave the selection too: what is
/// selected can be seen.
QtObject {
    id: selection

    /// The proxy whose rows are selected from, or null.
    property var proxy: null

    /// Unique id to error kind. Replaced as a whole never; bind to revision and ask contains().
    property var kinds: ({})
    property int revision: 0
    property int count: 0
    /// How many of them the server can snooze.
    property int snoozableCount: 0
    /// Where a range starts that Shift extends.
    property string anchor

    function contains(uniqueID: string): bool {
        return revision >= 0 && uniqueID in kinds;
    }

    function clear() {
        if (count > 0)
            replace(0, -1);
    }

    function selectOnly(row: int) {
        replace(row, row);
        anchor = idAt(row);
    }

    function toggle(row: int) {
        const uniqueID = idAt(row);
        if (uniqueID in kinds)
            drop(uniqueID);
        else
            add(row);
        anchor = uniqueID;
        ++revision;
    }

    /// Selects from the anchor to @p row and nothing else.
    function extendTo(row: int) {
        const from = Math.max(0, rowOf(anchor));
        replace(Math.min(from, row), Math.max(from, row));
    }

    function selectAll() {
        replace(0, proxy ? proxy.rowCount() - 1 : -1);
    }

    /// The rows of the selection in the order of the view.
    function rows(): var {
        const found = [];
        for (let row = 0; found.length < count && row < proxy.rowCount(); ++row) {
            if (idAt(row) in kinds)
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

    function replace(first: int, last: int) {
        kinds = {};
        count = 0;
        snoozableCount = 0;
        for (let row = first; row <= last; ++row)
            add(row);
        ++revision;
    }

    function add(row: int) {
        const uniqueID = idAt(row);
        if (uniqueID in kinds)
            return;
        kinds[uniqueID] = value(row, ErrorRoles.errorType) ?? -1;
        ++count;
        if (ErrorKinds.canBeSnoozed(kinds[uniqueID]))
            ++snoozableCount;
    }

    function drop(uniqueID: string) {
        if (!(uniqueID in kinds))
            return;
        if (ErrorKinds.canBeSnoozed(kinds[uniqueID]))
            --snoozableCount;
        --count;
        delete kinds[uniqueID];
    }

    readonly property Connections changes: Connections {
        target: selection.proxy

        function onRowsAboutToBeRemoved(parent, first, last) {
            const before = selection.count;
            for (let row = first; row <= last && selection.count > 0; ++row)
                selection.drop(selection.idAt(row));
            if (selection.count !== before)
                ++selection.revision;
        }

        function onModelReset() {
            selection.clear();
        }
    }
}
