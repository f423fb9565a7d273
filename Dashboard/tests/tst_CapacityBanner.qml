import QtQuick
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

        function test_theFullestServersHaveALineAndTheOthersOneTogether() {
            prepare();
            for (let i = 1; i <= 5; ++i)
                plugin.notifyServerReachingLimited("S" + i, 90 + i);
            compare(texts(banner), ["S5 has reached 95% of its capacity",
                                    "S4 has reached 94% of its capacity",
                                    "S3 has reached 93% of its capacity",
                                    "and 2 more server(s)"]);
            const height = banner.height;
            for (let i = 6; i <= 100; ++i)
                plugin.notifyServerReachingLimited("S" + i, 50);
            verify(hasText(banner, "and 97 more server(s)"));
            compare(banner.height, height);
        }

        function test_theOthersAreDismissedTogether() {
            prepare();
            for (let i = 1; i <= 5; ++i)
                plugin.notifyServerReachingLimited("S" + i, 90 + i);
            const buttons = itemsWhere(banner, item => item instanceof ActionButton && item.visible);
            mouseClick(buttons[3]);
            compare(texts(banner).length, 3);
            plugin.notifyServerReachingLimited("S2", 92);
            compare(texts(banner).length, 3);
            banner.dismiss(["S5"]);
            compare(texts(banner), ["S4 has reached 94% of its capacity",
                                    "S3 has reached 93% of its capacity"]);
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
