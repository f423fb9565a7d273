pragma ComponentBehavior: Bound

import QtQuick
import Dashboard

Item {
    id: root

    width: 900
    height: 500

    StationDirectory {
        id: stations

        statesKnown: true
        stations: [{ "stationID": "st1", "name": "Lobby", "parentID": "", "connected": true }]
    }

    Component {
        id: bookComponent

        SnoozeBook {
            surface: null
        }
    }

    Component {
        id: pageComponent

        SnoozedPage {
            anchors.fill: parent
            directory: stations
            serverConnected: true
        }
    }

    DashboardCase {
        name: "SnoozedPage"

        property var plugin
        property SnoozeBook book
        property SnoozedPage page

        function prepare(serverList, properties) {
            plugin = makePlugin();
            book = make(bookComponent, { "surface": plugin, "serverList": serverList });
            page = make(pageComponent, Object.assign({ "book": book }, properties ?? {}));
            book.publish();
            waitForRendering(page);
        }

        function cleanup() {
            // It goes before the book that it shows.
            page.destroy();
            page = null;
            wait(0);
        }

        function snooze(nodeID, type, until) {
            return { "nodeID": nodeID, "type": type, "until": until, "name": "" };
        }

        function raise() {
            plugin.addError(3, "st1", "st1/c1", ["Lobby", "Door 1"], now - hour);
        }

        function test_tellsWhatIsSnoozedUntilWhenAndByWhom() {
            prepare([snooze("st1/c1", 3, now + 52 * minute), snooze("st1", 4, now + 26 * hour)]);
            verify(inWindow("Snoozed: c1, Camera disconnected, Lobby, 52 min left,"
                            + " until 14:59:33 CEST, asked elsewhere"));
            verify(inWindow("Snoozed: Lobby, Station disconnected, Lobby, 1 d 2 h left,"
                            + " until 05-15 16:07 CEST, asked elsewhere"));
            verify(hasText(page, "2"));
        }

        function test_countsDownInTheServersTime() {
            prepare([snooze("st1/c1", 3, now + 2 * hour)]);
            setServerTime(now + hour, 60);
            verify(hasText(page, "1 h 0 min left"));
            Clock.now += 2 * second;
            verify(hasText(page, "58 min left"));
            Clock.now += 58 * second;
            verify(hasText(page, "due"));
        }

        function test_tellsWhenItWasAskedFor() {
            prepare();
            raise();
            book.take([{ "nodeID": "st1/c1", "type": 3, "stationID": "st1", "device": "Door 1" }],
                      (now + hour) / 1000);
            tryVerify(() => inWindow("Not confirmed: Door 1, Camera disconnected, Lobby, waiting,"
                                     + " until 15:07:33 CEST, asked here 14:07:33 CEST"));
            verify(hasText(page, "1 · 1 not confirmed"));
        }

        function test_whatStillFailsIsMarked() {
            prepare([snooze("st1/c1", 3, now)]);
            verify(hasText(page, "due"));
            book.serverList = [];
            raise();
            Clock.now = now + 3 * minute;
            tryVerify(() => hasText(page, "over for 3 min"));
            verify(hasText(page, "Still failing"));
            verify(hasText(page, "1 · 1 still failing"));
            const marks = itemsWhere(page, item => item instanceof StateMark && item.visible);
            compare(marks.map(mark => mark.status), ["critical"]);
        }

        function test_leadsToTheStation() {
            prepare([snooze("st1/c1", 3, now + hour), snooze("st2", 4, now + 2 * hour)]);
            const requests = spyOn(page, "stationRequested");
            itemsWhere(page, item => item instanceof ThemedList)[0].forceActiveFocus();
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_End);
            keyClick(Qt.Key_Return);
            mouseDoubleClickSequence(itemsWhere(page, item => item instanceof SnoozedRow)[0]);
            compare(requests.signalArguments.map(list => list[0]), ["st1", "st2", "st1"]);
        }

        function test_nothingIsSnoozed() {
            prepare([]);
            verify(inWindow("Nothing is snoozed"));
            compare(texts(page).filter(text => text.startsWith("Only what")), []);
        }

        function test_withoutTheServersListItSaysSo() {
            prepare();
            verify(inWindow("Only what was snoozed here is listed; what others snoozed is not"
                            + " known."));
        }

        function test_lostServerKeepsWhatIsLastKnown() {
            prepare([snooze("st1/c1", 3, now + hour)],
                    { "serverConnected": false, "connectionSince": new Date(now - minute) });
            verify(inWindow("As last known: nothing is known since 2024-05-14 14:06:33 CEST."));
            verify(hasText(page, "Snoozed"));
            page.connectionSince = undefined;
            verify(inWindow("As last known: the server is away."));
            book.serverList = [];
            tryVerify(() => inWindow("No snooze is known") !== null);
        }

        function test_namesThatDoNotFitAreToldToTheKeyboard() {
            const name = "A very long name of a door ".repeat(5);
            prepare([Object.assign(snooze("st1/c1", 3, now + hour), { "name": name })]);
            itemsWhere(page, item => item instanceof ThemedList)[0].forceActiveFocus();
            tryVerify(() => tipTexts().some(text => text.includes(name)));
        }

        function test_narrowRowsKeepTheStation() {
            prepare([snooze("st1/c1", 3, now + hour)]);
            verify(hasText(page, "Camera disconnected"));
            page.anchors.fill = undefined;
            page.width = Theme.em(50);
            const row = itemsWhere(page, item => item instanceof SnoozedRow)[0];
            tryVerify(() => row.narrow);
            verify(hasText(row, "Lobby"));
            verify(hasText(row, "Camera disconnected"));
            tryCompare(row, "truncated", false);
        }

        function test_onlyRowsInSightAreMade() {
            const many = [];
            for (let i = 0; i < 5000; ++i)
                many.push(snooze("st1/c" + i, 3, now + hour + i * second));
            prepare(many);
            const list = itemsWhere(page, item => item instanceof ThemedList)[0];
            list.forceActiveFocus();
            keyClick(Qt.Key_End);
            compare(list.currentIndex, 4999);
            verify(list.contentItem.children.length < 50);
        }

        function test_theKeyboardStaysOnItsSnooze() {
            prepare([snooze("st1/c1", 3, now + hour), snooze("st1/c2", 3, now + 3 * hour)]);
            const list = itemsWhere(page, item => item instanceof ThemedList)[0];
            list.forceActiveFocus();
            keyClick(Qt.Key_End);
            book.serverList = book.serverList.concat([snooze("st1/c3", 3, now + 2 * hour)]);
            tryCompare(list, "count", 3);
            compare(list.rows[list.currentIndex].nodeID, "st1/c2");
            book.serverList = [snooze("st1/c2", 3, now + minute), snooze("st1/c3", 3, now + hour)];
            tryVerify(() => list.rows[0].nodeID === "st1/c2");
            compare(list.currentIndex, 0);
        }

        function test_theListStaysWhereItIsWhenASnoozeComes() {
            const many = [];
            for (let i = 0; i < 100; ++i)
                many.push(snooze("st1/c" + i, 3, now + hour + i * second));
            prepare(many);
            const list = itemsWhere(page, item => item instanceof ThemedList)[0];
            list.forceActiveFocus();
            for (let i = 0; i < 5; ++i)
                keyClick(Qt.Key_PageDown);
            tryVerify(() => list.currentItem?.y + list.rowHeight <= list.contentY + list.height);
            const top = list.contentY;
            const row = list.currentIndex;
            compare(row, 5 * list.rowsPerPage);
            book.serverList = many.concat([snooze("st2", 4, now + 3 * hour)]);
            tryCompare(list, "count", 101);
            compare([list.contentY, list.currentIndex], [top, row]);
        }
    }
}
