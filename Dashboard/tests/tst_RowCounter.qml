import QtQuick
import Dashboard

Item {
    Component {
        id: counterComponent

        RowCounter {}
    }

    DashboardCase {
        name: "RowCounter"

        function test_countsAtOnceWhatIsThere() {
            const plugin = makePlugin();
            plugin.addCameraErrors(3, now);
            compare(make(counterComponent, { "model": plugin.getSystemErrorModel() }).count, 3);
            compare(make(counterComponent).count, 0);
        }

        function test_countsABurstOnce() {
            const plugin = makePlugin();
            const counter = make(counterComponent, { "model": plugin.getSystemErrorModel() });
            const changes = spyOn(counter, "countChanged");
            plugin.addCameraErrors(100, now);
            tryCompare(counter, "count", 100);
            plugin.removeError("3_st0/cam0");
            plugin.removeError("3_st1/cam1");
            tryCompare(counter, "count", 98);
            compare(changes.count, 2);
        }

        function test_followsAnotherModel() {
            const plugin = makePlugin();
            const other = makePlugin();
            other.addCameraErrors(5, now);
            const counter = make(counterComponent, { "model": plugin.getSystemErrorModel() });
            counter.model = other.getSystemErrorModel();
            compare(counter.count, 5);
            counter.model = null;
            compare(counter.count, 0);
        }
    }
}
