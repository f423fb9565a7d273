pragma ComponentBehavior: Bound

import QtQuick
import Dashboard
import Dashboard.Testing

Item {
    id: root

    width: 900
    height: 500

    StationDirectory {
        id: stations

        statesKnown: true
        stations: [
            { "stationID": "st1", "name": "Lobby", "parentID": "", "connected": true },
            { "stationID": "st10", "name": "Quay", "parentID": "", "connected": true },
            { "stationID": "st2", "name": "Parking", "parentID": "", "connected": false }
        ]
    }

    FakeFiles {
        id: host
    }

    TextEdit {
        id: pasteboard

        visible: false
    }

    Component {
        id: paneComponent

        ErrorsPane {
            anchors.fill: parent
            surface: null
            directory: stations
            serverConnected: true
        }
    }

    DashboardCase {
        name: "ErrorsPane"

        property var plugin
        property ErrorsPane pane

        function prepare(properties) {
            plugin = makePlugin();
            plugin.addError(3, "st1", "st1/c1", ["Lobby", "Door 1"], now - second);
            plugin.addError(3, "st10", "st10/c2", ["Quay", "Gate+2"], now - minute);
            plugin.addError(4, "st2", "", ["Parking"], now - hour);
            plugin.addError(0, "st1", "", ["Lobby"], now - 2 * hour);
            pane = make(paneComponent, Object.assign({
                "surface": plugin, "statesSince": new Date(now - hour)
            }, properties ?? {}));
            waitForRendering(pane);
            pane.focusList();
        }

        function cleanup() {
            pane = null;
            plugin = null;
        }

        function shownIDs() {
            const ids = [];
            for (let row = 0; row < pane.proxy.rowCount(); ++row)
                ids.push(pane.selection.idAt(row));
            return ids;
        }

        function typeText(text) {
            pane.focusTextFilter();
            for (const letter of text)
                keyClick(letter);
        }

        function test_countsEqualTheList() {
            prepare();
            tryVerify(() => hasText(pane, "4"));
            pane.filters.text = "door";
            tryVerify(() => hasText(pane, "1 of 4"));
            plugin.removeError("3_st1/c1");
            tryVerify(() => hasText(pane, "0 of 3"));
            pane.filters.clear();
            tryVerify(() => hasText(pane, "3"));
            keyClick(Qt.Key_A, Qt.ControlModifier);
            tryVerify(() => hasText(pane, "3 · 3 selected"));
        }

        function test_categoryFilter() {
            prepare();
            click("Category: Cameras");
            compare(shownIDs(), ["3_st1/c1", "3_st10/c2"]);
            tryVerify(() => inWindow("Category: Cameras").Accessible.checked);
            tryVerify(() => hasText(pane, "cameras only: hides 2 error(s)"));
            click("Category: Stations");
            compare(shownIDs(), ["4_st2", "0_st1"]);
            click("Category: All");
            compare(shownIDs().length, 4);
        }

        function test_chosenCategoryStaysChosenWhenClickedAgain() {
            prepare();
            click("Category: Cameras");
            click("Category: Cameras");
            tryVerify(() => inWindow("Category: Cameras").checked);
            verify(!inWindow("Category: All").checked);
        }

        function test_stationFilterByKeyboard() {
            prepare();
            inWindow("Station").forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            keyClick(Qt.Key_End);
            keyClick(Qt.Key_Return);
            compare(pane.filters.stationID, "st2");
            compare(shownIDs(), ["4_st2"]);
            compare(inWindow("Station").displayText, "Parking");
        }

        function test_aLongStationIsReadWholeInItsFilter() {
            prepare();
            pane.filters.stationID = "a station that the host does not list any more";
            inWindow("Station").forceActiveFocus(Qt.TabFocusReason);
            tryVerify(() => tipTexts().includes(pane.filters.stationID));
        }

        function test_stationFilterTellsWhichStationsItShows() {
            prepare();
            pane.filters.stationID = "st1";
            compare(shownIDs(), ["3_st1/c1", "3_st10/c2", "0_st1"]);
            tryVerify(() => hasText(pane, "Lobby and 1 more station(s): hides 1 error(s)"));
            pane.filters.stationID = "st2";
            tryVerify(() => hasText(pane, "Parking: hides 3 error(s)"));
        }

        function test_textFilterIsLiteralAndIgnoresCase() {
            prepare();
            typeText("gate+2");
            tryCompare(pane.filters, "text", "gate+2");
            compare(shownIDs(), ["3_st10/c2"]);
            tryVerify(() => hasText(pane, "“gate+2”: hides 3 error(s)"));
        }

        function test_textFilterWaitsForTheTypist() {
            prepare();
            typeText("do");
            compare(pane.filters.text, "");
            keyClick(Qt.Key_Return);
            compare(pane.filters.text, "do");
        }

        function test_filtersAreClearedTogether() {
            prepare();
            typeText("nothing of the kind");
            keyClick(Qt.Key_Return);
            click("Category: Cameras");
            pane.filters.stationID = "st1";
            compare(shownIDs(), []);
            click("Clear (Esc)");
            compare(pane.filters.active, false);
            compare(shownIDs().length, 4);
            compare(inWindow("Filter by error or device").text, "");
            compare(inWindow("Station").displayText, "All stations");
            tryVerify(() => inWindow("Category: All").checked);
            compare(named(pane, "Clear (Esc)"), null);
        }

        function test_unappliedTextIsClearedToo() {
            prepare();
            click("Category: Cameras");
            typeText("doo");
            pane.filters.clear();
            compare(inWindow("Filter by error or device").text, "");
            compare(inWindow("Filter by error or device").waiting, false);
            compare(pane.filters.text, "");
        }

        function test_eachPaneFiltersForItself() {
            prepare();
            const other = make(paneComponent, { "surface": plugin });
            pane.filters.categories = ErrorKinds.cameraCategory;
            compare(pane.proxy.rowCount(), 2);
            compare(other.proxy.rowCount(), 4);
        }

        function test_allIsWell() {
            prepare();
            plugin.clearErrors();
            tryVerify(() => inWindow("No errors") !== null);
            compare(inWindow("No errors").status, "good");
        }

        function test_whatIsSnoozedIsNotCalledWell() {
            prepare({ "snoozed": 2 });
            plugin.clearErrors();
            tryVerify(() => inWindow("2 error(s) snoozed, no others") !== null);
            compare(inWindow("2 error(s) snoozed, no others").status, "unknown");
            pane.snoozed = 0;
            compare(inWindow("No errors").status, "good");
            pane.snoozed = 1;
            pane.serverConnected = false;
            verify(inWindow("Server connection lost"));
        }

        function test_freshConnectionIsNotCalledWell() {
            prepare({ "connectionSince": new Date(now - 3 * second) });
            plugin.clearErrors();
            tryVerify(() => inWindow("Checking the site") !== null);
            Clock.now = now + 8 * second;
            tryVerify(() => inWindow("No errors") !== null);
        }

        function test_nothingIsCalledWellWhileTheStatesAreUnknown() {
            prepare({ "connectionSince": new Date(now - hour), "statesSince": undefined });
            plugin.clearErrors();
            tryVerify(() => inWindow("Checking the site") !== null);
            compare(inWindow("Checking the site").status, "unknown");
            compare(inWindow("Checking the site").Accessible.description,
                    "The states of the devices are not known yet.");
            Clock.now = now + hour;
            pane.statesSince = new Date(now + hour);
            compare(inWindow("Checking the site").Accessible.description,
                    "The states of the devices have just come.");
            Clock.now += 11 * second;
            tryVerify(() => inWindow("No errors") !== null);
        }

        function test_theChosenStationStaysNamedWhenItIsGone() {
            prepare();
            pane.filters.stationID = "st9";
            compare(inWindow("Station").displayText, "st9");
            pane.filters.stationID = "st2";
            compare(inWindow("Station").displayText, "Parking");
            const before = stations.stations;
            stations.stations = before.slice(0, 2);
            compare(inWindow("Station").displayText, "st2");
            stations.stations = before;
            compare(inWindow("Station").displayText, "Parking");
            pane.filters.clear();
            compare(inWindow("Station").displayText, "All stations");
        }

        function test_aFilterThatHidesAllSaysHowMany() {
            prepare();
            pane.filters.text = "nothing of the kind";
            tryVerify(() => inWindow("A filter hides 4 error(s)") !== null);
            tryVerify(() => inWindow("A filter hides 4 error(s)").status !== "good");
        }

        function test_aFilterOverAnEmptyListHidesNothing() {
            prepare();
            pane.filters.text = "nothing of the kind";
            plugin.clearErrors();
            tryVerify(() => inWindow("No errors") !== null);
        }

        function test_lostServerIsNeverGreen() {
            prepare({ "serverConnected": false, "connectionSince": new Date(now - hour) });
            plugin.clearErrors();
            tryVerify(() => inWindow("Server connection lost") !== null);
            const state = inWindow("Server connection lost");
            compare(state.status, "critical");
            compare(state.Accessible.description,
                    "Nothing is known about the site since 2024-05-14 13:07:33 CEST.");
            tryVerify(() => hasText(pane, "unknown"));
            verify(!hasText(pane, "0"));
            pane.connectionSince = undefined;
            compare(state.Accessible.description, "Nothing is known about the site.");
        }

        function test_lostServerSaysWhyAndWhenItIsTriedAgain() {
            prepare({ "serverConnected": false, "connectionFailure": "%1 is refused",
                      "nextAttempt": new Date(now + 2500) });
            plugin.clearErrors();
            tryVerify(() => inWindow("Server connection lost") !== null);
            const state = inWindow("Server connection lost");
            const lines = () => state.Accessible.description.split("\n").slice(1);
            compare(lines(), ["Reason: %1 is refused", "Next try in 3 s"]);
            Clock.now = now + 3 * second;
            compare(lines(), ["Reason: %1 is refused", "Trying to connect"]);
            pane.nextAttempt = undefined;
            compare(lines(), ["Reason: %1 is refused"]);
            pane.serverConnected = true;
            compare(lines(), []);
        }

        function test_snoozeNeedsASelectedDisconnectionAndAServer() {
            prepare();
            const button = inWindow("Snooze");
            compare(button.enabled, false);
            pane.selection.selectOnly(3);
            compare(button.enabled, false);
            pane.selection.toggle(0);
            compare(button.enabled, true);
            compare(button.text, "Snooze 1");
            pane.serverConnected = false;
            compare(button.enabled, false);
        }

        function test_snoozeMenu_data() {
            return [
                { "tag": "15 minutes", "item": "15 minutes", "seconds": 900 },
                { "tag": "1 hour", "item": "1 hour", "seconds": 3600 },
                { "tag": "8 hours", "item": "8 hours", "seconds": 28800 }
            ];
        }

        function test_snoozeMenu(data) {
            prepare();
            pane.selection.selectAll();
            click("Snooze 3");
            click(data.item);
            const end = now / 1000 + data.seconds;
            compare(plugin.calls, ["setSnooze st1/c1 " + end + " 3",
                                   "setSnooze st10/c2 " + end + " 3", "setSnooze st2 " + end + " 4"]);
        }

        function test_snoozesEndInTheServersTime() {
            prepare();
            setServerTime(now + 10 * hour, 60);
            Clock.now += second;
            pane.selection.selectOnly(0);
            pane.snoozeFor(900);
            compare(plugin.calls, ["setSnooze st1/c1 " + (now / 1000 + 36000 + 60 + 900) + " 3"]);
            pane.askSnoozeMoment();
            tryVerify(() => inWindow("Hour") !== null);
            compare([inWindow("Day").value, inWindow("Hour").value], [15, 2]);
            keyClick(Qt.Key_Escape);
        }

        function test_tellsWhichNodesAreToBeSnoozed() {
            prepare();
            const asked = spyOn(pane, "snoozeAsked");
            pane.selection.selectAll();
            pane.snoozeFor(60);
            compare(asked.signalArguments[0][0], [
                { "nodeID": "st1/c1", "type": 3, "stationID": "st1", "device": "Door 1" },
                { "nodeID": "st10/c2", "type": 3, "stationID": "st10", "device": "Gate+2" },
                { "nodeID": "st2", "type": 4, "stationID": "st2", "device": "Parking" }
            ]);
            compare(asked.signalArguments[0][1], now / 1000 + 60);
            plugin.accepting = false;
            pane.snoozeFor(60);
            compare(asked.count, 1);
        }

        function test_snoozeByKeyboard() {
            prepare();
            keyClick(Qt.Key_Home);
            keyClick(Qt.Key_S);
            tryVerify(() => inWindow("1 hour") !== null);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Return);
            compare(plugin.calls, ["setSnooze st1/c1 " + (now / 1000 + 3600) + " 3"]);
        }

        function test_snoozeUntilAMoment() {
            prepare();
            keyClick(Qt.Key_Home);
            click("Snooze 1");
            click("Until…");
            tryVerify(() => inWindow("Hour") !== null);
            keyClick(Qt.Key_Up);
            keyClick(Qt.Key_Return);
            const end = new Date(2024, 4, 14, 17, 0, 0).getTime() / 1000;
            compare(plugin.calls, ["setSnooze st1/c1 " + end + " 3"]);
        }

        function test_escapeClosesTheMenuOnly() {
            prepare();
            pane.filters.text = "d";
            pane.selection.selectAll();
            keyClick(Qt.Key_S);
            tryVerify(() => inWindow("1 hour") !== null);
            keyClick(Qt.Key_Escape);
            tryVerify(() => inWindow("1 hour") === null);
            compare(pane.filters.text, "d");
            compare(plugin.calls, []);
        }

        function test_contextMenu() {
            prepare();
            const requests = spyOn(pane, "stationRequested");
            keyClick(Qt.Key_Home);
            keyClick(Qt.Key_Menu);
            click("Show the station's usage");
            compare(requests.signalArguments[0][0], "st1");
        }

        function test_contextMenuSnoozes() {
            prepare();
            keyClick(Qt.Key_Home);
            keyClick(Qt.Key_Menu);
            tryVerify(() => inWindow("Show the station's usage") !== null);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Right);
            tryVerify(() => inWindow("15 minutes") !== null);
            click("15 minutes");
            compare(plugin.calls, ["setSnooze st1/c1 " + (now / 1000 + 900) + " 3"]);
        }

        function test_reconnects() {
            prepare();
            const notices = spyOn(pane, "noticed");
            click("Reconnect");
            click("All disconnected cameras");
            click("Reconnect");
            click("All disconnected sub-stations");
            compare(plugin.calls, ["reconnectDisconnectCameras", "reconnectDisconnectSubstations"]);
            compare(notices.count, 2);
        }

        function test_reconnectNeedsAServerButNoErrors() {
            prepare();
            const button = inWindow("Reconnect");
            plugin.clearErrors();
            tryCompare(pane.total, "count", 0);
            compare(button.enabled, true);
            pane.serverConnected = false;
            compare(button.enabled, false);
        }

        function test_copiesTheSelectionInTheOrderOfTheList() {
            prepare();
            const notices = spyOn(pane, "noticed");
            pane.selection.selectOnly(2);
            pane.selection.toggle(0);
            keyClick(Qt.Key_C, Qt.ControlModifier);
            pasteboard.text = "";
            pasteboard.paste();
            compare(pasteboard.text.split("\n"), [
                "2024-05-14 14:07:32 CEST\tCamera disconnected\tStation: Lobby / Camera: Door 1"
                    + "\tst1\tst1/c1",
                "2024-05-14 13:07:33 CEST\tStation disconnected\tStation: Parking\tst2\t"
            ]);
            compare(notices.signalArguments[0][1], "2 error(s) copied");
        }

        function test_copiesThroughTheHostWhereItCan() {
            let content = "";
            prepare({ "clipboard": { "put": text => content = text } });
            pane.selection.selectOnly(2);
            keyClick(Qt.Key_C, Qt.ControlModifier);
            compare(content, "2024-05-14 13:07:33 CEST\tStation disconnected\tStation: Parking"
                             + "\tst2\t");
        }

        function test_copyingNothingLeavesTheClipboard() {
            prepare();
            const notices = spyOn(pane, "noticed");
            keyClick(Qt.Key_C, Qt.ControlModifier);
            compare(notices.count, 0);
        }

        function test_exportsWhatTheListShows() {
            prepare({ "files": host });
            const notices = spyOn(pane, "noticed");
            pane.filters.categories = ErrorKinds.cameraCategory;
            tryCompare(pane.shown, "count", 2);
            click("Export");
            tryVerify(() => inWindow("File")?.activeFocus ?? false);
            keyClick(Qt.Key_Return);
            const path = "/home/user/Documents/errors-2024-05-14-140733.csv";
            compare(host.content(path).split("\r\n"), [
                "Error,Device,Station,Age,Since (CEST),Station ID,Device ID",
                "Camera disconnected,Door 1,Lobby,1 s,2024-05-14 14:07:32,st1,st1/c1",
                "Camera disconnected,Gate+2,Quay,1 min,2024-05-14 14:06:33,st10,st10/c2",
                ""
            ]);
            compare(notices.signalArguments[0][1], "2 error(s) saved as " + path);
        }

        function test_exportNeedsErrorsAndAHostThatWrites() {
            prepare();
            compare(inWindow("Export"), null);
            pane.exportShown();
            pane.files = host;
            tryVerify(() => inWindow("Export") !== null);
            compare(inWindow("Export").enabled, true);
            plugin.clearErrors();
            tryCompare(inWindow("Export"), "enabled", false);
            pane.exportShown();
            compare(inWindow("File"), null);
        }

        function test_withoutASurfaceThereIsAnEmptyList() {
            pane = make(paneComponent);
            compare(pane.total.count, 0);
        }

        function test_snoozeAnswersAreNoticed() {
            prepare();
            const notices = spyOn(pane, "noticed");
            plugin.setSnoozeResponse(false);
            compare(notices.signalArguments[0][0], "critical");
            compare(notices.signalArguments[0][1], "The server refused 1 snooze(s)");
        }
    }
}
