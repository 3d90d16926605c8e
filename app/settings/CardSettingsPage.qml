// SPDX-License-Identifier: MIT
// Which cards the statistics show, and what counts as a streak.
import QtQuick
import Mivo

PushedPage {
    id: root

    readonly property bool twoColumns: width >= 700
    readonly property real columnWidth: twoColumns ? (contentWidth - grid.columnSpacing) / 2 : contentWidth

    title: Texts.text("Statistics and Fasting Zones")
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
                title: Texts.text("Cards")
                switches: App.settings.cards
            }

            CardSwitches {
                width: parent.width
                title: Texts.text("Charts")
                switches: App.settings.charts
            }
        }

        Column {
            width: root.columnWidth
            spacing: Theme.sectionTop

            CardSwitches {
                width: parent.width
                title: Texts.text("Trends")
                switches: App.settings.trends
            }

            StreakSettings { width: parent.width }
        }
    }
}
