// SPDX-License-Identifier: MIT
// Which cards the statistics show, and what counts as a streak.
import QtQuick
import Mivo

PushedPage {
    id: root

    readonly property bool twoColumns: width >= 700
    readonly property real columnWidth: twoColumns ? (contentWidth - grid.columnSpacing) / 2 : contentWidth

    title: App.settings.cards.title
    maxWidth: twoColumns ? 960 : 720

    Grid {
        id: grid
        columns: root.twoColumns ? 2 : 1
        columnSpacing: Theme.cardGapWide
        rowSpacing: Theme.sectionTop

        Column {
            width: root.columnWidth
            spacing: Theme.sectionTop

            CardSwitches {
                width: parent.width
                title: App.settings.cards.cardsTitle
                switches: App.settings.cards.cards
                onToggled: row => App.settings.cards.toggleCard(row)
            }

            CardSwitches {
                width: parent.width
                title: App.settings.cards.chartsTitle
                switches: App.settings.cards.charts
                onToggled: row => App.settings.cards.toggleChart(row)
            }
        }

        Column {
            width: root.columnWidth
            spacing: Theme.sectionTop

            CardSwitches {
                width: parent.width
                title: App.settings.cards.trendsTitle
                switches: App.settings.cards.trends
                onToggled: row => App.settings.cards.toggleTrend(row)
            }

            StreakSettings { width: parent.width }
        }
    }
}
