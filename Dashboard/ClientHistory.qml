import QtQuick

/// The client machine's samples of the last minutes, oldest first. A failed sample is null; the
/// monitor reports it as a negative CPU usage and as no memory in use at all.
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
