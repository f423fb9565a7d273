pragma Singleton

import QtQuick

/// What the dashboard knows about the kinds and categories of errors.
QtObject {
    readonly property int highNetworkUsage: 2
    readonly property int cameraDisconnected: 3
    readonly property int stationDisconnected: 4

    readonly property int stationCategory: 1
    readonly property int cameraCategory: 2
    readonly property int allCategories: 3

    readonly property var icons: ["cpu", "memory", "network", "cameraOff", "stationOff",
        "volumeOff", "question", "calendar"]

    /// The name of the drawing for a kind.
    function icon(type: int): string {
        return icons[type] ?? "question";
    }

    /// How bad a kind is, as a state of Theme.stateColor().
    function severity(type: int): string {
        return type >= cameraDisconnected && type <= 5 ? "critical" : "warning";
    }

    /// Whether the server can snooze errors of this kind.
    function canBeSnoozed(type: int): bool {
        return type === cameraDisconnected || type === stationDisconnected;
    }

    /// The device of an error in words. A trigger text of the form "Station: Lobby / Camera: Door"
    /// or, for errors found at the start, "Lobby - Door" names the station too, which has a column of
    /// its own and is left out here.
    function deviceName(type: int, category: int, deviceID: string, trigger: string,
                        stationName: string): string {
        const isCamera = category === cameraCategory;
        if (stationName !== "") {
            const label = ": " + stationName + " / ";
            const at = trigger.indexOf(label);
            if (at >= 0) {
                const device = trigger.slice(at + label.length);
                return isCamera ? device.replace(/^[^:]*: /, "") : device;
            }
            if (isCamera && trigger.startsWith(stationName + " - "))
                return trigger.slice(stationName.length + 3);
        }
        if (type === highNetworkUsage && deviceID !== "")
            return deviceID;
        return trigger.endsWith(": " + stationName) ? stationName : trigger;
    }
}
