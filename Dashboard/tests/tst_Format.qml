import QtQuick
import Dashboard

Item {
    DashboardCase {
        name: "Format"

        function test_durationTakesTheTwoLargestUnits_data() {
            return [
                { "tag": "before its time", "seconds": -5, "text": "0 s" },
                { "tag": "none", "seconds": 0, "text": "0 s" },
                { "tag": "below a minute", "seconds": 59.9, "text": "59 s" },
                { "tag": "a minute", "seconds": 60, "text": "1 min" },
                { "tag": "below an hour", "seconds": 3599, "text": "59 min" },
                { "tag": "an hour", "seconds": 3600, "text": "1 h 0 min" },
                { "tag": "below a day", "seconds": 86399, "text": "23 h 59 min" },
                { "tag": "a day", "seconds": 86400, "text": "1 d 0 h" },
                { "tag": "weeks", "seconds": 20 * 86400 + 7200, "text": "20 d 2 h" }
            ];
        }

        function test_durationTakesTheTwoLargestUnits(data) {
            compare(Format.duration(data.seconds), data.text);
        }

        function test_timesBelowAZoneNameOnlyAnother() {
            compare(Format.zone(now), "CEST");
            compare(Format.timeInZone(now, "CEST"), "2024-05-14 14:07:33");
            compare(Format.timeInZone(now, "CET"), "2024-05-14 14:07:33 CEST");
        }

        function test_fileStampSortsByTime() {
            compare(Format.fileStamp(now), "2024-05-14-140733");
        }

        function test_ageCountsFromTheMoment() {
            compare(Format.age(now - 90 * second, now), "1 min");
        }

        function test_timesAreLocalWithTheirZone_data() {
            return [
                { "tag": "summer", "date": new Date(2024, 4, 14, 14, 7, 33),
                  "text": "2024-05-14 14:07:33 CEST" },
                { "tag": "winter", "date": new Date(2024, 0, 2, 3, 4, 5),
                  "text": "2024-01-02 03:04:05 CET" }
            ];
        }

        function test_timesAreLocalWithTheirZone(data) {
            compare(Format.dateTime(data.date.getTime()), data.text);
        }

        function test_recentTimeLeavesOutWhatGoesWithoutSaying() {
            compare(Format.recentTime(now - hour, now), "13:07:33 CEST");
            compare(Format.recentTime(now - 24 * hour, now), "05-13 14:07 CEST");
            compare(Format.recentTime(new Date(2023, 11, 31, 23, 0, 0).getTime(), now),
                    "2023-12-31 CET");
        }

        function test_percentIsWhole() {
            compare(Format.percent(49.5), "50%");
            compare(Format.percent(0), "0%");
        }

        function test_bandwidthChoosesItsUnit_data() {
            return [
                { "tag": "none", "megabits": 0, "text": "0 kbit/s" },
                { "tag": "kilobits", "megabits": 0.0567, "text": "56.7 kbit/s" },
                { "tag": "a megabit", "megabits": 1, "text": "1 Mbit/s" },
                { "tag": "megabits", "megabits": 182.04, "text": "182 Mbit/s" },
                { "tag": "below a gigabit", "megabits": 999.9, "text": "999.9 Mbit/s" },
                { "tag": "gigabits", "megabits": 2500, "text": "2.5 Gbit/s" },
                { "tag": "beyond", "megabits": 4e6, "text": "4,000 Gbit/s" }
            ];
        }

        function test_bandwidthChoosesItsUnit(data) {
            compare(Format.bandwidth(data.megabits), data.text);
        }

        function test_fillLeavesMarkersInValuesAlone() {
            compare(Format.fill("%1 and %2", "50%2", "b"), "50%2 and b");
            compare(Format.fill("%1 and %3", "a"), "a and %3");
        }
    }
}
