// SPDX-License-Identifier: MIT
// A chart as a table, the latest row first.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Sheet {
    id: root

    property ChartTable table: App.fastingChart

    title: Words.fasting
    spacing: 0

    ListView {
        width: parent.width
        height: Math.min(contentHeight, 480)
        clip: true
        model: root.table ? root.table.rowCount : 0
        boundsBehavior: Flickable.StopAtBounds

        delegate: TableLine {
            required property int index

            width: ListView.view.width
            date: root.table.date(index)
            value: root.table.value(index)
        }
    }
}
