import QtQuick
import QtQuick.Layouts

/// Stands above a filtered list: what is filtered, how many errors that hides, and the way back.
Rectangle {
    id: notice

    required property ErrorFilters filters
    required property StationDirectory directory
    property int hidden: 0

    readonly property var matchingStations: directory.rows.filter(
                                                row => row.stationID.includes(filters.stationID))

    /// The station filter in words. It looks for a part of the id, which several may share.
    readonly property string stationText: {
        const name = directory.nameOf(filters.stationID);
        const others = matchingStations.length - 1;
        return others > 0 ? qsTr("%1 and %n more station(s)", "", others).arg(name) : name;
    }

    readonly property string conditions: {
        const parts = [];
        if (filters.categories === ErrorKinds.stationCategory)
            parts.push(qsTr("stations only"));
        if (filters.categories === ErrorKinds.cameraCategory)
            parts.push(qsTr("cameras only"));
        if (filters.stationID !== "")
            parts.push(stationText);
        if (filters.text !== "")
            parts.push(qsTr("“%1”").arg(filters.text));
        return parts.join(", ");
    }

    visible: filters.active
    implicitHeight: Theme.em(2.4)
    color: Theme.selection
    Accessible.role: Accessible.StaticText
    Accessible.name: label.text

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.pad
        anchors.rightMargin: Theme.em(0.2)
        spacing: Theme.gap

        Glyph {
            name: "filter"
            color: Theme.accent
        }

        ToldLabel {
            id: label

            Layout.fillWidth: true
            text: qsTr("%1: hides %n error(s)", "filter conditions", notice.hidden)
                  .arg(notice.conditions)
        }

        ActionButton {
            flat: true
            glyph: "close"
            text: qsTr("Clear (Esc)")
            onClicked: notice.filters.clear()
        }
    }
}
