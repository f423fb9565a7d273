import QtQuick

/// The stations as the host lists them, joined with the numbers of their errors.
///
/// The rows change only when stations come, go, move or are renamed, so that a view of them stays
/// where it is while counts and connection states change.
QtObject {
    id: directory

    /// The host's list of {stationID, name, parentID, connected}.
    property var stations: []
    /// Whether the host knows the states of the stations.
    property bool statesKnown: false
    /// List of {stationID, errorNumber}; see StationErrorCounts.
    property var errorCounts: []

    /// List of {stationID, name, depth}: every station below its parent, then those that have
    /// errors but that the host does not list.
    property var rows: []

    readonly property var byID: {
        const map = {};
        for (const station of stations ?? [])
            map[station.stationID] = station;
        return map;
    }

    readonly property var errorsByID: {
        const map = {};
        for (const entry of errorCounts ?? [])
            map[entry.stationID] = entry.errorNumber;
        return map;
    }

    /// The station's name; its id when the host does not list it.
    function nameOf(stationID: string): string {
        return byID[stationID]?.name || stationID;
    }

    function errorsOf(stationID: string): int {
        return errorsByID[stationID] ?? 0;
    }

    /// True, false, or undefined for a station whose state the host does not know.
    function isConnected(stationID: string): var {
        return statesKnown ? byID[stationID]?.connected : undefined;
    }

    function childrenByParent(): var {
        const children = {};
        for (const station of stations ?? []) {
            const parent = station.parentID in byID ? station.parentID : "";
            if (!(parent in children))
                children[parent] = [];
            children[parent].push(station.stationID);
        }
        return children;
    }

    function buildRows(): var {
        const children = childrenByParent();
        const result = [];
        const seen = {};
        const append = function (stationID, depth) {
            if (stationID in seen)
                return;
            seen[stationID] = true;
            result.push({ "stationID": stationID, "name": nameOf(stationID), "depth": depth });
            for (const child of children[stationID] ?? [])
                append(child, depth + 1);
        };
        for (const stationID of children[""] ?? [])
            append(stationID, 0);
        // What a circle of parents or a gap in the host's list would hide still has to be seen.
        for (const stationID of Object.keys(byID).concat(Object.keys(errorsByID)))
            append(stationID, 0);
        return result;
    }

    function refresh() {
        const fresh = buildRows();
        if (JSON.stringify(fresh) !== JSON.stringify(rows))
            rows = fresh;
    }

    // Numbers may change with every error of a storm, this seldom does.
    readonly property string unlisted: Object.keys(errorsByID).filter(
                                           stationID => !(stationID in byID)).join("\n")

    onByIDChanged: refresh()
    onUnlistedChanged: refresh()
    Component.onCompleted: refresh()
}
