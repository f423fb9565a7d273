import QtQuick

/// The client machine's samples of the last minutes, oldest first. A failed sample is null: a CPU usage
/// below 0 and a memory usage of 0. The monitor cuts fractions off, so a large memory that is in use by
/// less than 1% reads as a failed sample too; a number there might be a wrong one.
QtObject {
    id: history

    required property var surface

    /// At one sample a second, five minutes.
    readonly property int capacity: 300

    property var cpu: []
    property var memory: []

    function pushed(list: var, value: int, least: int): var {
        const known = value >= least ? value : null;
        return list.slice(Math.max(0, list.length + 1 - capacity)).concat([known]);
    }

    readonly property Connections samples: Connections {
        target: history.surface

        function onClientResourceChanged(cpu, memory) {
            history.cpu = history.pushed(history.cpu, cpu, 0);
            history.memory = history.pushed(history.memory, memory, 1);
        }
    }
}
