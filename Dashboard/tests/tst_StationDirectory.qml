import QtQuick
import Dashboard

Item {
    Component {
        id: directoryComponent

        StationDirectory {
            statesKnown: true
        }
    }

    DashboardCase {
        name: "StationDirectory"

        function station(id, parentID, connected) {
            return { "stationID": id, "name": id.toUpperCase(), "parentID": parentID ?? "",
                     "connected": connected ?? true };
        }

        function ids(directory) {
            return directory.rows.map(row => "-".repeat(row.depth) + row.stationID);
        }

        function test_subStationsStandBelowTheirParent() {
            const directory = make(directoryComponent, {
                "stations": [station("b/x", "b"), station("a"), station("b"), station("b/x/1", "b/x")]
            });
            compare(ids(directory), ["a", "b", "-b/x", "--b/x/1"]);
        }

        function test_statesAreUnknownUntilTheHostKnowsThem() {
            const directory = make(directoryComponent, {
                "stations": [station("a"), station("b", "", false)], "statesKnown": false
            });
            compare(["a", "b", "c"].map(id => directory.isConnected(id)),
                    [undefined, undefined, undefined]);
            directory.statesKnown = true;
            compare(["a", "b", "c"].map(id => directory.isConnected(id)), [true, false, undefined]);
        }

        function test_stationsWithErrorsThatTheHostDoesNotListAreAppended() {
            const directory = make(directoryComponent, {
                "stations": [station("a")],
                "errorCounts": [{ "stationID": "", "errorNumber": 2 },
                                { "stationID": "gone", "errorNumber": 1 }]
            });
            compare(ids(directory), ["a", "", "gone"]);
            compare(directory.nameOf("gone"), "gone");
            compare(directory.errorsOf(""), 2);
            compare(directory.errorsOf("a"), 0);
            compare(directory.isConnected("gone"), undefined);
        }

        function test_circlesAndMissingParentsHideNothing() {
            const directory = make(directoryComponent, {
                "stations": [station("a", "b"), station("b", "a"), station("c", "nobody")]
            });
            compare(ids(directory), ["c", "a", "-b"]);
        }

        function test_rowsStayWhileCountsAndStatesChange() {
            const directory = make(directoryComponent, { "stations": [station("a"), station("b")] });
            const changes = spyOn(directory, "rowsChanged");
            directory.stations = [station("a", "", false), station("b")];
            directory.errorCounts = [{ "stationID": "a", "errorNumber": 3 }];
            compare(changes.count, 0);
            compare(directory.isConnected("a"), false);
            compare(directory.errorsOf("a"), 3);
        }

        function test_rowsFollowTheHost() {
            const directory = make(directoryComponent, { "stations": [station("a")] });
            directory.stations = [station("b"), station("a")];
            compare(ids(directory), ["b", "a"]);
            directory.stations = undefined;
            compare(ids(directory), []);
        }

        function test_namelessStationIsCalledByItsID() {
            const directory = make(directoryComponent, {
                "stations": [{ "stationID": "a", "name": "", "parentID": "", "connected": true }]
            });
            compare(directory.rows[0].name, "a");
        }
    }
}
