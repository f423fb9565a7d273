pragma Singleton

import QtQuick

/// The numbers of the error list's roles, for reading a row without a delegate.
QtObject {
    readonly property int stationID: 257
    readonly property int deviceID: 258
    readonly property int errorType: 259
    readonly property int errorCategory: 260
    readonly property int timestamp: 261
    readonly property int errorName: 262
    readonly property int triggerDeviceName: 263
    readonly property int uniqueID: 264
}
