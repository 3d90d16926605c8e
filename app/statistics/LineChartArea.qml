// SPDX-License-Identifier: MIT
// A line chart that scrolls and selects.
import QtQuick
import Mivo

FocusScope {
    id: root

    required property LineChartModel chart
    property string title
    property real leastHeight: 0

    signal tableWanted

    // A sentence in large text is higher than the plot.
    implicitHeight: Math.max(leastHeight, line.note ? note.height + 2 * note.distance + line.plotMargins : 0)
    activeFocusOnTab: true
    Accessible.role: Accessible.Chart
    Accessible.name: title + ", " + chart.visibleDates
    Accessible.description: chart.spokenSelection || line.note
    Accessible.focusable: true

    Keys.onLeftPressed: line.moveSelection(line.mirrored ? 1 : -1)
    Keys.onRightPressed: line.moveSelection(line.mirrored ? -1 : 1)
    Keys.onEscapePressed: line.clearSelection()
    Keys.onMenuPressed: menu.open()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home || event.key === Qt.Key_End) {
            line.selectEnd(event.key === Qt.Key_End);
            event.accepted = true;
        }
    }

    FocusRing { target: root }

    ThemedLineChart {
        id: line
        x: -roomAtTheSides
        width: parent.width + 2 * roomAtTheSides
        height: parent.height
        model: root.chart
        mirrored: LayoutMirroring.enabled
        scroll: layer.scroll
        onScrollWanted: position => layer.scrollTo(position, false)
        onAxisMoved: shift.restart()

        NumberAnimation on axisShift {
            id: shift
            running: false
            from: 0
            to: 1
            duration: Theme.rangeFadeDuration
            easing.type: Easing.OutCubic
        }
    }

    Item {
        anchors.left: parent.left
        width: line.plotWidth
        height: parent.height

        ChartNote {
            id: note
            readonly property int distance: 8
            visible: line.note !== ""
            y: line.plotMiddle - height / 2
            room: parent.width
            text: line.note
        }
    }

    ScrollLayer {
        id: layer
        anchors.left: parent.left
        width: line.plotWidth
        height: parent.height
        wantedContentWidth: line.contentWidth
        rightToLeft: line.mirrored
        selectsWhileHeld: true
        onTapped: x => {
            root.forceActiveFocus();
            line.touch(x + layer.x + line.roomAtTheSides);
        }
        onTouched: x => line.touch(x + layer.x + line.roomAtTheSides)
        onReleased: line.clearSelection()
        onMenuWanted: menu.open()
    }

    ChartMenu {
        id: menu
        value: root.chart.spokenSelection
        onTableWanted: root.tableWanted()
    }
}
