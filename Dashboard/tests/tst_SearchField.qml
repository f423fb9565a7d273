import QtQuick
import Dashboard

Item {
    id: root

    width: 300
    height: 60

    Component {
        id: fieldComponent

        SearchField {
            placeholderText: "Search"
            onSearched: text => applied = text
        }
    }

    DashboardCase {
        name: "SearchField"

        property SearchField field

        function prepare() {
            field = make(fieldComponent);
            field.start();
        }

        function test_appliesAfterAPause() {
            prepare();
            keyClick("d");
            keyClick("o");
            compare(field.applied, "");
            compare(field.waiting, true);
            tryCompare(field, "applied", "do");
        }

        function test_returnAppliesAtOnce() {
            prepare();
            keyClick("d");
            keyClick(Qt.Key_Return);
            compare(field.applied, "d");
        }

        function test_tellsItsKeyAndWhatItIsFor() {
            field = make(fieldComponent, { "placeholderText": "Filter by error or device" });
            mouseMove(field, 20, 5);
            tryVerify(() => tipTexts().includes("Filter by error or device (Ctrl+F)"));
            mouseMove(root, root.width - 1, root.height - 1);
        }

        function test_followsItsOwner() {
            prepare();
            keyClick("d");
            field.applied = "gate";
            compare(field.text, "gate");
            compare(field.waiting, false);
            compare(field.applied, "gate");
        }

        function test_resetForgetsWhatDoesNotApply() {
            prepare();
            keyClick("d");
            field.reset();
            compare(field.text, "");
            compare(field.waiting, false);
            compare(field.applied, "");
        }
    }
}
