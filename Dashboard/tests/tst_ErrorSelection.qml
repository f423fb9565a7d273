import QtQuick
import Dashboard

Item {
    Component {
        id: selectionComponent

        ErrorSelection {}
    }

    DashboardCase {
        id: test

        name: "ErrorSelection"

        property var plugin
        property var proxy
        property ErrorSelection selection


        function ids() {
            return selection.rows().map(row => selection.idAt(row));
        }

        /// Five cameras, newest first: 3_s/c0 to 3_s/c4; then a CPU error of the station.
        function prepare() {
            plugin = makePlugin();
            for (let i = 0; i < 5; ++i)
                plugin.addError(3, "s", "s/c" + i, ["S", "C" + i], now - i * minute);
            plugin.addError(0, "s", "", ["S"], now - hour);
            proxy = plugin.getSystemErrorSortFilterModel(test);
            selection = make(selectionComponent, { "proxy": proxy });
        }

        function test_oneToggleRangeAndAll() {
            prepare();
            selection.selectOnly(1);
            compare(ids(), ["3_s/c1"]);
            selection.toggle(3);
            compare(ids(), ["3_s/c1", "3_s/c3"]);
            selection.toggle(1);
            compare(ids(), ["3_s/c3"]);
            selection.selectOnly(2);
            selection.extendTo(4);
            compare(ids(), ["3_s/c2", "3_s/c3", "3_s/c4"]);
            selection.extendTo(0);
            compare(ids(), ["3_s/c0", "3_s/c1", "3_s/c2"]);
            selection.selectAll();
            compare(selection.count, 6);
            compare(selection.snoozableCount, 5);
            selection.clear();
            compare(selection.count, 0);
            compare(ids(), []);
        }

        function test_survivesSorting() {
            prepare();
            selection.selectOnly(1);
            selection.toggle(4);
            plugin.setTimestamp("3_s/c4", now + minute);
            compare(selection.rowOf("3_s/c4"), 0);
            compare(ids(), ["3_s/c4", "3_s/c1"]);
            selection.extendTo(1);
            compare(ids(), ["3_s/c4", "3_s/c0"]);
        }

        function test_newErrorsAreNotSelected() {
            prepare();
            selection.selectAll();
            plugin.addError(4, "t", "", ["T"], now - 2 * minute);
            compare(selection.count, 6);
            verify(!selection.contains("4_t"));
        }

        function test_errorsThatAreOverLeaveIt() {
            prepare();
            selection.selectAll();
            plugin.removeError("3_s/c2");
            compare(selection.count, 5);
            compare(selection.snoozableCount, 4);
            verify(!selection.contains("3_s/c2"));
            plugin.addError(3, "s", "s/c2", ["S", "C2"], now);
            verify(!selection.contains("3_s/c2"));
            plugin.clearErrors();
            compare(selection.count, 0);
        }

        function test_errorsThatAFilterHidesLeaveIt() {
            prepare();
            selection.selectAll();
            proxy.setErrorCategory(1);
            compare(ids(), ["0_s"]);
            proxy.setErrorCategory(3);
            compare(ids(), ["0_s"]);
            compare(selection.snoozableCount, 0);
        }

        function test_tellsOfABurstOnce() {
            prepare();
            const changes = spyOn(selection, "revisionChanged");
            selection.selectAll();
            compare(changes.count, 1);
            plugin.clearErrors();
            compare(changes.count, 2);
        }

        function test_withoutAProxyThereIsNothingToSelect() {
            selection = make(selectionComponent);
            selection.selectAll();
            selection.clear();
            compare(selection.count, 0);
            compare(selection.rowOf("3_s/c0"), -1);
            compare(ids(), []);
        }

        function test_withoutItsAnchorARangeIsOneRow() {
            prepare();
            selection.extendTo(3);
            compare(ids(), ["3_s/c3"]);
            selection.selectOnly(1);
            plugin.removeError("3_s/c1");
            selection.extendTo(2);
            compare(ids(), ["3_s/c3"]);
        }
    }
}
