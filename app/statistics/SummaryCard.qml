// SPDX-License-Identifier: MIT
import QtQuick
import Mivo

Card {
    id: root

    required property SummaryCardModel card
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
            model: root.card.values

            delegate: SummaryFigure {
                required property int index
                required property string modelData

                // The first row is the larger one.
                readonly property list<TextStyle> large: [Theme.numberLargeText, Theme.numberText, Theme.numberSmallText]
                readonly property list<TextStyle> small: [Theme.numberSmallText, Theme.numberRowText]
                readonly property list<TextStyle> middle: [Theme.numberText, Theme.numberSmallText, Theme.numberRowText]

                width: (grid.width - (root.columns - 1) * grid.spacing) / root.columns
                value: modelData
                label: root.card.labels[index]
                styles: root.wide ? middle : index < 2 ? large : small
            }
        }
    }
}
