pragma ComponentBehavior: Bound

import QtQuick
import Dashboard

Item {
    id: root

    width: 800
    height: 400

    StationDirectory {
        id: stations

        statesKnown: true
        stations: [{ "stationID": "s", "name": "Lobby", "parentID": "", "connected": true }]
    }

    ErrorSelection {
        id: chosen
    }

    Component {
        id: tableComponent

        ErrorTable {
            anchors.fill: parent
            proxy: null
            selection: chosen
            directory: stations
        }
    }

    DashboardCase {
        name: "ErrorTable"

        property var plugin
        property ErrorTable table

        /// Thirty cameras, newest first: 3_s/c0 to 3_s/c29.
        function prepare() {
            plugin = makePlugin();
            for (let i = 0; i < 30; ++i)
                plugin.addError(3, "s", "s/c" + i, ["Lobby", "Door " + i], now - i * minute);
            const proxy = plugin.getSystemErrorSortFilterModel(root);
            chosen.proxy = proxy;
            table = make(tableComponent, { "proxy": proxy });
            waitForRendering(table);
        }

        function cleanup() {
            chosen.clear();
            chosen.anchor = "";
            chosen.proxy = null;
            table = null;
        }

        function rowAt(index) {
            return table.itemAtIndex(index);
        }

        function selected() {
            return chosen.rows();
        }

        function clickRow(index, modifiers) {
            mouseClick(rowAt(index), 300, rowAt(index).height / 2, Qt.LeftButton,
                       modifiers ?? Qt.NoModifier);
        }

        function test_rowTellsKindDeviceStationAgeAndTime() {
            prepare();
            compare(texts(rowAt(3)), ["Camera disconnected", "Door 3", "Lobby", "3 min",
                                      "14:04:33 CEST"]);
            compare(rowAt(3).Accessible.name,
                    "Camera disconnected, Door 3, Lobby, since 2024-05-14 14:04:33 CEST");
        }

        function test_agesFollowTheSharedClock() {
            prepare();
            Clock.now = now + 2 * hour;
            verify(hasText(rowAt(0), "2 h 0 min"));
        }

        function test_errorWithoutATimeIsOfUnknownAge() {
            prepare();
            plugin.clearErrors();
            plugin.addError(4, "s", "", ["Lobby"], 0);
            tryVerify(() => rowAt(0) !== null && hasText(rowAt(0), "unknown"));
        }

        function test_nakedRowShowsNoPlaceholders() {
            prepare();
            plugin.clearErrors();
            plugin.addBareError("9_x");
            tryVerify(() => rowAt(0)?.uniqueIDRole === "9_x");
            compare(texts(rowAt(0)), ["unknown"]);
        }

        function test_createsOnlyTheRowsInSight() {
            prepare();
            plugin.addCameraErrors(2000, now - hour);
            tryCompare(table, "count", 2030);
            waitForRendering(table);
            verify(table.contentItem.children.length < 60);
        }

        function test_newErrorComesOnTop() {
            prepare();
            plugin.addError(3, "s", "s/new", ["Lobby", "New"], now + second);
            tryVerify(() => hasText(rowAt(0), "New"));
            verify(rowAt(0).mapToItem(table, 0, 0).y >= 0);
        }

        function test_newestErrorsStayInSightOfAListAtItsTop() {
            prepare();
            clickRow(0);
            for (let i = 0; i < 40; ++i) {
                plugin.addError(3, "s", "s/n" + i, ["Lobby", "New " + i],
                                now + (i + 1) * second);
            }
            tryCompare(table, "count", 70);
            waitForRendering(table);
            compare(table.atYBeginning, true);
            verify(hasText(rowAt(0), "New 39"));
            compare(table.currentIndex, 40);
        }

        function test_mouseSelects() {
            prepare();
            clickRow(2);
            compare(selected(), [2]);
            clickRow(4, Qt.ControlModifier);
            compare(selected(), [2, 4]);
            clickRow(4, Qt.ControlModifier);
            compare(selected(), [2]);
            clickRow(1);
            clickRow(3, Qt.ShiftModifier);
            compare(selected(), [1, 2, 3]);
            clickRow(0);
            compare(selected(), [0]);
        }

        function test_checkBoxAddsToTheSelection() {
            prepare();
            clickRow(2);
            mouseClick(rowAt(5), Theme.em(1), rowAt(5).height / 2);
            compare(selected(), [2, 5]);
            compare(rowAt(5).Accessible.selected, true);
            compare(rowAt(4).Accessible.selected, false);
        }

        function test_keysMoveAndSelect() {
            prepare();
            table.forceActiveFocus(Qt.TabFocusReason);
            compare(table.currentIndex, 0);
            compare(selected(), []);
            keyClick(Qt.Key_Down);
            compare(selected(), [1]);
            keyClick(Qt.Key_Down, Qt.ShiftModifier);
            keyClick(Qt.Key_Down, Qt.ShiftModifier);
            compare(selected(), [1, 2, 3]);
            keyClick(Qt.Key_Up, Qt.ShiftModifier);
            compare(selected(), [1, 2]);
            keyClick(Qt.Key_End);
            compare(selected(), [29]);
            keyClick(Qt.Key_Home, Qt.ShiftModifier);
            compare(chosen.count, 30);
            keyClick(Qt.Key_Home);
            compare(selected(), [0]);
            keyClick(Qt.Key_PageDown);
            compare(selected(), [table.rowsPerPage]);
            keyClick(Qt.Key_PageUp);
            compare(selected(), [0]);
        }

        function test_firstShiftStartsAtTheCurrentRow() {
            prepare();
            table.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Down, Qt.ShiftModifier);
            compare(selected(), [0, 1]);
        }

        function test_controlMovesWithoutSelecting() {
            prepare();
            clickRow(0);
            keyClick(Qt.Key_Down, Qt.ControlModifier);
            keyClick(Qt.Key_Down, Qt.ControlModifier);
            compare(selected(), [0]);
            keyClick(Qt.Key_Space);
            compare(selected(), [0, 2]);
            keyClick(Qt.Key_Space);
            compare(selected(), [0]);
        }

        function test_currentRowStaysInSight() {
            prepare();
            table.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_End);
            tryVerify(() => rowAt(29) !== null);
            const y = rowAt(29).mapToItem(table, 0, 0).y;
            verify(y >= 0 && y + rowAt(29).height <= table.height);
        }

        function test_keyboardRowIsMarked() {
            prepare();
            table.forceActiveFocus(Qt.TabFocusReason);
            compare(rowAt(0).current, true);
            keyClick(Qt.Key_Down);
            compare(rowAt(0).current, false);
            compare(rowAt(1).current, true);
        }

        function test_currentRowFollowsItsErrorThroughInsertions() {
            prepare();
            clickRow(3);
            plugin.addError(3, "s", "s/new", ["Lobby", "New"], now + second);
            tryCompare(table, "currentIndex", 4);
            compare(selected(), [4]);
        }

        function test_selectionFollowsItsErrorsThroughSorting() {
            prepare();
            clickRow(3);
            plugin.setTimestamp("3_s/c3", now + minute);
            compare(selected(), [0]);
            tryVerify(() => rowAt(0).selected);
        }

        function test_commandKeys() {
            prepare();
            const copies = spyOn(table, "copyRequested");
            const snoozes = spyOn(table, "snoozeRequested");
            const wishes = spyOn(table, "stationRequested");
            const menus = spyOn(table, "menuRequested");
            clickRow(2);
            keyClick(Qt.Key_A, Qt.ControlModifier);
            compare(chosen.count, 30);
            keyClick(Qt.Key_C, Qt.ControlModifier);
            compare(copies.count, 1);
            keyClick(Qt.Key_S);
            compare(snoozes.count, 1);
            keyClick(Qt.Key_Return);
            compare(wishes.signalArguments[0][0], "s");
            keyClick(Qt.Key_Menu);
            keyClick(Qt.Key_F10, Qt.ShiftModifier);
            compare(menus.count, 2);
            compare(chosen.count, 30);
        }

        function test_doubleClickRequestsTheStation() {
            prepare();
            const wishes = spyOn(table, "stationRequested");
            mouseDoubleClickSequence(rowAt(1), 300, 5);
            compare(wishes.count, 1);
        }

        function test_rightClickSelectsUnlessAlreadySelected() {
            prepare();
            const menus = spyOn(table, "menuRequested");
            mouseClick(rowAt(1), 300, 5, Qt.RightButton);
            compare(selected(), [1]);
            clickRow(2, Qt.ControlModifier);
            mouseClick(rowAt(1), 300, 5, Qt.RightButton);
            compare(selected(), [1, 2]);
            compare(menus.count, 2);
        }

        function test_keysOnAnEmptyListDoNothing() {
            prepare();
            plugin.clearErrors();
            tryCompare(table, "count", 0);
            table.forceActiveFocus(Qt.TabFocusReason);
            for (const key of [Qt.Key_Up, Qt.Key_Down, Qt.Key_Home, Qt.Key_End, Qt.Key_PageDown,
                               Qt.Key_Space, Qt.Key_Return, Qt.Key_Menu])
                keyClick(key);
            keyClick(Qt.Key_A, Qt.ControlModifier);
            compare(chosen.count, 0);
        }

        function test_narrowTableStacksItsColumns() {
            prepare();
            compare(table.columns.stacked, false);
            const oneLine = rowAt(0).height;
            table.anchors.fill = undefined;
            table.width = Theme.em(40);
            tryCompare(table.columns, "stacked", true);
            verify(rowAt(0).height > oneLine);
        }

        function test_textsThatDoNotFitAreTold() {
            prepare();
            plugin.addError(3, "s", "s/x", ["Lobby", "A very long name of a door ".repeat(5)],
                            now + second);
            tryVerify(() => rowAt(0).truncated);
            mouseMove(rowAt(0), 300, 5);
            tryCompare(table, "hoveredRow", rowAt(0));
            verify(!rowAt(1).truncated);
        }

        function test_theKeyboardTellsWhatDoesNotFitToo() {
            prepare();
            const name = "A very long name of a door ".repeat(5);
            plugin.addError(3, "s", "s/x", ["Lobby", name], now + second);
            tryVerify(() => rowAt(0).truncated);
            mouseMove(root, 0, root.height - 1);
            table.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Home);
            tryVerify(() => tipTexts().some(text => text.includes(name)));
            keyClick(Qt.Key_Down);
            tryVerify(() => tipTexts().length === 0);
        }

        function test_drawingsScrolledOutOfSightAreHidden() {
            prepare();
            table.contentY = rowAt(0).height - 1;
            compare(rowAt(0).drawn, false);
            compare(rowAt(1).drawn, true);
        }

        function test_rendersItsRows() {
            prepare();
            const picture = grabImage(table);
            verify(!Qt.colorEqual(picture.pixel(rowAt(0).columns.kindX + Theme.em(0.7),
                                                rowAt(0).height / 2), Theme.surface));
        }
    }
}
