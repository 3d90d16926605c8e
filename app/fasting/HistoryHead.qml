// SPDX-License-Identifier: MIT
// What stands above the rows of the history. For the keyboard all rows are one stop, at its foot.
import QtQuick
import Mivo

Item {
    id: root

    readonly property HistoryView list: ListView.view as HistoryView
    readonly property bool whole: list !== null && list.whole

    width: list ? list.width : 0
    height: column.height
    onHeightChanged: {
        if (list)
            list.takeHead(height);
    }

    Column {
        id: column
        x: root.list ? root.list.rowX : 0
        width: root.list ? root.list.rowWidth : 0

        FastTop {
            width: parent.width
            visible: root.whole
            onStartedWanted: root.list.startedWanted()
            onGoalWanted: root.list.goalWanted()
        }

        Item {
            width: parent.width
            height: root.whole ? 24 : Theme.titleBarSize - Theme.buttonSize - 12
        }

        HistoryTitle {
            width: parent.width
            height: implicitHeight + 12
            onAddWanted: root.list.addWanted()
            onMonthsWanted: root.list.monthsWanted()
        }

        Card {
            width: parent.width
            visible: root.list !== null && root.list.count === 0

            StyledText {
                width: parent.width
                text: App.fasting.history.note
                color: Theme.inkSecondary
            }
        }
    }

    RowKeys {
        anchors.bottom: parent.bottom
        width: parent.width
        list: root.list
        spoken: root.list ? App.fasting.history.spokenText(root.list.keyedRow) : ""
    }
}
