import QtQuick
import Dashboard

Item {
    Component {
        id: bookComponent

        SnoozeBook {
            surface: null
        }
    }

    DashboardCase {
        name: "SnoozeBook"

        property var plugin
        property SnoozeBook book

        readonly property var camera: ({ "nodeID": "st1/c1", "type": 3, "stationID": "st1",
                                         "device": "Door 1" })
        readonly property real end: now + hour

        function prepare(serverList) {
            plugin = makePlugin();
            raise();
            book = make(bookComponent, { "surface": plugin, "serverList": serverList });
        }

        function cleanup() {
            book = null;
            plugin = null;
        }

        function raise() {
            plugin.addError(3, "st1", "st1/c1", ["Lobby", "Door 1"], now);
        }

        function clear() {
            plugin.removeError("3_st1/c1");
        }

        function ask() {
            book.take([camera], end / 1000);
        }

        function snooze(properties) {
            return Object.assign({ "nodeID": "st1/c1", "type": 3, "until": end, "name": "Door" },
                                 properties);
        }

        function states() {
            book.publish();
            return book.rows.map(row => row.state);
        }

        function test_aRequestIsKnownAtOnce() {
            prepare();
            ask();
            tryVerify(() => book.rows.length === 1);
            const row = book.rows[0];
            compare([row.state, row.nodeID, row.stationID, row.device, row.until, row.askedAt],
                    ["asked", "st1/c1", "st1", "Door 1", end, now]);
            compare([book.snoozedCount, book.failingCount], [0, 0]);
        }

        function test_theErrorThatLeavesConfirmsTheRequest() {
            prepare();
            ask();
            clear();
            compare(states(), ["snoozed"]);
            compare(book.snoozedCount, 1);
        }

        function test_aRequestWithoutEffectLapses() {
            prepare();
            ask();
            Clock.now = now + 30 * second;
            compare(states(), ["asked"]);
            Clock.now = now + 31 * second;
            compare(states(), []);
        }

        function test_theErrorThatComesBackAtTheEndStillFails() {
            prepare();
            ask();
            clear();
            Clock.now = end;
            compare(states(), []);
            raise();
            compare(states(), ["failing"]);
            compare(book.rows[0].endedAt, end);
            compare([book.snoozedCount, book.failingCount], [0, 1]);
        }

        function test_theErrorThatComesBackBeforeTheEndStillFails() {
            prepare();
            ask();
            clear();
            Clock.now = now + minute;
            raise();
            compare(states(), ["failing"]);
            compare(book.rows[0].endedAt, now + minute);
        }

        function test_whatRecoversIsNoLongerShown() {
            prepare();
            ask();
            clear();
            Clock.now = end;
            raise();
            clear();
            compare(states(), []);
        }

        function test_whatFailsIsForgottenAfterMinutes() {
            prepare();
            ask();
            clear();
            Clock.now = end;
            raise();
            Clock.now = end + 10 * minute;
            compare(states(), ["failing"]);
            Clock.now = end + 11 * minute;
            compare(states(), []);
        }

        function test_whatFailsCanBeSnoozedAgain() {
            prepare();
            ask();
            clear();
            Clock.now = end;
            raise();
            book.take([camera], end / 1000 + 60);
            compare(states(), ["asked"]);
            clear();
            compare(states(), ["snoozed"]);
            compare(book.rows[0].until, end + minute);
        }

        function test_aFastServerLeavesTheUserAsMuchTime() {
            setServerTime(now, 60);
            prepare();
            ask();
            Clock.now = now + 30 * second;
            compare(states(), ["asked"]);
            Clock.now = now + 31 * second;
            compare(states(), []);
        }

        function test_otherErrorsAreNoSnoozes() {
            prepare();
            clear();
            raise();
            compare(states(), []);
            ask();
            plugin.addError(4, "st2", "", ["Quay"], now);
            plugin.removeError("4_st2");
            compare(states(), ["asked"]);
        }

        function test_theServersListNeedsNoRequest() {
            prepare([snooze()]);
            compare(states(), ["snoozed"]);
            const row = book.rows[0];
            compare([row.device, row.stationID, row.until, row.askedAt], ["Door", "st1", end, 0]);
            compare(book.isTold, true);
        }

        function test_aCameraWithoutANameIsCalledByItsOwnPart() {
            prepare([snooze({ "nodeID": "st1/annex/c9", "name": "" })]);
            states();
            compare([book.rows[0].device, book.rows[0].stationID], ["c9", "st1/annex"]);
        }

        function test_theServersListIsWhatCounts() {
            prepare([]);
            ask();
            clear();
            compare(states(), ["asked"]);
            book.serverList = [snooze({ "until": end + minute })];
            compare(states(), ["snoozed"]);
            compare([book.rows[0].until, book.rows[0].askedAt], [end + minute, now]);
            Clock.now = end + 2 * minute;
            compare(states(), ["snoozed"]);
        }

        function test_whatLeavesTheServersListIsOver() {
            prepare([snooze()]);
            clear();
            book.serverList = [];
            compare(states(), []);
            raise();
            compare(states(), ["failing"]);
        }

        function test_whatLeavesTheServersListLateHasEndedInTime() {
            prepare([snooze()]);
            states();
            clear();
            raise();
            Clock.now = end + minute;
            book.serverList = [];
            compare(states(), ["failing"]);
            compare(book.rows[0].endedAt, end);
        }

        function test_whatLeavesTheServersListEarlyEndsThere() {
            prepare([snooze()]);
            states();
            raise();
            book.serverList = [];
            compare(states(), ["failing"]);
            compare(book.rows[0].endedAt, now);
        }

        function test_theErrorMayBeBackBeforeTheListTells() {
            prepare([snooze()]);
            clear();
            raise();
            compare(states(), ["snoozed"]);
            book.serverList = [];
            compare(states(), ["failing"]);
        }

        function test_failingOnesComeFirstThenTheNextToEnd() {
            prepare([snooze({ "nodeID": "a", "type": 4, "until": now + 3 * minute }),
                     snooze({ "nodeID": "b", "type": 4, "until": now + 2 * minute }),
                     snooze()]);
            plugin.removeError("3_st1/c1");
            book.serverList = book.serverList.slice(0, 2);
            raise();
            compare(states(), ["failing", "snoozed", "snoozed"]);
            compare(book.rows.map(row => row.nodeID), ["st1/c1", "b", "a"]);
        }

        function test_thousandsAreShownOnce() {
            prepare();
            plugin.addCameraErrors(5000, now);
            const nodes = [];
            for (let i = 0; i < 5000; ++i) {
                nodes.push({ "nodeID": "st" + i % 10 + "/cam" + i, "type": 3,
                             "stationID": "st" + i % 10, "device": "Camera " + i });
            }
            const changes = spyOn(book, "rowsChanged");
            book.take(nodes, end / 1000);
            plugin.clearErrors();
            tryCompare(book, "snoozedCount", 5000);
            compare(changes.count, 1);
        }

        function test_thousandsThatTheServerTellsOneByOneAreTakenOverOnce() {
            prepare([]);
            states();
            plugin.addCameraErrors(2000, now);
            const changes = spyOn(book, "rowsChanged");
            const list = [];
            for (let i = 0; i < 2000; ++i) {
                list.push(snooze({ "nodeID": "st" + i % 10 + "/cam" + i }));
                book.serverList = list.slice();
            }
            compare(book.entryCount, 0);
            plugin.clearErrors();
            tryCompare(book, "snoozedCount", 2000);
            compare(changes.count, 1);
        }

        function test_anErrorThatComesBackWhileTheListWaitsIsSeen() {
            prepare([]);
            states();
            book.serverList = [snooze()];
            clear();
            raise();
            compare(states(), ["snoozed"]);
            book.serverList = [];
            compare(states(), ["failing"]);
        }
    }
}
