import QtQuick
import Dashboard

Item {
    id: root

    width: 600
    height: 400

    Component {
        id: dialogComponent

        SnoozeUntilDialog {}
    }

    DashboardCase {
        name: "SnoozeUntilDialog"

        property var dialog

        function prepare(year, month, day, hour, minute) {
            dialog = make(dialogComponent);
            dialog.ask(new Date(year, month - 1, day, hour, minute, 0).getTime());
            tryCompare(dialog, "opened", true);
        }

        function cleanup() {
            dialog?.close();
            dialog = null;
        }

        function test_tellsWhatItIs() {
            prepare(2024, 5, 14, 16, 0);
            compare(inWindow("Snooze until").Accessible.role, Accessible.Dialog);
        }

        function test_comparesWithTheServersTime() {
            prepare(2024, 5, 14, 16, 0);
            setServerTime(now + hour, 1);
            compare(dialog.valid, true);
            verify(hasText(inWindow("Snooze until"), "2024-05-14 16:00:00 CEST, in 52 min"));
            setServerTime(now + 2 * hour, 1);
            compare(dialog.valid, false);
        }

        function test_startsOnTheHour() {
            prepare(2024, 5, 14, 16, 0);
            compare(inWindow("Hour").activeFocus, true);
            compare(inWindow("Year").value, 2024);
            compare(inWindow("Minute").value, 0);
            verify(hasText(inWindow("Hour").parent.parent, "2024-05-14 16:00:00 CEST, in 1 h 52 min"));
        }

        function test_returnConfirms() {
            prepare(2024, 5, 14, 16, 0);
            const choices = spyOn(dialog, "chosen");
            keyClick(Qt.Key_Up);
            keyClick(Qt.Key_Return);
            compare(choices.signalArguments[0][0], new Date(2024, 4, 14, 17, 0, 0).getTime());
            tryCompare(dialog, "visible", false);
        }

        function test_typedNumbersCount() {
            prepare(2024, 5, 14, 16, 0);
            const choices = spyOn(dialog, "chosen");
            inWindow("Hour").contentItem.selectAll();
            keyClick("2");
            keyClick("1");
            keyClick(Qt.Key_Return);
            compare(choices.signalArguments[0][0], new Date(2024, 4, 14, 21, 0, 0).getTime());
        }

        function test_escapeCancels() {
            prepare(2024, 5, 14, 16, 0);
            const choices = spyOn(dialog, "chosen");
            keyClick(Qt.Key_Escape);
            tryCompare(dialog, "visible", false);
            compare(choices.count, 0);
        }

        function test_thePastIsRefused() {
            prepare(2024, 5, 14, 14, 5);
            const choices = spyOn(dialog, "chosen");
            compare(dialog.valid, false);
            compare(inWindow("Snooze").enabled, false);
            keyClick(Qt.Key_Return);
            compare(choices.count, 0);
            compare(dialog.visible, true);
        }

        function test_theClockMakesAMomentPast() {
            prepare(2024, 5, 14, 14, 10);
            compare(dialog.valid, true);
            Clock.now = now + 3 * minute;
            compare(dialog.valid, false);
        }

        function test_monthsHaveTheirDays_data() {
            return [
                { "tag": "February of a leap year", "year": 2024, "month": 2, "days": 29 },
                { "tag": "February", "year": 2025, "month": 2, "days": 28 },
                { "tag": "April", "year": 2024, "month": 4, "days": 30 },
                { "tag": "December", "year": 2024, "month": 12, "days": 31 }
            ];
        }

        function test_monthsHaveTheirDays(data) {
            prepare(2024, 1, 31, 12, 0);
            inWindow("Year").value = data.year;
            inWindow("Month").value = data.month;
            compare(inWindow("Day").to, data.days);
            compare(inWindow("Day").value, data.days);
        }

        function test_hoursAndMinutesWrap() {
            prepare(2024, 5, 14, 23, 55);
            keyClick(Qt.Key_Up);
            compare(inWindow("Hour").value, 0);
            inWindow("Minute").forceActiveFocus();
            keyClick(Qt.Key_Up);
            compare(inWindow("Minute").value, 0);
        }

        function test_buttonsConfirmAndCancel() {
            prepare(2024, 5, 14, 16, 0);
            const choices = spyOn(dialog, "chosen");
            click("Cancel");
            tryCompare(dialog, "visible", false);
            compare(choices.count, 0);
            dialog.ask(new Date(2024, 4, 15, 6, 0, 0).getTime());
            tryCompare(dialog, "opened", true);
            click("Snooze");
            compare(choices.count, 1);
        }
    }
}
