pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

/// CPU and memory of the machine that the dashboard runs on.
Panel {
    id: panel

    required property var surface

    readonly property ClientHistory history: ClientHistory {
        surface: panel.surface
    }

    readonly property bool narrow: width < Theme.em(20)
    readonly property string period: qsTr("last %1").arg(Format.duration(history.capacity))

    implicitHeight: column.implicitHeight + 2 * (Theme.pad + Theme.line)

    component Meter: ColumnLayout {
        id: meter

        property string name
        property var samples: []
        /// What may be behind a sample that is not known, or nothing.
        property string doubt
        readonly property var latest: samples.length > 0 ? samples[samples.length - 1] : null
        readonly property string valueText: latest === null ? qsTr("unknown")
                                                            : Format.percent(latest)

        Layout.fillWidth: true
        Layout.preferredWidth: 1
        spacing: Theme.em(0.3)
        Accessible.role: Accessible.Chart
        Accessible.name: qsTr("%1 of this computer: %2", "usage and value").arg(name).arg(valueText)
        Accessible.description: tip.text

        HoverHandler {
            id: hover
        }

        Tip {
            id: tip

            text: meter.samples.length > 0 && meter.latest === null ? meter.doubt : ""
            visible: text !== "" && hover.hovered
        }

        RowLayout {
            spacing: Theme.gap

            PlainLabel {
                Layout.fillWidth: true
                text: meter.name
            }

            PlainLabel {
                text: meter.valueText
                color: meter.latest === null ? Theme.mutedText : Theme.text
                font.pixelSize: meter.latest === null ? Theme.smallFont : Theme.largeFont
                font.weight: meter.latest === null ? Font.Normal : Font.DemiBold
            }
        }

        UsagePlot {
            Layout.fillWidth: true
            implicitHeight: Theme.em(3)
            samples: meter.samples
            capacity: panel.history.capacity
        }
    }

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: Theme.pad + Theme.line
        spacing: Theme.gap

        PaneTitle {
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.controlHeight
            text: qsTr("This computer")
            remark: panel.narrow ? "" : panel.period
        }

        PlainLabel {
            visible: panel.narrow
            text: panel.period
            color: Theme.mutedText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        GridLayout {
            Layout.fillWidth: true
            columns: panel.narrow ? 1 : 2
            columnSpacing: Theme.em(1)
            rowSpacing: Theme.em(1)

            Meter {
                name: qsTr("CPU")
                samples: panel.history.cpu
            }

            Meter {
                name: qsTr("Memory")
                doubt: qsTr("The sample failed, or less than 1% is in use: both are reported as 0.")
                samples: panel.history.memory
            }
        }

        Item {
            Layout.fillHeight: true
        }
    }
}
