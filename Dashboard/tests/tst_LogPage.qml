import QtQuick
import Dashboard
import Dashboard.Testing

Item {
    id: root

    width: 900
    height: 500

    Component {
        id: logComponent

        FakeLog {}
    }

    Component {
        id: filesComponent

        FakeFiles {}
    }

    Component {
        id: pageComponent

        LogPage {
            anchors.fill: parent
            log: null
        }
    }

    DashboardCase {
        name: "LogPage"

        property var log
        property LogPage page

        function prepare(properties) {
            log = createTemporaryObject(logComponent, root);
            log.add(now - hour, "Error snoozed", ["Camera disconnected", "Door 1"]);
            log.add(now - minute, "Error snoozed", ["Station disconnected", "Süd"]);
            log.add(now - second, "User logged in", []);
            page = make(pageComponent, Object.assign({ "log": log }, properties ?? {}));
            waitForRendering(page);
        }

        function cleanup() {
            page = null;
        }

        function list() {
            return itemsWhere(page, item => item instanceof ThemedList)[0];
        }

        function shown() {
            return page.sheet.entries.map(entry => entry.time - now);
        }

        function test_newestEntriesComeFirst() {
            prepare();
            compare(shown(), [-second, -minute, -hour]);
            verify(inWindow("2024-05-14 13:07:33 CEST, Error snoozed: Camera disconnected · Door 1"));
            verify(hasText(page, "3"));
        }

        function test_newEntriesAppear() {
            prepare();
            log.add(now, "User logged out", []);
            tryCompare(list(), "count", 4);
            compare(shown()[0], 0);
        }

        function test_manyNewEntriesAreReadOnce() {
            prepare();
            log.reads = 0;
            log.addMany(1000, now);
            tryCompare(list(), "count", 500);
            compare(log.reads, 1);
        }

        function test_hiddenItReadsNothing() {
            prepare({ "visible": false });
            log.addMany(10, now);
            wait(0);
            compare(log.reads, 0);
            page.visible = true;
            compare(list().count, 13);
        }

        function test_search() {
            prepare();
            page.focusTextFilter();
            for (const letter of "door")
                keyClick(letter);
            keyClick(Qt.Key_Return);
            tryCompare(list(), "count", 1);
            compare(shown(), [-hour]);
            page.clearFilters();
            tryCompare(list(), "count", 3);
            compare(inWindow("Search the log").text, "");
        }

        function test_searchWithoutHits() {
            prepare();
            page.text = "nothing of the kind";
            tryVerify(() => inWindow("Nothing matches “nothing of the kind”") !== null);
            compare(inWindow("Nothing matches “nothing of the kind”").Accessible.description,
                    "Press Esc to show all entries.");
        }

        function test_olderEntriesAreShownOnDemand() {
            prepare();
            log.addMany(700, now);
            tryVerify(() => hasText(page, "newest 500"));
            click("Show 500 more");
            tryVerify(() => hasText(page, "703"));
            compare(inWindow("Show 500 more"), null);
            page.text = "Entry";
            tryVerify(() => hasText(page, "newest 500"));
        }

        function test_emptyLog() {
            log = createTemporaryObject(logComponent, root);
            page = make(pageComponent, { "log": log });
            verify(inWindow("The log is empty"));
        }

        function test_hostWithoutALog() {
            page = make(pageComponent);
            verify(inWindow("No operational log"));
            compare(inWindow("Search the log"), null);
            compare(inWindow("Export"), null);
            page.exportShown();
        }

        function test_exportsWhatIsShown() {
            const files = createTemporaryObject(filesComponent, root);
            prepare({ "files": files });
            const notices = spyOn(page, "noticed");
            page.text = "snoozed";
            tryCompare(list(), "count", 2);
            click("Export");
            tryVerify(() => inWindow("File")?.activeFocus ?? false);
            keyClick(Qt.Key_Return);
            const path = "/home/user/Documents/log-2024-05-14-140733.csv";
            compare(files.content(path).split("\r\n"), [
                "Time (CEST),Entry,Details",
                "2024-05-14 14:06:33,Error snoozed,Station disconnected · Süd",
                "2024-05-14 13:07:33,Error snoozed,Camera disconnected · Door 1",
                ""
            ]);
            compare(notices.signalArguments[0][1], "2 entries saved as " + path);
        }

        function test_keysMove() {
            prepare();
            list().forceActiveFocus();
            compare(list().currentIndex, 0);
            keyClick(Qt.Key_Down);
            compare(list().currentIndex, 1);
            keyClick(Qt.Key_End);
            compare(list().currentIndex, 2);
            keyClick(Qt.Key_PageUp);
            compare(list().currentIndex, 0);
            const ring = itemsWhere(page, item => item instanceof RowRing && item.visible);
            compare(ring.length, 1);
        }

        function test_newEntriesLeaveTheReaderWhereHeIs() {
            prepare();
            log.addMany(100, now);
            tryCompare(list(), "count", 103);
            list().forceActiveFocus();
            keyClick(Qt.Key_End);
            const last = page.sheet.entries[102];
            const top = list().contentY;
            verify(top > 0);
            log.add(now + hour, "User logged in", []);
            tryCompare(list(), "count", 104);
            compare(list().rows[list().currentIndex].time, last.time);
            compare(list().contentY, top + list().rowHeight);
        }

        function test_atItsTopTheListShowsWhatIsNew() {
            prepare();
            log.addMany(100, now);
            tryCompare(list(), "count", 103);
            log.add(now + hour, "User logged in", []);
            tryCompare(list(), "count", 104);
            compare(list().contentY, 0);
        }

        function test_aSearchBeginsAtTheTop() {
            prepare();
            log.addMany(100, now);
            tryCompare(list(), "count", 103);
            list().contentY = 10 * list().rowHeight;
            page.text = "Entry";
            tryCompare(list(), "count", 100);
            compare(list().contentY, 0);
        }

        function test_onlyRowsInSightAreMade() {
            prepare();
            log.addMany(600, now);
            page.limit = 600;
            tryCompare(list(), "count", 600);
            list().forceActiveFocus();
            keyClick(Qt.Key_End);
            verify(list().contentItem.children.length < 50);
        }

        function test_narrowRowsHaveRoomForTheDetails() {
            prepare();
            log.add(now, "Error snoozed", ["Camera disconnected",
                                           "Station: Quay NVR / Camera: Stairs to the archive"]);
            tryCompare(list(), "count", 4);
            const height = itemsWhere(page, item => item instanceof LogRow)[0].height;
            page.anchors.fill = undefined;
            page.width = Theme.em(40);
            tryVerify(() => itemsWhere(page, item => item instanceof LogRow)[0].height > height);
            tryVerify(() => itemsWhere(page, item => item instanceof LogRow
                                                     && item.truncated).length === 0);
        }
    }
}
