import QtQuick
import Dashboard

Item {
    Component {
        id: counterComponent

        StationErrorCounts {}
    }

    DashboardCase {
        name: "StationErrorCounts"

        property var plugin
        property StationErrorCounts counter

        function prepare() {
            plugin = makePlugin();
            plugin.addError(4, "b", "", ["Quay"], now);
            plugin.addError(3, "a", "a/1", ["Lobby", "Door 1"], now);
            plugin.addError(3, "a", "a/2", ["Lobby", "Door 2"], now);
            counter = make(counterComponent, { "model": plugin.getSystemErrorModel() });
        }

        function numbers() {
            return counter.counts.map(entry => entry.stationID + " " + entry.errorNumber);
        }

        function test_countsAtOnceWhatIsThere() {
            prepare();
            compare(numbers(), ["a 2", "b 1"]);
        }

        function test_followsTheErrors() {
            prepare();
            plugin.addError(3, "c", "c/1", ["Pier", "Gate"], now);
            plugin.removeError("3_a/1");
            tryVerify(() => numbers().join() === "a 1,b 1,c 1");
            plugin.clearErrors();
            tryVerify(() => numbers().length === 0);
        }

        function test_keepsUpWithErrorsThatNeverRest() {
            prepare();
            const changes = spyOn(counter, "countsChanged");
            tryVerify(() => {
                plugin.addError(3, "b", "b/1", ["Quay", "Gate"], now);
                plugin.removeError("3_b/1");
                return changes.count > 1;
            });
            compare(numbers(), ["a 2", "b 1"]);
        }

        function test_tellsOfABurstOnce() {
            prepare();
            const changes = spyOn(counter, "countsChanged");
            plugin.addCameraErrors(1000, now);
            tryCompare(changes, "count", 1);
            compare(numbers()[2], "st0 100");
        }

        function test_errorsWithoutAStationAreCountedTogether() {
            prepare();
            plugin.addBareError("0_x");
            plugin.addBareError("0_y");
            tryVerify(() => numbers()[0] === " 2");
        }

        function test_withoutAModelThereIsNothing() {
            prepare();
            counter.model = null;
            compare(numbers(), []);
        }
    }
}
