import QtQuick

/// How many reports of the station in focus stand in the plug-in's usage model, whose histories
/// begin as zeros that nobody measured, and when the last one came.
QtObject {
    id: counter

    required property var surface

    readonly property int historyLength: 60
    readonly property int usageListRole: 261
    readonly property int networkRow: 2

    readonly property var model: surface ? surface.getSystemResourceModel() : null
    property int count: 0
    /// Milliseconds since the epoch, those of the first look where reports were found; 0 before the
    /// first report.
    property real lastTime: 0

    /// How many of the newest entries of a row's history stand for reports. Each report moves the
    /// network rows by as many entries as there are network rows.
    function entriesOf(row: int, rowCount: int): int {
        const perReport = row < networkRow ? 1 : Math.max(1, rowCount - networkRow);
        return Math.min(historyLength, count * perReport);
    }

    /// A dashboard that opens later than the focus was set finds reports there already: what comes
    /// after the zeros.
    function countFound(): int {
        let found = 0;
        for (let row = 0; row < Math.min(networkRow, model?.rowCount() ?? 0); ++row) {
            const history = model.data(model.index(row, 0), usageListRole) ?? [];
            const first = history.findIndex(value => value !== 0);
            found = Math.max(found, first < 0 ? 0 : history.length - first);
        }
        return found;
    }

    Component.onCompleted: {
        count = countFound();
        lastTime = count > 0 ? Date.now() : 0;
    }

    readonly property Connections reports: Connections {
        target: counter.surface

        function onSystemResourceChanged() {
            ++counter.count;
            counter.lastTime = Date.now();
        }

        function onFocusStationResourceChanged() {
            counter.count = 0;
            counter.lastTime = 0;
        }
    }
}
