import QtQuick
import QtTest
import Dashboard
import Dashboard.Testing

Item {
    id: root

    width: 1280
    height: 800

    Component {
        id: pluginComponent

        FakePlugin {}
    }

    Component {
        id: viewComponent

        DashboardView {}
    }

    TestCase {
        name: "DashboardView"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        function test_showsTheErrorsOfThePlugin() {
            const plugin = createTemporaryObject(pluginComponent, root);
            plugin.addCameraErrors(20, Date.now());
            const view = createTemporaryObject(viewComponent, root,
                                               { "plugin": plugin, "serverConnected": true,
                                                 "siteName": "Harbour" });
            verify(view);
            waitForRendering(view); wait(100);grabImage(view).save("/tmp/dp/a.png")
        }
    }
}
