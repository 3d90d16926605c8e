// SPDX-License-Identifier: MIT
import QtQuick
import Mivo

Card {
    id: root

    required property DayBarsCardRecord card
    required property DayBarsModel chart
    property Accent accent: Theme.fasting
    property int chartHeight: 200

    signal tableWanted

    bottomPadding: root.chart.isEmpty ? padding : 4
    spacing: 12

    CardHead {
        width: parent.width
        title: root.card.title
        detail: root.chart.isEmpty ? "" : root.chart.visibleDates
        hasSwatch: true
        swatch: root.accent.fill
    }

    EmptyChart {
        width: parent.width
        visible: root.chart.isEmpty
        text: root.card.empty
    }

    FocusScope {
        id: scope
        width: parent.width
        height: root.chartHeight
        visible: !root.chart.isEmpty
        activeFocusOnTab: true
        Accessible.role: Accessible.Chart
        Accessible.name: root.card.title + ", " + root.chart.visibleDates
        Accessible.description: root.chart.spokenSelection
        Accessible.focusable: true

        Keys.onLeftPressed: bars.moveSelection(bars.mirrored ? 1 : -1)
        Keys.onRightPressed: bars.moveSelection(bars.mirrored ? -1 : 1)
        Keys.onReturnPressed: bars.toggleSelection()
        Keys.onEnterPressed: bars.toggleSelection()
        Keys.onEscapePressed: bars.clearSelection()
        Keys.onMenuPressed: menu.open()
        Keys.onPressed: event => {
            if (event.key === Qt.Key_Home || event.key === Qt.Key_End) {
                bars.selectEnd(event.key === Qt.Key_End);
                event.accepted = true;
            }
        }

        FocusRing { target: scope }

        ThemedDayBars {
            id: bars
            x: -roomAtTheSides
            width: parent.width + 2 * roomAtTheSides
            height: parent.height
            model: root.chart
            accent: root.accent
            mirrored: LayoutMirroring.enabled
            scroll: layer.scroll
            onScrollWanted: position => layer.scrollTo(position, false)
            onUnitChanged: growing.restart()

            NumberAnimation on growth {
                id: growing
                running: false
                from: 0
                to: 1
                duration: Theme.barDuration
                easing.type: Easing.OutCubic
            }
        }

        ScrollLayer {
            id: layer
            anchors.left: parent.left
            width: bars.plotWidth
            height: parent.height
            wantedContentWidth: bars.contentWidth
            rightToLeft: bars.mirrored
            onMovementEnded: scrollTo(bars.snapped(scroll), true)
            onTapped: x => {
                scope.forceActiveFocus();
                bars.tap(x + layer.x + bars.roomAtTheSides);
            }
            onMenuWanted: menu.open()
        }

        ChartMenu {
            id: menu
            value: root.chart.spokenSelection
            onTableWanted: root.tableWanted()
        }

        Connections {
            target: root.chart
            function onMidXWanted(midX: real) {
                if (!layer.underway)
                    layer.scrollTo(midX - bars.plotWidth / 2, false);
            }
        }
    }
}
