import QtQuick
import Dashboard

Item {
    Component {
        id: requestsComponent

        SnoozeRequests {
            surface: null
        }
    }

    DashboardCase {
        name: "SnoozeRequests"

        property var plugin
        property SnoozeRequests requests

        readonly property var nodes: [{ "nodeID": "a/1", "type": 3 }, { "nodeID": "b", "type": 4 }]

        function prepare() {
            plugin = makePlugin();
            requests = make(requestsComponent, { "surface": plugin });
        }

        function test_sendsOneForEachNode() {
            prepare();
            requests.send(nodes, 1700000000);
            compare(plugin.calls, ["setSnooze a/1 1700000000 3", "setSnooze b 1700000000 4"]);
            compare(requests.summary, "Waiting for the answer to 2 snooze(s)");
            compare(requests.status, "unknown");
        }

        function test_answersAreCountedTogether() {
            prepare();
            requests.send(nodes, 1);
            plugin.setSnoozeResponse(true);
            compare(requests.summary,
                    "1 error(s) snoozed · Waiting for the answer to 1 snooze(s)");
            plugin.setSnoozeResponse(true);
            compare(requests.summary, "2 error(s) snoozed");
            compare(requests.status, "done");
        }

        function test_refusalsAreTold() {
            prepare();
            requests.send(nodes, 1);
            plugin.setSnoozeResponse(true);
            plugin.setSnoozeResponse(false);
            compare(requests.summary, "1 error(s) snoozed · The server refused 1 snooze(s)");
            compare(requests.status, "critical");
        }

        function test_whatTheHostDoesNotTakeOnIsTold() {
            prepare();
            plugin.accepting = false;
            requests.send(nodes, 1);
            compare(requests.summary, "2 snooze(s) could not be sent");
            compare(requests.status, "critical");
            compare(requests.pending, 0);
        }

        function test_theNextSnoozeStartsAnew() {
            prepare();
            requests.send(nodes, 1);
            plugin.setSnoozeResponse(true);
            plugin.setSnoozeResponse(false);
            requests.send([nodes[0]], 1);
            compare(requests.summary, "Waiting for the answer to 1 snooze(s)");
        }

        function test_snoozesInQuickSuccessionAreCountedTogether() {
            prepare();
            requests.send([nodes[0]], 1);
            requests.send([nodes[1]], 1);
            plugin.setSnoozeResponse(true);
            plugin.setSnoozeResponse(true);
            compare(requests.summary, "2 error(s) snoozed");
        }

        function test_anAnswerThatNobodyAwaitsCountsAlone() {
            prepare();
            plugin.setSnoozeResponse(true);
            compare(requests.summary, "1 error(s) snoozed");
            plugin.setSnoozeResponse(false);
            compare(requests.summary, "The server refused 1 snooze(s)");
        }

        function test_whatIsLostWithTheServerIsNotCalledRefused() {
            prepare();
            requests.send(nodes, 1);
            plugin.setSnoozeResponse(true);
            requests.serverConnected = false;
            plugin.setSnoozeResponse(false);
            compare(requests.summary, "1 error(s) snoozed · No answer to 1 snooze(s)");
            compare(requests.status, "critical");
            requests.serverConnected = true;
            requests.send([nodes[0]], 1);
            plugin.setSnoozeResponse(true);
            compare(requests.summary, "1 error(s) snoozed");
        }

        function test_missingAnswersAreTold() {
            prepare();
            requests.patience.interval = 1;
            const updates = spyOn(requests, "updated");
            requests.send(nodes, 1);
            tryCompare(updates, "count", 2);
            compare(requests.summary, "No answer to 2 snooze(s)");
            compare(requests.status, "critical");
            requests.send([nodes[0]], 1);
            compare(requests.sent, 1);
        }
    }
}
