import QtQuick

/// The errors that a proxy shows as a table of texts: its rows in its order.
QtObject {
    id: sheet

    /// The proxy, or null.
    property var proxy: null
    required property StationDirectory directory

    /// The headings, then one list of fields for each error, as old as it is at @p now. The heading
    /// of the times names the zone of @p now; a time in another zone names its own.
    function rows(now: real): var {
        const zone = Format.zone(now);
        const table = [[qsTr("Error"), qsTr("Device"), qsTr("Station"), qsTr("Age"),
                        qsTr("Since (%1)", "time zone").arg(zone), qsTr("Station ID"),
                        qsTr("Device ID")]];
        const end = proxy ? proxy.rowCount() : 0;
        for (let row = 0; row < end; ++row)
            table.push(fieldsOf(proxy.index(row, 0), now, zone));
        return table;
    }

    function fieldsOf(index: var, now: real, zone: string): var {
        const stationID = proxy.data(index, ErrorRoles.stationID) ?? "";
        const deviceID = proxy.data(index, ErrorRoles.deviceID) ?? "";
        const timestamp = proxy.data(index, ErrorRoles.timestamp) ?? 0;
        const station = directory.nameOf(stationID);
        const device = ErrorKinds.deviceName(proxy.data(index, ErrorRoles.errorType) ?? -1,
                                             proxy.data(index, ErrorRoles.errorCategory) ?? 0,
                                             deviceID,
                                             proxy.data(index, ErrorRoles.triggerDeviceName) ?? "",
                                             station);
        return [proxy.data(index, ErrorRoles.errorName), device, station,
                timestamp > 0 ? Format.age(timestamp, now) : qsTr("unknown"),
                timestamp > 0 ? Format.timeInZone(timestamp, zone) : "", stationID, deviceID];
    }
}
