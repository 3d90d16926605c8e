// SPDX-License-Identifier: MIT
import QtQuick
import Mivo

Card {
    id: root

    required property WeightFastingChartCardRecord card
    required property LineChartModel chart
    property bool wide: false

    signal tableWanted

    bottomPadding: root.chart.isEmpty ? padding : 8
    spacing: 12

    Column {
        width: parent.width
        spacing: 8

        CardHead {
            width: parent.width
            title: root.card.title
            detail: root.chart.isEmpty ? "" : root.chart.visibleDates
        }

        Flow {
            width: parent.width
            spacing: 4
            visible: !root.chart.isEmpty

            Repeater {
                model: [root.card.weightLegend, root.card.fastingLegend]

                delegate: Row {
                    id: entry
                    required property int index
                    required property string modelData

                    spacing: 8
                    rightPadding: 8

                    LegendMark {
                        anchors.verticalCenter: parent.verticalCenter
                        diamond: entry.index === 1
                        line: entry.index === 1 ? Theme.fasting.fill : Theme.weight.fill
                    }

                    StyledText {
                        text: entry.modelData
                        style: Theme.captionText
                        color: Theme.inkSecondary
                        wrapMode: Text.NoWrap
                    }
                }
            }
        }
    }

    EmptyChart {
        width: parent.width
        visible: root.chart.isEmpty
        text: root.card.empty
    }

    LineChartArea {
        width: parent.width
        leastHeight: root.wide ? 236 : 216
        visible: !root.chart.isEmpty
        chart: root.chart
        title: root.card.title
        onTableWanted: root.tableWanted()
    }
}
