pragma ComponentBehavior: Bound

import QtQuick
import Dashboard

Item {
    StationDirectory {
        id: stations

        statesKnown: true
    }

    Component {
        id: supportComponent

        MonitoringSupport {
            surface: null
            directory: stations
        }
    }

    DashboardCase {
        name: "MonitoringSupport"

        property var plugin
        property MonitoringSupport support

        function station(connected) {
            return { "stationID": "a", "name": "", "parentID": "", "connected": connected };
        }

        function cleanup() {
            stations.statesKnown = true;
            stations.stations = [];
        }

        function prepare(connected) {
            plugin = makePlugin();
            support = make(supportComponent, { "surface": plugin, "serverConnected": connected });
        }

        function test_asksOnce() {
            prepare(true);
            support.ask("a");
            support.ask("a");
            compare(plugin.calls, ["checkSupportSystemMonitor a"]);
            compare(support.answerOf("a"), undefined);
            plugin.isSupportSystemMonitor("a", false);
            support.ask("a");
            compare(plugin.calls.length, 1);
            compare(support.answerOf("a"), false);
        }

        function test_asksAgainWhatTheHostDidNotTakeOn() {
            prepare(true);
            plugin.accepting = false;
            support.ask("a");
            plugin.accepting = true;
            support.ask("a");
            compare(plugin.calls.length, 2);
        }

        function test_asksNothingWithoutAServerOrAStation() {
            prepare(false);
            support.ask("a");
            support.serverConnected = true;
            support.ask("");
            compare(plugin.calls, []);
        }

        function test_forgetsItsAnswersWithTheConnection() {
            prepare(true);
            plugin.isSupportSystemMonitor("a", true);
            compare(support.answerOf("a"), true);
            support.serverConnected = false;
            compare(support.answerOf("a"), undefined);
        }

        function test_asksAStationThatIsAwayWhenItIsBack() {
            stations.stations = [station(false)];
            prepare(true);
            support.ask("a");
            compare(plugin.calls, []);
            const revisions = spyOn(support, "revisionChanged");
            stations.stations = [station(true)];
            compare(revisions.count, 1);
            support.ask("a");
            compare(plugin.calls.length, 1);
        }

        function test_forgetsTheAnswerOfAStationThatIsBack() {
            stations.stations = [station(true)];
            prepare(true);
            plugin.isSupportSystemMonitor("a", false);
            stations.stations = [station(true)];
            compare(support.answerOf("a"), false);
            stations.stations = [station(false)];
            compare(support.answerOf("a"), false);
            stations.stations = [station(true)];
            compare(support.answerOf("a"), undefined);
            support.ask("a");
            compare(plugin.calls.length, 1);
        }

        function test_forgetsWhatWasAnsweredBeforeTheStatesWereKnown() {
            stations.statesKnown = false;
            stations.stations = [station(true)];
            prepare(true);
            support.ask("a");
            plugin.isSupportSystemMonitor("a", false);
            stations.statesKnown = true;
            compare(support.answerOf("a"), undefined);
        }

        function test_answersThatNobodyAskedForCount() {
            prepare(true);
            plugin.isSupportSystemMonitor("b", true);
            compare(support.answerOf("b"), true);
        }
    }
}
