// SPDX-License-Identifier: MIT
import QtQuick
import Mivo

Card {
    id: root

    required property WeightChartCardRecord card
    required property LineChartModel chart
    property bool wide: false

    signal tableWanted
    signal weightsWanted

    bottomPadding: link.visible ? 4 : root.chart.isEmpty ? padding : 8
    spacing: 8

    CardHead {
        width: parent.width
        title: root.card.title
        detail: root.chart.isEmpty ? "" : root.chart.visibleDates
        hasSwatch: true
        swatch: Theme.weight.fill
    }

    Item {
        id: averageLine
        readonly property bool stacked: average.width + 8 + averageLabel.implicitWidth > width

        width: parent.width
        height: average.height + (stacked ? averageLabel.height : 0)
        visible: !root.chart.isEmpty && root.card.averageLabel !== ""

        StyledNumber {
            id: average
            anchors.left: parent.left
            text: root.chart.average
            evenDigits: true
        }

        StyledText {
            id: averageLabel
            anchors.left: averageLine.stacked ? parent.left : average.right
            anchors.leftMargin: averageLine.stacked ? 0 : 8
            y: averageLine.stacked ? average.height : average.baselineOffset - baselineOffset
            text: root.card.averageLabel
            style: Theme.labelText
            color: Theme.inkSecondary
        }
    }

    EmptyChart {
        width: parent.width
        visible: root.chart.isEmpty
        text: root.card.empty
    }

    LineChartArea {
        width: parent.width
        leastHeight: root.wide ? 224 : 176
        visible: !root.chart.isEmpty
        chart: root.chart
        title: root.card.title
        onTableWanted: root.tableWanted()
    }

    CardLink {
        id: link
        width: parent.width
        visible: text !== ""
        text: App.weights.openLabel
        onClicked: root.weightsWanted()
    }
}
