// SPDX-License-Identifier: MIT
// How long a fast was in each zone: names over times, spread over the width.
import QtQuick
import Mivo

Grid {
    id: root

    required property list<zoneTime> zones

    columns: Theme.textScale >= 1.6 ? 1 : Theme.textScale >= 1.3 ? 2 : Math.max(1, Math.min(3, zones.length))
    rowSpacing: 12
    horizontalItemAlignment: Grid.AlignLeft

    Repeater {
        model: root.zones

        delegate: ZoneTimeItem {}
    }
}
