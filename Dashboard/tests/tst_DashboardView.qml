import QtQuick
import QtQuick.Controls.Basic
import Dashboard
import Dashboard.Testing

Item {
    id: root

    width: 1400
    height: 800

    FakeFiles {
        id: host
    }

    FakeLog {
        id: journal
    }

    Component {
        id: viewComponent

        DashboardView {
            siteName: "Harbour"
            serverConnected: true
            statesSince: new Date(2024, 4, 14)
            stations: [
                { "stationID": "a", "name": "Lobby", "parentID": "", "connected": true },
                { "stationID": "b", "name": "Quay", "parentID": "", "connected": true }
            ]
        }
    }

    DashboardCase {
        name: "DashboardView"

        property var plugin
        property DashboardView view

        function prepare(properties) {
            plugin = makePlugin();
            plugin.addError(3, "b", "b/1", ["Quay", "Gate"], now - minute);
            plugin.addError(4, "a", "", ["Lobby"], now - hour);
            view = make(viewComponent, Object.assign({ "plugin": plugin }, properties ?? {}));
            view.forceActiveFocus();
            waitForRendering(view);
        }

        function pane(type) {
            return itemsWhere(view, item => item instanceof type)[0];
        }

        /// The control that has the keyboard; a list has it when one of its rows does.
        function focusItem() {
            return itemsWhere(view, item => item.activeFocus && item.activeFocusOnTab)[0];
        }

        /// What the Tab key reaches, starting anywhere, until it comes back.
        function tabRound(key) {
            const round = [];
            for (let i = 0; i < 60; ++i) {
                keyClick(key);
                const item = focusItem();
                if (round.includes(item))
                    return round;
                round.push(item);
            }
            fail("the Tab key never comes back");
        }

        function test_fillsItsParent() {
            prepare();
            compare([view.width, view.height], [root.width, root.height]);
        }

        function test_startsOnTheErrorList() {
            prepare();
            verify(pane(ErrorsPane).hasFocus);
            keyClick(Qt.Key_Home);
            verify(hasText(view, "2 · 1 selected"));
        }

        function test_stationsShowTheNumbersOfTheirErrors() {
            prepare();
            verify(inWindow("Quay, Connected, 1 error(s)"));
            plugin.addError(3, "b", "b/2", ["Quay", "Pier"], now);
            tryVerify(() => inWindow("Quay, Connected, 2 error(s)") !== null);
        }

        function test_tabReachesEveryControlBothWays() {
            prepare();
            plugin.notifyServerReachingLimited("Main", 95);
            keyClick(Qt.Key_A, Qt.ControlModifier);
            const controls = itemsWhere(view, item => item.visible && item.enabled
                                                      && item.activeFocusOnTab);
            verify(controls.length >= 10);
            const forward = tabRound(Qt.Key_Tab);
            const back = tabRound(Qt.Key_Backtab);
            for (const control of controls) {
                verify(forward.includes(control), control + " " + control.Accessible.name);
                verify(back.includes(control), control + " " + control.Accessible.name);
            }
        }

        function test_everyControlHasAnAccessibleName() {
            prepare();
            plugin.notifyServerReachingLimited("Main", 95);
            const controls = itemsWhere(view, item => item.visible
                                                      && (item.activeFocusOnTab
                                                          || item instanceof AbstractButton));
            for (const control of controls)
                verify(control.Accessible.name !== "", control);
        }

        function test_focusIsSeen() {
            prepare();
            for (const item of tabRound(Qt.Key_Tab)) {
                item.forceActiveFocus(Qt.TabFocusReason);
                const marks = itemsWhere(view, mark => mark.visible && (mark instanceof FocusRing
                                                                        || mark instanceof RowRing));
                compare(marks.length, 1, item.Accessible.name);
            }
        }

        function test_focusIsSeenOnEmptyLists() {
            prepare({ "stations": [] });
            plugin.clearErrors();
            tryCompare(pane(ErrorTable), "count", 0);
            for (const type of [ErrorTable, ThemedList]) {
                pane(type).forceActiveFocus(Qt.TabFocusReason);
                tryVerify(() => itemsWhere(view, mark => mark.visible
                                                         && mark instanceof FocusRing).length === 1);
            }
        }

        function test_focusIsSeenWhenErrorsComeToAnEmptyList() {
            prepare();
            const rings = () => itemsWhere(pane(ErrorsPane), item => item instanceof FocusRing
                                                                     && item.visible).length;
            plugin.clearErrors();
            tryCompare(pane(ErrorTable), "count", 0);
            plugin.addError(4, "a", "", ["Lobby"], now);
            tryCompare(pane(ErrorTable), "count", 1);
            compare(rings(), 1);
            keyClick(Qt.Key_Down);
            compare([rings(), pane(ErrorTable).currentIndex], [0, 0]);
        }

        function test_findKeyGoesToTheTextFilter() {
            prepare();
            keyClick(Qt.Key_F, Qt.ControlModifier);
            verify(inWindow("Filter by error or device").activeFocus);
        }

        function test_exportKeySavesTheErrorsShown() {
            prepare({ "files": host });
            keyClick(Qt.Key_E, Qt.ControlModifier);
            tryVerify(() => inWindow("File")?.activeFocus ?? false);
            keyClick(Qt.Key_Return);
            tryVerify(() => itemsWhere(view, item => item instanceof NoticeBar)[0].text
                      === "2 error(s) saved as /home/user/Documents/errors-2024-05-14-140733.csv");
        }

        function tabs() {
            return itemsWhere(view, item => item instanceof TabStrip)[0].tabs.map(tab => tab.key);
        }

        function test_tabsTurnThePages() {
            prepare();
            compare(tabs(), ["overview", "snoozed", "log"]);
            click("Snoozed");
            verify(pane(SnoozedPage).visible);
            verify(!pane(OverviewPage).visible);
            click("Log");
            verify(pane(LogPage).visible);
            click("Overview");
            verify(pane(OverviewPage).visible);
        }

        function test_keysTurnThePages() {
            prepare();
            keyClick(Qt.Key_PageDown, Qt.ControlModifier);
            compare(view.page, "snoozed");
            verify(inWindow("Snoozed").activeFocus);
            keyClick(Qt.Key_PageUp, Qt.ControlModifier);
            keyClick(Qt.Key_PageUp, Qt.ControlModifier);
            compare(view.page, "log");
        }

        function test_panesArePagesWhereThereIsNoRoom() {
            prepare();
            view.anchors.fill = undefined;
            view.width = Theme.em(50);
            compare(tabs(), ["errors", "stations", "usage", "snoozed", "log"]);
            waitForRendering(view);
            click("Usage");
            verify(pane(FocusedStationPanel).visible);
            verify(!pane(ErrorsPane).visible);
            click("Log");
            verify(!pane(OverviewPage).visible);
            click("Errors");
            verify(pane(ErrorsPane).visible);
        }

        function test_theKeyboardFollowsToTheOnlyPane() {
            prepare();
            view.anchors.fill = undefined;
            view.width = Theme.em(50);
            keyClick(Qt.Key_Home);
            keyClick(Qt.Key_Return);
            verify(inWindow("Usage").activeFocus);
        }

        function test_everyPageIsReachedByTab_data() {
            return [{ "tag": "snoozed" }, { "tag": "log" }];
        }

        function test_everyPageIsReachedByTab(data) {
            prepare({ "files": host, "operationalLog": journal,
                      "snoozes": [{ "nodeID": "b/1", "type": 3, "until": now + hour, "name": "" }] });
            view.page = data.tag;
            waitForRendering(view);
            const controls = itemsWhere(view, item => item.visible && item.enabled
                                                      && item.activeFocusOnTab);
            const round = tabRound(Qt.Key_Tab);
            for (const control of controls) {
                verify(round.includes(control), control + " " + control.Accessible.name);
                verify(control.Accessible.name !== "", control);
                control.forceActiveFocus(Qt.TabFocusReason);
                const marks = itemsWhere(view, mark => mark.visible && (mark instanceof FocusRing
                                                                        || mark instanceof RowRing));
                compare(marks.length, 1, control.Accessible.name);
            }
        }

        function test_snoozesAreCountedOnTheirTab() {
            prepare({ "snoozes": [{ "nodeID": "b/1", "type": 3, "until": now + hour, "name": "" }] });
            tryVerify(() => inWindow("Snoozed 1") !== null);
        }

        function test_aListThatSnoozesHaveEmptiedIsNotCalledWell() {
            prepare({ "snoozes": [{ "nodeID": "b/1", "type": 3, "until": now + hour, "name": "" }] });
            plugin.clearErrors();
            tryVerify(() => inWindow("1 error(s) snoozed, no others") !== null);
            view.snoozes = [];
            tryVerify(() => inWindow("No errors") !== null);
        }

        function test_snoozesMadeHereAreListed() {
            prepare();
            keyClick(Qt.Key_Home);
            pane(ErrorsPane).snoozeFor(3600);
            tryVerify(() => inWindow("Snoozed 1") !== null);
            plugin.removeError("3_b/1");
            click("Snoozed 1");
            tryVerify(() => hasText(pane(SnoozedPage), "1"));
            verify(hasText(view, "asked here 14:07:33 CEST"));
        }

        function test_snoozesLeadToTheirStation() {
            prepare({ "snoozes": [{ "nodeID": "b/1", "type": 3, "until": now + hour, "name": "" }] });
            view.page = "snoozed";
            tryVerify(() => inWindow("Snoozed 1") !== null);
            pane(SnoozedPage).requestStation(0);
            compare(plugin.focusStationResource, "b");
            compare(view.page, "overview");
            verify(inWindow("Overview").activeFocus);
        }

        function test_keysOfTheLog() {
            prepare({ "files": host, "operationalLog": journal });
            journal.add(now, "Entry", []);
            view.page = "log";
            keyClick(Qt.Key_F, Qt.ControlModifier);
            verify(inWindow("Search the log").activeFocus);
            keyClick("x");
            keyClick(Qt.Key_Escape);
            compare(inWindow("Search the log").text, "");
            keyClick(Qt.Key_E, Qt.ControlModifier);
            tryVerify(() => inWindow("File")?.activeFocus ?? false);
        }

        function test_findKeyLeavesAPageWithoutAFilter() {
            prepare();
            view.page = "snoozed";
            keyClick(Qt.Key_F, Qt.ControlModifier);
            compare(view.page, "overview");
            verify(inWindow("Filter by error or device").activeFocus);
        }

        function test_coloursFollowTheHostAndTheUser() {
            prepare({ "dark": false });
            compare(Theme.dark, false);
            click("Switch to dark colours");
            compare(view.dark, true);
            view.dark = false;
            compare(Theme.dark, false);
        }

        function test_keysChangeTheSizeOfEverything() {
            prepare();
            const usual = Theme.em(10);
            const tall = pane(ErrorRow).height;
            keyClick(Qt.Key_Plus, Qt.ControlModifier);
            verify(Theme.em(10) > usual);
            tryVerify(() => pane(ErrorRow).height > tall);
            compare(view.zoom, Theme.zoom);
            keyClick(Qt.Key_Minus, Qt.ControlModifier);
            keyClick(Qt.Key_Minus, Qt.ControlModifier);
            verify(Theme.zoom < 1);
            keyClick(Qt.Key_0, Qt.ControlModifier);
            compare(Theme.em(10), usual);
        }

        function test_sizeFollowsTheHost() {
            prepare({ "zoom": 2 });
            compare(Theme.zoom, 2);
            view.zoom = 1.5;
            compare(Theme.zoom, 1.5);
        }

        function test_withoutAWordFromTheHostTheColoursStay() {
            Theme.dark = false;
            prepare();
            compare([Theme.dark, view.dark], [false, false]);
        }

        function test_escapeClearsTheFiltersFromAnywhere() {
            prepare();
            const filters = pane(ErrorsPane).filters;
            filters.categories = ErrorKinds.cameraCategory;
            keyClick(Qt.Key_Escape);
            compare(filters.active, false);
            keyClick(Qt.Key_F, Qt.ControlModifier);
            keyClick("x");
            keyClick(Qt.Key_Escape);
            compare(inWindow("Filter by error or device").text, "");
            filters.stationID = "a";
            inWindow("Station").forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Escape);
            compare(filters.active, false);
        }

        function test_escapeLeavesFiltersThatAreOutOfSight() {
            prepare();
            const filters = pane(ErrorsPane).filters;
            filters.categories = ErrorKinds.cameraCategory;
            view.page = "snoozed";
            keyClick(Qt.Key_Escape);
            compare(filters.active, true);
        }

        function test_lostServerShowsNothingGreen() {
            prepare({ "serverConnected": false });
            plugin.clearErrors();
            waitForRendering(view);
            const marks = itemsWhere(view, item => item instanceof StateMark && item.visible);
            verify(marks.length >= 4);
            compare(marks.filter(mark => mark.status === "good"), []);
            verify(!hasText(view, "Connected"));
        }

        function test_whatIsDoneHereIsNotGreenEither() {
            prepare({ "serverConnected": false, "files": host, "operationalLog": journal,
                      "page": "log" });
            journal.add(now, "Entry", []);
            keyClick(Qt.Key_E, Qt.ControlModifier);
            tryVerify(() => inWindow("File")?.activeFocus ?? false);
            keyClick(Qt.Key_Return);
            tryVerify(() => pane(NoticeBar).visible);
            compare(itemsWhere(view, item => item instanceof StateMark && item.visible
                                             && item.status === "good").length, 0);
        }

        function test_nothingAtTheSiteIsGreenBeforeTheStatesAreKnown() {
            prepare({ "statesSince": undefined, "connectionSince": new Date(now - hour) });
            plugin.clearErrors();
            tryVerify(() => inWindow("Quay, State unknown, 0 error(s)") !== null);
            tryVerify(() => inWindow("Checking the site") !== null);
            const good = () => itemsWhere(view, item => item instanceof StateMark && item.visible
                                                        && item.status === "good").length;
            compare(good(), 1);
            verify(hasText(pane(ErrorsPane), "unknown"));
            view.statesSince = new Date(now - minute);
            tryVerify(() => inWindow("No errors") !== null);
            compare(good(), 4);
            view.statesSince = new Date(NaN);
            compare(good(), 1);
        }

        function test_capacityWarningPushesThePageDown() {
            prepare();
            const before = pane(ErrorsPane).mapToItem(view, 0, 0).y;
            plugin.notifyServerReachingLimited("Main", 95);
            tryVerify(() => pane(ErrorsPane).mapToItem(view, 0, 0).y > before);
            click("Dismiss the warning");
            tryVerify(() => pane(ErrorsPane).mapToItem(view, 0, 0).y === before);
        }

        function test_theServersTimeIsTheHostsWord() {
            prepare({ "serverRate": 60, "serverOffset": now + hour - now * 60 });
            compare(Clock.serverNow, now + hour);
            view.serverOffset += hour;
            compare(Clock.serverNow, now + 2 * hour);
        }

        function test_anInvalidDateIsNoDate() {
            prepare({ "serverConnected": false, "connectionSince": new Date(NaN) });
            verify(hasText(view, "Nothing is known about the site"));
        }

        function test_snoozeAnswerIsNoticed() {
            prepare();
            plugin.setSnoozeResponse(true);
            verify(inWindow("1 error(s) snoozed"));
        }

        function test_stationsFollowTheHost() {
            prepare();
            view.stations = [{ "stationID": "a", "name": "Foyer", "parentID": "", "connected": false }];
            tryVerify(() => inWindow("Foyer, Disconnected, 1 error(s)") !== null);
            verify(hasText(view, "Foyer"));
        }

        function test_lightAndDarkDiffer() {
            prepare();
            const dark = grabImage(view).pixel(3, 400);
            Theme.dark = false;
            waitForRendering(view);
            verify(!Qt.colorEqual(grabImage(view).pixel(3, 400), dark));
        }

        function test_thousandsOfErrorsCreateOnlyRowsInSight() {
            prepare();
            plugin.addCameraErrors(20000, now - 2 * hour);
            tryVerify(() => hasText(view, "20002"));
            const table = pane(ErrorTable);
            tryCompare(table, "count", 20002);
            keyClick(Qt.Key_End);
            compare(table.currentIndex, 20001);
            tryVerify(() => table.itemAtIndex(20001) !== null);
            pane(ErrorsPane).filters.text = "Camera 1234";
            tryVerify(() => hasText(view, "11 of 20002"));
            pane(ErrorsPane).filters.clear();
            tryCompare(table, "count", 20002);
            verify(table.contentItem.children.length < 100);
        }
    }
}
