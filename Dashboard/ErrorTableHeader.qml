pragma ComponentBehavior: Bound

import QtQuick

/// The headings above the columns of the error table.
Item {
    id: header

    required property ErrorColumns columns

    implicitHeight: Theme.em(1.9)

    component Heading: PlainLabel {
        height: header.height
        color: Theme.mutedText
        font.pixelSize: Theme.smallFont
        font.weight: Font.DemiBold
    }

    Heading {
        x: header.columns.kindX
        width: header.columns.kindWidth
        text: qsTr("Error")
    }

    Heading {
        x: header.columns.deviceX
        width: header.columns.deviceWidth
        text: header.columns.stacked ? qsTr("Device and station") : qsTr("Device")
    }

    Heading {
        x: header.columns.stationX
        width: header.columns.stationWidth
        visible: !header.columns.stacked
        text: qsTr("Station")
    }

    Heading {
        x: header.columns.ageX
        width: header.columns.ageWidth
        visible: !header.columns.stacked
        horizontalAlignment: Text.AlignRight
        text: qsTr("Age")
    }

    Heading {
        x: header.columns.timeX
        width: header.columns.timeWidth
        horizontalAlignment: Text.AlignRight
        text: header.columns.stacked ? qsTr("Age and time") : qsTr("Since")
    }

    Rectangle {
        width: parent.width
        height: Theme.line
        anchors.bottom: parent.bottom
        color: Theme.border
    }
}
