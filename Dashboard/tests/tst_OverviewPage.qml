pragma ComponentBehavior: Bound

import QtQuick
import Dashboard

Item {
    id: root

    width: 1400
    height: 700

    StationDirectory {
        id: stations

        statesKnown: true
        stations: [
            { "stationID": "a", "name": "Lobby", "parentID": "", "connected": true },
            { "stationID": "b", "name": "Quay", "parentID": "", "connected": true }
        ]
        errorCounts: [{ "stationID": "b", "errorNumber": 1 }]
    }

    Component {
        id: pageComponent

        OverviewPage {
            height: root.height
            surface: null
            directory: stations
            serverConnected: true
        }
    }

    DashboardCase {
        name: "OverviewPage"

        property var plugin
        property OverviewPage page

        function prepare(ems) {
            plugin = makePlugin();
            plugin.addError(3, "b", "b/1", ["Quay", "Gate"], now - minute);
            plugin.addError(4, "a", "", ["Lobby"], now - hour);
            page = make(pageComponent, { "surface": plugin, "width": Theme.em(ems) });
            page.forceActiveFocus();
            waitForRendering(page);
        }

        function pane(type) {
            return itemsWhere(page, item => item instanceof type)[0];
        }

        function areShown() {
            return [pane(ErrorsPane), pane(StationsPane), pane(FocusedStationPanel)].map(
                item => item.visible);
        }

        function edges(item) {
            const topLeft = item.mapToItem(page, 0, 0);
            return { "left": topLeft.x, "right": topLeft.x + item.width, "top": topLeft.y,
                     "bottom": topLeft.y + item.height };
        }

        function test_arrangesItselfByWidth_data() {
            return [
                { "tag": "columns", "ems": 100, "arrangement": "columns", "shown": [true, true, true] },
                { "tag": "just columns", "ems": 92, "arrangement": "columns",
                  "shown": [true, true, true] },
                { "tag": "side", "ems": 80, "arrangement": "side", "shown": [true, true, false] },
                { "tag": "just side", "ems": 60, "arrangement": "side", "shown": [true, true, false] },
                { "tag": "single", "ems": 50, "arrangement": "single", "shown": [true, false, false] }
            ];
        }

        function test_arrangesItselfByWidth(data) {
            prepare(data.ems);
            compare(page.arrangement, data.arrangement);
            compare(areShown(), data.shown);
        }

        function test_panesStandSideBySideInsideThePage_data() {
            return [{ "tag": "columns", "ems": 110 }, { "tag": "side", "ems": 76 },
                    { "tag": "single", "ems": 45 }];
        }

        function test_panesStandSideBySideInsideThePage(data) {
            prepare(data.ems);
            const shown = [StationsPane, ErrorsPane, FocusedStationPanel, ClientPanel].map(
                type => pane(type)).filter(item => item.visible).map(item => edges(item));
            for (const one of shown) {
                verify(one.left >= 0 && one.top >= 0);
                verify(one.right <= page.width && one.bottom <= page.height);
                for (const other of shown.filter(other => other !== one)) {
                    verify(one.right <= other.left || other.right <= one.left
                           || one.bottom <= other.top || other.bottom <= one.top);
                }
            }
        }

        function test_tabsShowTheOtherPanes() {
            prepare(70);
            click("Usage");
            compare(areShown(), [true, false, true]);
            click("Stations");
            compare(areShown(), [true, true, false]);
        }

        function test_ownerChoosesTheOnlyPane() {
            prepare(50);
            page.pane = "stations";
            compare(areShown(), [false, true, false]);
            page.pane = "usage";
            compare(areShown(), [false, false, true]);
            page.pane = "errors";
            compare(areShown(), [true, false, false]);
        }

        function test_choosingAStationFocusesItAndAsksForItsSupport() {
            prepare(100);
            mouseClick(itemsWhere(page, item => item instanceof StationRow)[1], 60, 10);
            compare(plugin.focusStationResource, "b");
            verify(plugin.calls.includes("checkSupportSystemMonitor b"));
            compare(pane(FocusedStationPanel).stationID, "b");
            verify(itemsWhere(page, item => item instanceof StationRow)[1].focused);
        }

        function test_errorsLeadToTheirStation() {
            prepare(76);
            keyClick(Qt.Key_Home);
            keyClick(Qt.Key_Return);
            compare(plugin.focusStationResource, "b");
            compare(areShown(), [true, false, true]);
            verify(pane(ErrorsPane).hasFocus);
        }

        function test_theOnlyPaneGivesTheKeyboardBack() {
            prepare(50);
            const losses = spyOn(page, "keyboardLost");
            keyClick(Qt.Key_Home);
            keyClick(Qt.Key_Return);
            compare(areShown(), [false, false, true]);
            compare(losses.count, 1);
        }

        function test_badgeFiltersTheErrors() {
            prepare(50);
            page.pane = "stations";
            click("Show the 1 error(s)");
            compare(areShown(), [true, false, false]);
            compare(pane(ErrorsPane).filters.stationID, "b");
            verify(pane(ErrorsPane).hasFocus);
        }

        function test_textFilterIsReachedFromAnyTab() {
            prepare(50);
            page.pane = "usage";
            page.showTextFilter();
            verify(inWindow("Filter by error or device").activeFocus);
        }

        function test_growingKeepsThePanes() {
            prepare(50);
            page.pane = "usage";
            page.width = Theme.em(100);
            compare(areShown(), [true, true, true]);
            page.width = Theme.em(50);
            compare(areShown(), [true, false, false]);
        }
    }
}
