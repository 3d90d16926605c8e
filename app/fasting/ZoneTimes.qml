// SPDX-License-Identifier: MIT
// How long a fast was in each zone: names over times, spread over the width.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Grid {
    id: root

    required property RecordRows zones

    readonly property var naturalWidths: Array.from(children).filter(child => child instanceof ZoneTimeItem).map(item => item.naturalWidth)
    readonly property real total: naturalWidths.reduce((one, other) => one + other, 0)
    /// They stand beside each other where there is room for it, else in columns of one width.
    readonly property bool spread: zones.count <= mostColumns && total + leastGap * zones.count <= width

    readonly property int mostColumns: 3
    readonly property real leastGap: 8

    columns: spread ? Math.max(1, zones.count) : Math.max(1, Math.min(mostColumns, Math.floor((width + leastGap) / (Math.max(...naturalWidths) + leastGap))))
    columnSpacing: spread && columns > 1 ? (width - total) / (columns - 1) : 0
    rowSpacing: 12
    verticalItemAlignment: Grid.AlignBottom

    Repeater {
        model: root.zones

        delegate: ZoneTimeItem {
            columns: root.columns
            columnWidth: root.spread ? 0 : root.width / root.columns
        }
    }
}
