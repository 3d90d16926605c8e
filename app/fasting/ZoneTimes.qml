// SPDX-License-Identifier: MIT
// How long a fast was in each zone: names over times, spread over the width.
import QtQuick
import Mivo

Grid {
    id: root

    required property list<zoneTime> zones

    columns: Theme.textScale >= 1.6 ? 1 : Theme.textScale >= 1.3 ? 2 : Math.max(1, Math.min(3, zones.length))
    readonly property ZoneTimeItem first: children.length > 1 ? children[0] as ZoneTimeItem : null

    columnSpacing: first && first.spread ? (width - first.total) / (columns - 1) : 0
    rowSpacing: 12
    verticalItemAlignment: Grid.AlignBottom

    Repeater {
        model: root.zones

        delegate: ZoneTimeItem {}
    }
}
