pragma Singleton

import QtQuick

/// Times, durations and amounts in words.
QtObject {
    readonly property real minute: 60
    readonly property real hour: 60 * minute
    readonly property real day: 24 * hour

    /// Fills %1, %2 and so on. Unlike a chain of arg() it leaves alone what looks like a marker in
    /// the values, which may be names that users chose.
    function fill(text: string, ...values): string {
        return text.replace(/%([1-9])/g, (marker, number) => values[number - 1] ?? marker);
    }

    /// Local date and time with its zone; @p milliseconds since the epoch.
    function dateTime(milliseconds: real): string {
        return Qt.formatDateTime(new Date(milliseconds), "yyyy-MM-dd hh:mm:ss t");
    }

    /// The short name of the local time zone at a moment.
    function zone(milliseconds: real): string {
        return Qt.formatDateTime(new Date(milliseconds), "t");
    }

    /// Local date and time below a heading that names @p zone; a time in another zone, as half a
    /// year has it, names its own.
    function timeInZone(milliseconds: real, zone: string): string {
        const full = dateTime(milliseconds);
        return full.endsWith(" " + zone) ? full.slice(0, -zone.length - 1) : full;
    }

    /// Local date and time as part of a file's name.
    function fileStamp(milliseconds: real): string {
        return Qt.formatDateTime(new Date(milliseconds), "yyyy-MM-dd-hhmmss");
    }

    /// As dateTime(), but short: without what it has in common with @p now, and no more exact than
    /// its age is worth.
    function recentTime(milliseconds: real, now: real): string {
        const date = new Date(milliseconds);
        const today = new Date(now);
        if (date.toDateString() === today.toDateString())
            return Qt.formatDateTime(date, "hh:mm:ss t");
        const sameYear = date.getFullYear() === today.getFullYear();
        return Qt.formatDateTime(date, sameYear ? "MM-dd hh:mm t" : "yyyy-MM-dd t");
    }

    /// A length of time in its two largest units; a negative one counts as none.
    function duration(seconds: real): string {
        const whole = Math.max(0, Math.floor(seconds));
        if (whole < minute)
            return qsTr("%1 s").arg(whole);
        if (whole < hour)
            return qsTr("%1 min").arg(Math.floor(whole / minute));
        if (whole < day) {
            return qsTr("%1 h %2 min").arg(Math.floor(whole / hour))
                                      .arg(Math.floor(whole % hour / minute));
        }
        return qsTr("%1 d %2 h").arg(Math.floor(whole / day)).arg(Math.floor(whole % day / hour));
    }

    /// The time from one moment to another, both in milliseconds since the epoch.
    function age(milliseconds: real, now: real): string {
        return duration((now - milliseconds) / 1000);
    }

    /// A percentage, rounded to a whole number.
    function percent(value: real): string {
        return qsTr("%1%").arg(Math.round(value));
    }

    /// A bandwidth given in megabits per second.
    function bandwidth(megabits: real): string {
        if (megabits >= 1000)
            return qsTr("%1 Gbit/s").arg(shortNumber(megabits / 1000));
        if (megabits >= 1)
            return qsTr("%1 Mbit/s").arg(shortNumber(megabits));
        return qsTr("%1 kbit/s").arg(shortNumber(megabits * 1000));
    }

    /// A number in the local notation, with one decimal where that tells more.
    function shortNumber(value: real): string {
        const rounded = Math.round(value * 10) / 10;
        return rounded.toLocaleString(Qt.locale(), "f", rounded === Math.round(rounded) ? 0 : 1);
    }
}
