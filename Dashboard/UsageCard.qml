import QtQuick
import QtQuick.Layouts

/// One row of the plug-in's usage model: CPU, memory or a network interface of a station.
Item {
    id: card

    required property var typeRole
    required property var titleRole
    required property var subtitleRole
    required property var thresholdRole
    required property var usageListRole
    required property var bandwidthRole

    property real plotHeight: Theme.em(4.5)

    /// How many of the newest entries of the history stand for reports; the rest only fill it up.
    property int reported: 0

    /// What is seen of the panel that the card is in, in the card's coordinates.
    property real viewTop: -Infinity
    property real viewBottom: Infinity

    // The software renderer forgets the clip of a Shape that lies outside it entirely, so drawings
    // that are scrolled out of sight are hidden.
    function isSeen(item: Item): bool {
        return item.y + item.height > viewTop && item.y < viewBottom;
    }

    readonly property int networkType: 2
    readonly property var samples: reported > 0 ? (usageListRole ?? []).slice(-reported) : []
    readonly property real value: samples[samples.length - 1] ?? -1
    // A sample that failed is reported as a negative one.
    readonly property bool known: value >= 0
    // The rule that raises the error compares whole percentages too.
    readonly property bool over: known && Math.round(value) >= (thresholdRole ?? 101)
    readonly property color lineColor: over ? Theme.warning : Theme.accent

    readonly property string name: subtitleRole ? titleRole + " · " + subtitleRole
                                                : titleRole ?? ""
    readonly property string limitText: {
        if (thresholdRole === undefined)
            return "";
        const limit = Format.percent(thresholdRole);
        return over ? qsTr("over threshold %1").arg(limit) : qsTr("threshold %1").arg(limit);
    }
    readonly property string bandwidthText: typeRole === networkType && bandwidthRole > 0
                                            ? qsTr("bandwidth %1").arg(Format.bandwidth(bandwidthRole))
                                            : ""
    readonly property string detail: bandwidthText === "" ? limitText
                                                          : bandwidthText + " · " + limitText

    /// Whether the name does not fit, not even on two lines.
    readonly property bool truncated: nameLabel.truncated

    implicitHeight: column.implicitHeight
    Accessible.role: Accessible.Chart
    Accessible.name: known ? Format.fill(qsTr("%1: %2, %3", "usage, value, detail"), name,
                                         Format.percent(value), detail)
                           : qsTr("%1: not known").arg(name)

    ColumnLayout {
        id: column

        width: parent.width
        spacing: Theme.em(0.3)

        RowLayout {
            id: title

            opacity: card.isSeen(title) ? 1 : 0
            Layout.fillWidth: true
            spacing: Theme.gap

            Glyph {
                name: ["cpu", "memory", "network"][card.typeRole] ?? "question"
                color: Theme.mutedText
            }

            PlainLabel {
                id: nameLabel

                Layout.fillWidth: true
                wrapMode: Text.Wrap
                maximumLineCount: 2
                text: card.name
            }

            StateMark {
                visible: card.over
                size: Theme.em(1.2)
                status: "warning"
            }

            PlainLabel {
                text: card.known ? Format.percent(card.value) : qsTr("unknown")
                color: card.over ? Theme.warning : card.known ? Theme.text : Theme.mutedText
                font.pixelSize: card.known ? Theme.largeFont : Theme.normalFont
                font.weight: Font.DemiBold
            }
        }

        UsagePlot {
            id: plot

            opacity: card.isSeen(plot) ? 1 : 0
            Layout.fillWidth: true
            Layout.preferredHeight: card.plotHeight
            samples: card.samples
            threshold: card.thresholdRole ?? -1
            color: card.lineColor
        }

        PlainLabel {
            Layout.fillWidth: true
            wrapMode: Text.Wrap
            maximumLineCount: 2
            text: card.detail
            font.pixelSize: Theme.smallFont
            font.weight: card.over ? Font.DemiBold : Font.Normal
            color: card.over ? Theme.warning : Theme.mutedText
        }
    }

    HoverHandler {
        id: hover
    }

    Tip {
        text: card.name
        visible: card.truncated && hover.hovered
    }
}
