import QtQuick
import Dashboard

Item {
    id: root

    width: 400
    height: 200

    Component {
        id: labelComponent

        ToldLabel {
            x: 100
            y: 100
            width: 60
        }
    }

    DashboardCase {
        name: "ToldLabel"

        readonly property string longText: "A text that does not fit"

        function cleanup() {
            mouseMove(root, 0, 0);
        }

        function test_aPointerIsToldWhatDoesNotFit() {
            const label = make(labelComponent, { "text": longText });
            mouseMove(label, 20, 5);
            tryVerify(() => tipTexts().includes(longText));
            mouseMove(root, 0, 0);
            tryVerify(() => tipTexts().length === 0);
        }

        function test_theKeyboardIsToldToo() {
            make(labelComponent, { "text": longText, "asked": true });
            tryVerify(() => tipTexts().includes(longText));
        }

        function test_whatFitsIsNotToldTwice() {
            const label = make(labelComponent, { "text": "Fits", "asked": true });
            const tip = Array.from(label.resources).find(child => child instanceof Tip);
            compare(tip.visible, false);
            label.text = longText;
            tryCompare(tip, "visible", true);
        }
    }
}
