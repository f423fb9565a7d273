pragma Singleton

import QtQuick

/// Tables as text for spreadsheets and scripts: fields parted by commas, records ended by CR LF, a
/// field in quotes where it holds one of these or a quote.
QtObject {
    /// One text for all @p rows, which are lists of fields; the headings come first.
    function document(rows: var): string {
        return rows.map(row => row.map(field).join(",") + "\r\n").join("");
    }

    // A spreadsheet carries out what begins like a formula. The names in a table come from devices
    // and from whoever may rename them, so an apostrophe makes a text of such a beginning.
    function field(value: var): string {
        const text = String(value ?? "");
        const safe = /^[=+\-@\t\r\n\uff1d\uff0b\uff0d\uff20]/.test(text) ? "'" + text : text;
        return /[",\r\n]/.test(safe) ? "\"" + safe.replace(/"/g, "\"\"") + "\"" : safe;
    }
}
