import QtQuick
import QtTest
import Dashboard

Item {
    Component {
        id: supportComponent

        MonitoringSupport {
            surface: null
        }
    }

    DashboardCase {
        name: "MonitoringSupport"

        property var plugin
        property MonitoringSupport support

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

        function test_answersThatNobodyAskedForCount() {
            prepare(true);
            plugin.isSupportSystemMonitor("b", true);
            compare(support.answerOf("b"), true);
        }
    }
}
