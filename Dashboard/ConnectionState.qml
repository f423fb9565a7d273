import QtQuick
import QtQuick.Layouts

/// Whether the server is there, by shape, word and colour, and since when, below where there is no room
/// beside.
RowLayout {
    id: state

    property bool connected: false
    /// A Date, or undefined when nobody knows.
    property var since

    readonly property string word: connected ? qsTr("Connected")
                                             : qsTr("Server connection lost")
    readonly property string detail: {
        if (!since)
            return connected ? "" : qsTr("Nothing is known about the site");
        const time = Format.recentTime(since.getTime(), Clock.now);
        const age = Format.age(since.getTime(), Clock.now);
        return connected ? qsTr("since %1").arg(time)
                         : qsTr("Nothing is known since %1 (%2)", "time and age").arg(time).arg(age);
    }

    spacing: Theme.gap
    Accessible.role: Accessible.StaticText
    Accessible.name: word
    Accessible.description: detail

    StateMark {
        size: Theme.em(1.5)
        status: state.connected ? "good" : "critical"
    }

    Flow {
        id: texts

        Layout.fillWidth: true
        spacing: Theme.gap

        ToldLabel {
            width: Math.min(implicitWidth, texts.width)
            text: state.word
            color: Theme.stateColor(state.connected ? "good" : "critical")
            font.weight: Font.DemiBold
        }

        ToldLabel {
            width: Math.min(implicitWidth, texts.width)
            wrapMode: Text.Wrap
            maximumLineCount: 2
            text: state.detail
            color: state.connected ? Theme.mutedText : Theme.text
        }
    }
}
