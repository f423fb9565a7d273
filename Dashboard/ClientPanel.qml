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

    implicitHeight: column.implicitHeight + 2 * (Theme.pad + Theme.line)

    component Meter: ColumnLayout {
        id: meter

        property string name
        property var samples: []
        readonly property var latest: samples.length > 0 ? samples[samples.length - 1] : null
        readonly property string valueText: latest === null ? qsTr("unknown")
                                                            : Format.percent(latest)

        Layout.fillWidth: true
        Layout.preferredWidth: 1
        spacing: Theme.em(0.3)
        Accessible.role: Accessible.Chart
        Accessible.name: qsTr("%1 of this computer: %2", "usage and value").arg(name).arg(valueText)

        RowLayout {
            spacing: Theme.gap

            PlainLabel {
                Layout.fillWidth: true
                text: meter.name
            }

            PlainLabel {
                text: meter.valueText
                color: meter.latest === null ? Theme.mutedText : Theme.text
                font.pixelSize: meter.latest === null ? Theme.normalFont : Theme.largeFont
                font.weight: Font.DemiBold
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
            text: qsTr("This computer")
            remark: qsTr("last %1").arg(Format.duration(panel.history.capacity))
        }

        GridLayout {
            Layout.fillWidth: true
            columns: panel.width < Theme.em(20) ? 1 : 2
            columnSpacing: Theme.em(1)
            rowSpacing: Theme.em(1)

            Meter {
                name: qsTr("CPU")
                samples: panel.history.cpu
            }

            Meter {
                name: qsTr("Memory")
                samples: panel.history.memory
            }
        }

        Item {
            Layout.fillHeight: true
        }
    }
}
