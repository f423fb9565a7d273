import QtQuick

/// Entries of the operational log as a table of texts, in their order.
QtObject {
    /// As the operational log gives them; see DashboardView.operationalLog.
    property var entries: []

    /// The parameters of an entry in one text.
    function details(entry: var): string {
        return (entry.parameters ?? []).join(" · ");
    }

    /// The headings, then one list of fields for each entry. The heading of the times names the zone
    /// of @p now; a time in another zone names its own.
    function rows(now: real): var {
        const zone = Format.zone(now);
        return [[qsTr("Time (%1)", "time zone").arg(zone), qsTr("Entry"), qsTr("Details")],
                ...entries.map(entry => [Format.timeInZone(entry.time, zone), entry.name,
                                         details(entry)])];
    }
}
