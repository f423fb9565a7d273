import QtQuick
import QtTest
import Dashboard

Item {
    id: root

    width: 600
    height: 200

    Component {
        id: bannerComponent

        CapacityBanner {
            width: 600
            surface: null
        }
    }

    DashboardCase {
        name: "CapacityBanner"

        property var plugin
        property CapacityBanner banner

        function prepare() {
            plugin = makePlugin();
            banner = make(bannerComponent, { "surface": plugin });
        }

        function test_takesNoRoomWithoutAWarning() {
            prepare();
            compare(banner.height, 0);
        }

        function test_showsServerAndPercentage() {
            prepare();
            plugin.notifyServerReachingLimited("Main", 93.4);
            compare(texts(banner), ["Main has reached 93% of its capacity"]);
            tryVerify(() => banner.height > 0);
        }

        function test_aServerHasOneLine() {
            prepare();
            plugin.notifyServerReachingLimited("Main", 93);
            plugin.notifyServerReachingLimited("Other", 91);
            plugin.notifyServerReachingLimited("Main", 95);
            compare(texts(banner), ["Main has reached 95% of its capacity",
                                    "Other has reached 91% of its capacity"]);
        }

        function test_dismissedWarningComesBackWhenTheServerFillsUpFurther() {
            prepare();
            plugin.notifyServerReachingLimited("Main", 93);
            click("Dismiss the warning");
            compare(texts(banner), []);
            plugin.notifyServerReachingLimited("Main", 93.2);
            compare(texts(banner), []);
            plugin.notifyServerReachingLimited("Main", 94);
            compare(texts(banner), ["Main has reached 94% of its capacity"]);
        }

        function test_dismissedByKeyboard() {
            prepare();
            plugin.notifyServerReachingLimited("Main", 93);
            inWindow("Dismiss the warning").forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            compare(texts(banner), []);
        }

        function test_namesAreTakenLiterally_data() {
            return [
                { "tag": "nameless", "server": "", "text": "A server has reached 93% of its capacity" },
                { "tag": "marker", "server": "50%2", "text": "50%2 has reached 93% of its capacity" },
                { "tag": "markup", "server": "<b>x</b>",
                  "text": "<b>x</b> has reached 93% of its capacity" }
            ];
        }

        function test_namesAreTakenLiterally(data) {
            prepare();
            plugin.notifyServerReachingLimited(data.server, 93);
            compare(texts(banner), [data.text]);
        }
    }
}
