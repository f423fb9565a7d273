import QtQuick
import Dashboard

Item {
    id: root

    width: 600
    height: 60

    Component {
        id: stripComponent

        TabStrip {
            tabs: [{ "key": "a", "text": "Errors", "glyph": "errors" },
                   { "key": "b", "text": "Snoozed", "glyph": "snoozed" },
                   { "key": "c", "text": "Log", "glyph": "log" }]
            current: "a"
            onChosen: key => current = key
        }
    }

    DashboardCase {
        name: "TabStrip"

        property TabStrip strip

        function prepare(properties) {
            strip = make(stripComponent, properties);
            waitForRendering(strip);
        }

        function test_clickChooses() {
            prepare();
            click("Log");
            compare(strip.current, "c");
            compare(inWindow("Log").Accessible.selected, true);
            compare(inWindow("Errors").Accessible.selected, false);
        }

        function test_arrowsGoRound() {
            prepare();
            strip.focusCurrent();
            keyClick(Qt.Key_Left);
            compare(strip.current, "c");
            verify(inWindow("Log").activeFocus);
            keyClick(Qt.Key_Right);
            compare(strip.current, "a");
            keyClick(Qt.Key_Right);
            compare(strip.current, "b");
        }

        function test_numbersStandBehindTheTexts() {
            prepare({ "numbers": { "b": 3, "c": 0 } });
            verify(inWindow("Snoozed 3"));
            verify(inWindow("Log"));
        }

        function test_aNewNumberLeavesTheKeyboard() {
            prepare();
            strip.focusCurrent();
            strip.numbers = { "a": 1 };
            verify(inWindow("Errors 1").activeFocus);
        }

        function test_bareTabsAreNarrower() {
            prepare();
            const width = strip.width;
            strip.bare = true;
            tryVerify(() => strip.width < width);
            verify(inWindow("Errors"));
        }
    }
}
