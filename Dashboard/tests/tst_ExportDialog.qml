import QtQuick
import Dashboard
import Dashboard.Testing

Item {
    id: root

    width: 700
    height: 400

    Component {
        id: filesComponent

        FakeFiles {}
    }

    Component {
        id: dialogComponent

        ExportDialog {
            files: null
        }
    }

    DashboardCase {
        name: "ExportDialog"

        property var files
        property var dialog
        property var saves
        readonly property var sheet: ({ "rows": () => content })
        property var content
        readonly property string path: "/home/user/Documents/errors.csv"

        function prepare() {
            files = createTemporaryObject(filesComponent, root);
            dialog = make(dialogComponent, { "files": files });
            saves = spyOn(dialog, "saved");
            content = [["Error", "Device"], ["Camera disconnected", "a, b"]];
            dialog.ask("errors.csv", sheet);
            tryCompare(dialog, "opened", true);
        }

        function cleanup() {
            dialog?.close();
            dialog = null;
        }

        function typeOver(text) {
            inWindow("File").selectAll();
            for (const letter of text)
                keyClick(letter);
        }

        function test_proposesAPathAndSavesOnReturn() {
            prepare();
            compare(inWindow("File").text, path);
            verify(inWindow("File").activeFocus);
            keyClick(Qt.Key_Return);
            compare(files.content(path), "Error,Device\r\nCamera disconnected,\"a, b\"\r\n");
            compare(Array.from(saves.signalArguments[0]), [path, 1]);
            tryCompare(dialog, "visible", false);
        }

        function test_tellsWhatItIs() {
            prepare();
            compare(inWindow("Export as CSV").Accessible.role, Accessible.Dialog);
        }

        function test_tellsHowManyRowsItWillSave() {
            prepare();
            dialog.rowCount = 1;
            verify(hasText(inWindow("Export as CSV"), "1 row(s)"));
            dialog.rowCount = 12;
            verify(hasText(inWindow("Export as CSV"), "12 row(s)"));
        }

        function test_savesWhereTheUserWants() {
            prepare();
            typeOver("/tmp/x.csv");
            click("Export");
            compare(saves.signalArguments[0][0], "/tmp/x.csv");
            compare(files.exists(path), false);
        }

        function test_aNameAloneIsEnough() {
            prepare();
            typeOver("x.csv");
            keyClick(Qt.Key_Return);
            compare(saves.signalArguments[0][0], "/home/user/Documents/x.csv");
        }

        function test_failureIsToldWithPathAndReason() {
            prepare();
            files.obstacle = "No space left on device";
            keyClick(Qt.Key_Return);
            tryVerify(() => inWindow(path + " was not written: No space left on device") !== null);
            compare(saves.count, 0);
            verify(dialog.opened);
            files.obstacle = "";
            typeOver("x");
            compare(dialog.failure, "");
            keyClick(Qt.Key_Return);
            compare(saves.count, 1);
        }

        function test_replacingIsAnnounced() {
            prepare();
            compare(inWindow("Replace"), null);
            files.write("/home/user/Documents/x", "before");
            typeOver("x");
            tryVerify(() => inWindow("This file exists and will be replaced") !== null);
            click("Replace");
            compare(saves.count, 1);
        }

        function test_withoutANameThereIsNothingToDo() {
            prepare();
            typeOver(" ");
            compare(inWindow("Export").enabled, false);
            keyClick(Qt.Key_Return);
            compare(saves.count, 0);
            verify(dialog.opened);
        }

        function test_escapeSavesNothing() {
            prepare();
            keyClick(Qt.Key_Escape);
            tryCompare(dialog, "visible", false);
            compare(files.exists(path), false);
        }

        function test_theFileHoldsWhatIsShownWhenItIsWritten() {
            prepare();
            dialog.close();
            tryCompare(dialog, "visible", false);
            dialog.ask("errors.csv", sheet);
            content = [["Error"], ["new"]];
            keyClick(Qt.Key_Return);
            compare(files.content(path), "Error\r\nnew\r\n");
        }
    }
}
