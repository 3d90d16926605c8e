// SPDX-License-Identifier: MIT
import QtQuick
import Mivo

Card {
    id: root

    required property WeightChartCardModel card
    required property LineChartModel chart
    property bool wide: false

    signal tableWanted

    bottomPadding: root.chart.isEmpty ? padding : 8
    spacing: 8

    CardHead {
        width: parent.width
        title: root.card.title
        detail: root.chart.isEmpty ? "" : root.chart.visibleDates
        hasSwatch: true
        swatch: Theme.weight.fill
    }

    Row {
        anchors.left: parent.left
        visible: !root.chart.isEmpty && root.card.averageLabel !== ""
        spacing: 8

        StyledNumber {
            id: average
            text: root.chart.average
            evenDigits: true
        }

        StyledText {
            anchors.baseline: average.baseline
            text: root.card.averageLabel
            style: Theme.labelText
            color: Theme.inkSecondary
        }
    }

    EmptyChart {
        width: parent.width
        visible: root.chart.isEmpty
        text: root.card.emptyText
    }

    LineChartArea {
        width: parent.width
        height: root.wide ? 224 : 176
        visible: !root.chart.isEmpty
        chart: root.chart
        title: root.card.title
        onTableWanted: root.tableWanted()
    }
}
