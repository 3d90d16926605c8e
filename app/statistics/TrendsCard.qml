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

            delegate: Column {
                id: slot
                required property int index
                required property trendCardRecord modelData

                width: (grid.width - (grid.columns - 1) * grid.columnSpacing) / grid.columns
                spacing: 16

                Rectangle {
                    visible: !root.wide && slot.index > 0
                    width: parent.width
                    height: Theme.hairlineSize
                    color: Theme.hairline
                }

                TrendRowItem {
                    width: parent.width
                    modelData: slot.modelData
                }
            }
        }
    }
}
