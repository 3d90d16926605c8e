// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Card {
    id: root

    required property SummaryCardRecord card
    property bool wide: false

    readonly property int columns: wide ? (Theme.textScale >= 1.6 ? 3 : 6) : Theme.textScale >= 1.6 ? 1 : 2

    spacing: 8

    CardHead {
        width: parent.width
        title: root.card.title
        detail: root.card.period
    }

    Grid {
        id: grid
        width: parent.width
        columns: root.columns
        spacing: 16

        Repeater {
            model: root.card.figures

            delegate: SummaryFigure {
                required property int index
                required value
                required label

                width: (grid.width - (root.columns - 1) * grid.spacing) / root.columns
                // The first row is the larger one.
                largest: root.wide ? Theme.numberText : index < 2 ? Theme.numberLargeText : Theme.numberSmallText
                middle: !root.wide && index < 2 ? Theme.numberText : root.wide ? Theme.numberSmallText : Theme.numberRowText
                smallest: !root.wide && index < 2 ? Theme.numberSmallText : Theme.numberRowText
            }
        }
    }
}
