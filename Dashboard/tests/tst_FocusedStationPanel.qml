pragma ComponentBehavior: Bound

import QtQuick
import Dashboard

Item {
    id: root

    width: 300
    height: 500

    StationDirectory {
        id: stations

        statesKnown: true
        stations: [{ "stationID": "a", "name": "Lobby", "parentID": "", "connected": true }]
    }

    MonitoringSupport {
        id: answers

        surface: null
        directory: stations
        serverConnected: true
    }

    Component {
        id: panelComponent

        FocusedStationPanel {
            anchors.fill: parent
            surface: null
            directory: stations
            support: answers
            serverConnected: true
        }
    }

    DashboardCase {
        name: "FocusedStationPanel"

        property var plugin
        property FocusedStationPanel panel

        function prepare() {
            plugin = makePlugin();
            answers.surface = plugin;
            panel = make(panelComponent, { "surface": plugin });
            waitForRendering(panel);
        }

        function cleanup() {
            answers.serverConnected = false;
            answers.serverConnected = true;
            answers.surface = null;
            panel = null;
        }

        function cards() {
            return itemsWhere(panel, item => item instanceof UsageCard && item.visible);
        }

        function network(name, percentage, bandwidth) {
            return { "networkInterface": name, "networkPercentage": percentage,
                     "networkBandwidth": bandwidth };
        }

        function test_saysWhyThereIsNothing() {
            prepare();
            compare(panel.obstacle, "Choose a station to see its usage.");
            plugin.focusStationResource = "a";
            compare(panel.obstacle, "Waiting for the first report.");
            plugin.isSupportSystemMonitor("a", false);
            compare(panel.obstacle, "This station does not support monitoring.");
            panel.serverConnected = false;
            compare(panel.obstacle, "Nothing is known while the server is away.");
        }

        function test_aReportCountsMoreThanTheAnswer() {
            prepare();
            plugin.focusStationResource = "a";
            plugin.isSupportSystemMonitor("a", false);
            plugin.report(10, 20, []);
            compare(panel.obstacle, "");
        }

        function test_showsEachRowOfTheModel() {
            prepare();
            plugin.focusStationResource = "a";
            plugin.report(95, 20, [network("eth0", 10, 10), network("eth1", 50, 1000)]);
            tryVerify(() => cards().length === 4);
            compare(texts(cards()[0]), ["CPU usage", "95%", "over threshold 90%"]);
            compare(texts(cards()[1]), ["Memory usage", "20%", "threshold 90%"]);
            compare(texts(cards()[2]), ["Network usage · eth0", "10%", "bandwidth 10 Mbit/s · threshold 50%"]);
            compare(texts(cards()[3]),
                    ["Network usage · eth1", "50%", "bandwidth 1 Gbit/s · over threshold 50%"]);
            verify(hasText(panel, "Lobby"));
        }

        function test_historiesBeginWithTheFirstReport() {
            prepare();
            plugin.focusStationResource = "a";
            for (let i = 0; i < 3; ++i)
                plugin.report(0, 0, [network("eth0", 0, 0), network("eth1", 0, 0)]);
            tryVerify(() => cards().length === 4);
            compare(cards().map(card => card.samples.length), [3, 3, 6, 6]);
        }

        function test_anotherStationStartsAnew() {
            prepare();
            plugin.focusStationResource = "a";
            plugin.report(10, 20, []);
            plugin.focusStationResource = "b";
            compare(panel.obstacle, "Waiting for the first report.");
        }

        function test_openedLaterItFindsTheReports() {
            plugin = makePlugin();
            plugin.focusStationResource = "a";
            for (let i = 0; i < 7; ++i)
                plugin.report(0, 40, []);
            panel = make(panelComponent, { "surface": plugin });
            compare(panel.obstacle, "");
            compare(panel.reports.count, 7);
            compare(panel.stale, false);
            Clock.now = panel.reports.lastTime + 15 * second;
            verify(hasText(panel, "No report for 15 s"));
        }

        function test_missingReportsAreTold() {
            prepare();
            plugin.focusStationResource = "a";
            plugin.report(10, 20, []);
            compare(panel.stale, false);
            Clock.now = panel.reports.lastTime + 15 * second;
            compare(panel.stale, true);
            verify(hasText(panel, "No report for 15 s"));
        }

        function test_cardsScrollByKeyboardWhenTheyDoNotFit() {
            prepare();
            plugin.focusStationResource = "a";
            plugin.report(1, 2, ["a", "b", "c", "d", "e", "f"].map(name => network(name, 1, 1)));
            const flick = inWindow("Usage of Lobby");
            tryVerify(() => flick.contentHeight > flick.height);
            verify(flick.activeFocusOnTab);
            flick.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Down);
            verify(flick.contentY > 0);
            keyClick(Qt.Key_Up);
            compare(flick.contentY, 0);
            for (let i = 0; i < 60; ++i)
                keyClick(Qt.Key_Down);
            compare(flick.contentY, flick.contentHeight - flick.height);
        }
    }
}
