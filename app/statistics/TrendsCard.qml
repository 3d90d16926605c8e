// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Card {
    id: root

    required property TrendsCardRecord card
    property bool wide: false

    spacing: 16

    CardHead {
        width: parent.width
        title: root.card.title
    }

    Grid {
        id: grid
        width: parent.width
        columns: root.wide ? 2 : 1
        columnSpacing: 24
        rowSpacing: 16

        Repeater {
            model: root.card.rows

            delegate: TrendRowItem {
                required property int index

                width: (grid.width - (grid.columns - 1) * grid.columnSpacing) / grid.columns
                divided: !root.wide && index > 0
            }
        }
    }
}
