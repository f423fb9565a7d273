import QtQuick

/// Where the columns of the error table begin and how wide they are, in pixels.
QtObject {
    id: columns

    /// The width of the table.
    property real tableWidth: 0
    /// What the columns share of it: a row that is too long is hard to follow.
    readonly property real width: Math.min(tableWidth, Theme.em(110))

    /// Whether station and time stand on a second line.
    readonly property bool stacked: width < Theme.em(56)

    readonly property real rowHeight: stacked ? Theme.em(3.4) : Theme.rowHeight

    readonly property real kindX: Theme.em(2.3)
    readonly property real kindWidth: Math.min(Theme.em(18.5), width * 0.36)
    readonly property real ageWidth: stacked ? timeWidth : Theme.em(5.4)
    readonly property real timeWidth: Theme.em(10)
    readonly property real timeX: width - timeWidth - Theme.em(1)
    readonly property real ageX: stacked ? timeX : timeX - ageWidth
    readonly property real deviceX: kindX + kindWidth + Theme.gap
    readonly property real middleWidth: Math.max(0, ageX - deviceX - Theme.pad)
    readonly property real deviceWidth: stacked ? middleWidth
                                               : Math.round((middleWidth - Theme.pad) * 0.52)
    readonly property real stationX: stacked ? deviceX : deviceX + deviceWidth + Theme.pad
    readonly property real stationWidth: stacked ? middleWidth
                                                : middleWidth - Theme.pad - deviceWidth
}
