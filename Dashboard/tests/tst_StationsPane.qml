pragma ComponentBehavior: Bound

import QtQuick
import Dashboard

Item {
    id: root

    width: 300
    height: 400

    StationDirectory {
        id: stations

        statesKnown: true
        stations: [
            { "stationID": "a", "name": "Lobby", "parentID": "", "connected": true },
            { "stationID": "b", "name": "Quay", "parentID": "", "connected": true },
            { "stationID": "b/c", "name": "Crane", "parentID": "b", "connected": false }
        ]
        errorCounts: [{ "stationID": "b", "errorNumber": 5 }]
    }

    StationDirectory {
        id: nobody
    }

    StationDirectory {
        id: crowd

        statesKnown: true
    }

    MonitoringSupport {
        id: answers

        surface: null
        directory: stations
    }

    Component {
        id: paneComponent

        StationsPane {
            anchors.fill: parent
            directory: stations
            support: answers
            serverConnected: true
        }
    }

    DashboardCase {
        name: "StationsPane"

        property var plugin
        property StationsPane pane

        function prepare(properties) {
            plugin = makePlugin();
            answers.surface = plugin;
            answers.serverConnected = true;
            pane = make(paneComponent, properties);
            tryVerify(() => rows().length >= Math.min(3, pane.directory.rows.length));
        }

        function cleanup() {
            answers.serverConnected = false;
            answers.surface = null;
            crowd.errorCounts = [];
            pane = null;
        }

        function rows() {
            return itemsWhere(pane, item => item instanceof StationRow);
        }

        function row(name) {
            return rows().find(item => item.name === name);
        }

        function mark(name) {
            return itemsWhere(row(name), item => item instanceof StateMark)[0].status;
        }

        function test_rowTellsStateAndErrors() {
            prepare();
            compare(texts(row("Lobby")), ["Lobby", "Connected"]);
            compare(texts(row("Quay")), ["Quay", "Connected", "5"]);
            compare(texts(row("Crane")), ["Crane", "Disconnected"]);
            compare([mark("Lobby"), mark("Crane")], ["good", "critical"]);
            compare(row("Quay").Accessible.name, "Quay, Connected, 5 error(s)");
        }

        function test_withoutAServerNoStateIsKnown() {
            prepare({ "serverConnected": false });
            compare([mark("Lobby"), mark("Crane")], ["unknown", "unknown"]);
            compare(texts(row("Lobby")), ["Lobby", "State unknown"]);
        }

        function test_asksEachConnectedStationForItsSupportAndShowsTheAnswer() {
            prepare();
            compare(plugin.calls.slice().sort(),
                    ["a", "b"].map(id => "checkSupportSystemMonitor " + id));
            plugin.isSupportSystemMonitor("a", true);
            plugin.isSupportSystemMonitor("b", false);
            verify(hasText(row("Lobby"), "Connected · monitored"));
            verify(hasText(row("Quay"), "Connected · unmonitored"));
            verify(hasText(row("Crane"), "Disconnected"));
        }

        function test_asksAgainAfterAReconnection() {
            prepare();
            plugin.isSupportSystemMonitor("a", true);
            plugin.forgetCalls();
            answers.serverConnected = false;
            verify(!hasText(row("Lobby"), "Connected · monitored"));
            compare(plugin.calls, []);
            answers.serverConnected = true;
            compare(plugin.calls.length, 2);
        }

        function test_stateAndSupportOfASubStationAreReadWhole_data() {
            return [{ "tag": "narrowest", "ems": 19, "depth": 1, "lines": 1 },
                    { "tag": "deep", "ems": 21.5, "depth": 6, "lines": 2 },
                    { "tag": "wide", "ems": 40, "depth": 2, "lines": 1 }];
        }

        function test_stateAndSupportOfASubStationAreReadWhole(data) {
            const chain = [];
            for (let i = 0; i <= data.depth; ++i) {
                chain.push({ "stationID": "s" + i, "name": "s" + i, "parentID": "s" + (i - 1),
                             "connected": i < data.depth });
            }
            const last = "s" + data.depth;
            crowd.stations = chain;
            crowd.errorCounts = [{ "stationID": last, "errorNumber": 2000 }];
            prepare({ "directory": crowd });
            pane.anchors.fill = undefined;
            pane.width = Theme.em(data.ems);
            plugin.isSupportSystemMonitor(last, false);
            compare(row(last).detail, "Disconnected · unmonitored");
            tryVerify(() => !row(last).truncated);
            const detail = itemsWhere(row(last), item => item.text === row(last).detail)[0];
            tryCompare(detail, "lineCount", data.lines);
            for (const text of itemsWhere(row(last), item => item instanceof Text && item.visible)) {
                tryVerify(() => text.mapToItem(row(last), 0, 0).y >= 0
                                && text.mapToItem(row(last), 0, text.height).y <= row(last).height,
                          5000, text.text);
            }
        }

        function test_clickChooses() {
            prepare();
            const choices = spyOn(pane, "chosen");
            mouseClick(row("Quay"), 60, 10);
            compare(choices.signalArguments[0][0], "b");
        }

        function test_chosenStationIsMarked() {
            prepare({ "focusedStation": "b" });
            compare(row("Quay").Accessible.selected, true);
            compare(row("Lobby").Accessible.selected, false);
        }

        function test_keysMoveAndChoose() {
            prepare({ "focusedStation": "b" });
            const choices = spyOn(pane, "chosen");
            const list = itemsWhere(pane, item => item instanceof ListView)[0];
            list.forceActiveFocus(Qt.TabFocusReason);
            compare(row("Quay").current, true);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_Home);
            keyClick(Qt.Key_Space);
            keyClick(Qt.Key_End);
            keyClick(Qt.Key_Enter);
            compare(choices.signalArguments.map(list => list[0]), ["b/c", "a", "b/c"]);
        }

        function test_pageKeysMoveByAPage() {
            const many = [];
            for (let i = 0; i < 50; ++i)
                many.push({ "stationID": "s" + i, "name": "", "parentID": "", "connected": true });
            crowd.stations = many;
            prepare({ "directory": crowd });
            const list = itemsWhere(pane, item => item instanceof ListView)[0];
            list.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_PageDown);
            verify(list.currentIndex > 3);
            compare(list.currentIndex, list.rowsPerPage);
            keyClick(Qt.Key_PageUp);
            compare(list.currentIndex, 0);
        }

        function test_aNameThatDoesNotFitIsToldToTheKeyboard() {
            crowd.stations = [{ "stationID": "x", "name": "A very long name ".repeat(5),
                                "parentID": "", "connected": true },
                              { "stationID": "y", "name": "Short", "parentID": "",
                                "connected": true }];
            prepare({ "directory": crowd });
            verify(row(crowd.stations[0].name).truncated);
            verify(!row("Short").truncated);
            const list = itemsWhere(pane, item => item instanceof ListView)[0];
            list.forceActiveFocus(Qt.TabFocusReason);
            tryVerify(() => tipTexts().includes(crowd.stations[0].name + "\nConnected"));
            keyClick(Qt.Key_Down);
            tryVerify(() => tipTexts().length === 0);
        }

        function test_badgeAndKeyFilter() {
            prepare();
            const filters = spyOn(pane, "filterRequested");
            const choices = spyOn(pane, "chosen");
            click("Show the 5 error(s)");
            compare(filters.signalArguments[0][0], "b");
            const list = itemsWhere(pane, item => item instanceof ListView)[0];
            list.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Home);
            keyClick(Qt.Key_F);
            compare(filters.signalArguments[1][0], "a");
            compare(choices.count, 0);
        }

        function test_keyboardPlaceSurvivesNewCounts() {
            prepare();
            const list = itemsWhere(pane, item => item instanceof ListView)[0];
            list.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_End);
            const old = stations.errorCounts;
            stations.errorCounts = [{ "stationID": "a", "errorNumber": 1 }];
            compare(list.currentIndex, 2);
            stations.errorCounts = old;
        }

        function test_noStations() {
            prepare({ "directory": nobody });
            verify(hasText(pane, "No stations"));
        }
    }
}
