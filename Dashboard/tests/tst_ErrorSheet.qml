pragma ComponentBehavior: Bound

import QtQuick
import Dashboard

Item {
    id: root

    StationDirectory {
        id: stations

        statesKnown: true
        stations: [{ "stationID": "st1", "name": "Lobby", "parentID": "", "connected": true }]
    }

    Component {
        id: sheetComponent

        ErrorSheet {
            directory: stations
        }
    }

    DashboardCase {
        name: "ErrorSheet"

        property var plugin
        property ErrorSheet sheet

        function prepare() {
            plugin = makePlugin();
            sheet = make(sheetComponent, { "proxy": plugin.getSystemErrorSortFilterModel(root) });
        }

        function test_headingsNameTheZone() {
            prepare();
            compare(sheet.rows(now), [["Error", "Device", "Station", "Age", "Since (CEST)",
                                       "Station ID", "Device ID"]]);
            compare(sheet.rows(new Date(2024, 0, 5).getTime())[0][4], "Since (CET)");
        }

        function test_rowsStandAsInTheView() {
            prepare();
            plugin.addError(3, "st1", "st1/c1", ["Lobby", "Door 1"], now - hour);
            plugin.addError(4, "st1", "", ["Lobby"], now - second);
            compare(sheet.rows(now).slice(1), [
                ["Station disconnected", "Lobby", "Lobby", "1 s", "2024-05-14 14:07:32", "st1", ""],
                ["Camera disconnected", "Door 1", "Lobby", "1 h 0 min", "2024-05-14 13:07:33", "st1",
                 "st1/c1"]
            ]);
        }

        function test_whatIsFilteredAwayIsNotInIt() {
            prepare();
            plugin.addError(3, "st1", "st1/c1", ["Lobby", "Door 1"], now - hour);
            plugin.addError(4, "st1", "", ["Lobby"], now - second);
            sheet.proxy.setErrorCategory(ErrorKinds.cameraCategory);
            compare(sheet.rows(now).slice(1).map(row => row[1]), ["Door 1"]);
        }

        function test_timeInAnotherZoneNamesItsOwn() {
            prepare();
            plugin.addError(4, "st1", "", ["Lobby"], new Date(2024, 0, 5, 10, 0, 0).getTime());
            compare(sheet.rows(now)[1][4], "2024-01-05 10:00:00 CET");
        }

        function test_whatIsMissingStaysEmptyButAnAgeIsUnknown() {
            prepare();
            plugin.addBareError("9_x");
            compare(sheet.rows(now)[1].map(field => field ?? ""), ["", "", "", "unknown", "", "", ""]);
        }

        function test_withoutAProxyThereAreHeadingsOnly() {
            prepare();
            sheet.proxy = null;
            compare(sheet.rows(now).length, 1);
        }
    }
}
