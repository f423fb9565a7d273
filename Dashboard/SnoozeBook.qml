import QtQuick

/// What is snoozed, and which snoozes are over while their device still fails.
///
/// The plug-in tells neither. The book puts it together from what is asked here, from errors that
/// leave the list and come back, and from the server's own list where the host knows it. Without
/// that, an error that leaves soon after a request counts as snoozed. Its times are the server's.
QtObject {
    id: book

    required property var surface
    /// The server's snoozes as in DashboardView.snoozes, or undefined.
    property var serverList

    readonly property bool isTold: serverList !== undefined && serverList !== null

    /// How long a request may wait for its effect: half a minute of the user's time.
    readonly property real patience: 30 * 1000 * Clock.serverRate
    /// How long a snooze that is over is remembered: ten minutes of the user's time.
    readonly property real memory: 10 * 60 * 1000 * Clock.serverRate

    /// What to show, in the order to show it: a list of {nodeID, type, stationID, device, state,
    /// until, askedAt, endedAt}. The state is "failing" (the snooze is over, the device still
    /// fails), "asked" (nothing came of the request yet) or "snoozed"; times are in milliseconds
    /// since the epoch, and 0 when there is none.
    property var rows: []
    property int snoozedCount: 0
    property int failingCount: 0
    property int askedCount: 0

    // By the unique id of the error. An entry is in force while the server snoozes its node, and
    // listed while its error is in the list.
    property var entries: ({})
    property int entryCount: 0

    // Each of thousands of snoozes may bring the whole list anew, so it is taken over when it is
    // needed; until then, what happens to errors without an entry is kept here, by their ids.
    property bool outdated: false
    property var unclaimed: ({})

    readonly property var errors: surface ? surface.getSystemErrorModel() : null
    readonly property real now: Clock.serverNow
    readonly property bool isWatching: entryCount > 0 || outdated

    /// Takes note that @p nodes, as ErrorsPane.snoozeAsked tells of them, are to be snoozed until
    /// @p seconds since the epoch.
    function take(nodes: var, seconds: real) {
        catchUp();
        for (const node of nodes) {
            const entry = entryOf(node.nodeID, node.type);
            entry.stationID = node.stationID;
            entry.device = node.device;
            entry.until = seconds * 1000;
            entry.askedAt = now;
            entry.endedAt = 0;
            entry.listed = !entry.inForce;
        }
        burst.start();
    }

    function entryOf(nodeID: string, type: int): var {
        const key = type + "_" + nodeID;
        if (!(key in entries)) {
            const isCamera = type === ErrorKinds.cameraDisconnected;
            const slash = nodeID.lastIndexOf("/");
            ++entryCount;
            entries[key] = {
                "nodeID": nodeID, "type": type, "until": 0, "askedAt": 0, "endedAt": 0,
                "stationID": isCamera ? nodeID.slice(0, Math.max(0, slash)) : nodeID,
                "device": isCamera ? nodeID.slice(slash + 1) : "",
                "inForce": false, "listed": unclaimed[key] ?? false
            };
        }
        return entries[key];
    }

    function end(entry: var, moment: real) {
        entry.inForce = false;
        entry.endedAt = moment;
    }

    function catchUp() {
        if (outdated && isTold)
            adoptServerList();
        outdated = false;
        unclaimed = {};
    }

    function adoptServerList() {
        const told = {};
        for (const snooze of serverList) {
            const entry = entryOf(snooze.nodeID, snooze.type);
            entry.until = snooze.until;
            entry.device = snooze.name || entry.device;
            entry.inForce = true;
            entry.endedAt = 0;
            told[snooze.type + "_" + snooze.nodeID] = true;
        }
        for (const key in entries) {
            const entry = entries[key];
            // It may have ended while the server was away.
            if (entry.inForce && !(key in told))
                end(entry, Math.min(now, entry.until));
        }
    }

    /// Takes note that an error came to the list or left it.
    function note(key: string, listed: bool) {
        if (key in entries)
            noteEntry(entries[key], listed);
        else if (outdated)
            unclaimed[key] = listed;
    }

    function noteEntry(entry: var, listed: bool) {
        entry.listed = listed;
        if (!isTold)
            concludeFrom(entry);
        burst.start();
    }

    // Where nobody tells, the list has to.
    function concludeFrom(entry: var) {
        if (!entry.listed && entry.endedAt === 0)
            entry.inForce = true;
        else if (entry.listed && entry.inForce)
            end(entry, now);
    }

    function isForgotten(entry: var): bool {
        if (entry.inForce)
            return false;
        return entry.endedAt > 0 ? now - entry.endedAt > memory : now - entry.askedAt > patience;
    }

    function letTimePass() {
        catchUp();
        for (const key in entries) {
            const entry = entries[key];
            if (!isTold && entry.inForce && entry.until <= now) {
                end(entry, entry.until);
                burst.start();
            } else if (isForgotten(entry)) {
                delete entries[key];
                --entryCount;
                burst.start();
            }
        }
    }

    function stateOf(entry: var): string {
        if (entry.endedAt > 0)
            return entry.listed ? "failing" : "over";
        return entry.inForce ? "snoozed" : "asked";
    }

    function publish() {
        catchUp();
        const order = ["failing", "asked", "snoozed"];
        const shown = Object.values(entries).map(
                        entry => Object.assign({ "state": stateOf(entry) }, entry)).filter(
                        entry => entry.state !== "over");
        shown.sort((one, other) => order.indexOf(one.state) - order.indexOf(other.state)
                                   || one.until - other.until);
        rows = shown;
        const countOf = state => shown.filter(entry => entry.state === state).length;
        snoozedCount = countOf("snoozed");
        failingCount = countOf("failing");
        askedCount = countOf("asked");
    }

    onServerListChanged: {
        outdated = true;
        burst.start();
    }
    onNowChanged: letTimePass()

    // Thousands of errors may come and go at once, in one turn of the event loop or in as many.
    readonly property Timer burst: Timer {
        id: burst

        interval: 100
        onTriggered: book.publish()
    }

    readonly property Connections changes: Connections {
        target: book.errors

        function onRowsInserted(parent, first, last) {
            for (let row = first; row <= last && book.isWatching; ++row)
                book.note(book.idAt(row), true);
        }

        function onRowsAboutToBeRemoved(parent, first, last) {
            for (let row = first; row <= last && book.isWatching; ++row)
                book.note(book.idAt(row), false);
        }
    }

    function idAt(row: int): string {
        return errors.data(errors.index(row, 0), ErrorRoles.uniqueID) ?? "";
    }
}
