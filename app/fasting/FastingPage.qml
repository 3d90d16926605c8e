// SPDX-License-Identifier: MIT
// The fasting tab: the fast that runs or the eating window, and below it, or beside it where there is room, the history.
import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Mivo

FocusScope {
    id: root
    focus: true

    /// The window has room for a side bar beside the page.
    readonly property bool wide: Window.width >= Theme.sideBarWidth
    readonly property bool twoColumns: width >= 700
    readonly property real margin: wide ? Theme.pageMarginWide : Theme.pageMargin
    readonly property real gap: wide ? Theme.cardGapWide : Theme.cardGap
    readonly property real contentWidth: Math.min(width - 2 * margin, twoColumns ? Theme.contentMaxWidth : 520)
    readonly property real contentX: (width - contentWidth) / 2
    readonly property real columnWidth: twoColumns ? (contentWidth - gap) / 2 : contentWidth

    Keys.onPressed: event => scrollKeys.pressed(event)

    ScrollKeys {
        id: scrollKeys
        view: history
    }

    Binding {
        target: App.fasting
        property: "watched"
        value: root.visible && App.watched
    }

    Flickable {
        id: side
        visible: root.twoColumns
        x: root.LayoutMirroring.enabled ? root.width - width - root.contentX : root.contentX
        width: root.columnWidth
        height: parent.height
        contentWidth: width
        contentHeight: sideColumn.height
        boundsBehavior: Flickable.DragOverBounds
        T.ScrollBar.vertical: ScrollMark {}

        FastTop {
            id: sideColumn
            width: parent.width
            bottomPadding: root.margin
            onStartedWanted: App.present("fastStart")
            onGoalWanted: App.present("fastGoal")
        }
    }

    HistoryList {
        id: history
        readonly property real fromLeading: root.twoColumns ? root.contentX + root.columnWidth + root.gap : 0

        x: root.LayoutMirroring.enabled ? 0 : fromLeading
        width: parent.width - fromLeading
        height: parent.height
        rowX: root.twoColumns ? (root.LayoutMirroring.enabled ? root.contentX : 0) : root.contentX
        rowWidth: root.columnWidth
        whole: !root.twoColumns
        onAddWanted: App.present("addFast")
        onMonthsWanted: App.present("months")
        onEditWanted: row => App.fasting.history.edit(row)
        onMenuWanted: row => {
            App.fasting.history.menuRow = row;
            App.present("fastMenu");
        }
        onStartedWanted: App.present("fastStart")
        onGoalWanted: App.present("fastGoal")
    }

    FocusFollower { view: side }

    FocusFollower { view: history }

    LateSheet {
        screen: "editFast"
        source: "qrc:/Mivo/FastSheet.qml"
    }

    LateSheet {
        screen: "severalFasts"
        source: "qrc:/Mivo/SeveralFastsSheet.qml"
    }

    LateSheet {
        screen: "fastGoal"
        sourceComponent: FastGoalSheet {
            goal: App.fasting.goalSeconds
            onChosen: seconds => App.fasting.changeGoal(seconds)
        }
    }

    LateSheet {
        screen: "fastStart"
        sourceComponent: DateTimeSheet {
            title: App.fasting.startLabel
            instant: App.fasting.started
            problem: visible ? App.fasting.startProblem(current) : ""
            onChosen: instant => App.fasting.changeStart(instant)
        }
    }

    LateSheet {
        screen: "months"
        sourceComponent: MonthSheet {
            onChosen: row => history.goTo(row)
        }
    }

    LateSheet {
        screen: "fastMenu"
        sourceComponent: RowMenu {
            title: App.fasting.history.menuTitle
            editText: App.fasting.history.editLabel
            removeText: App.fasting.history.removeLabel
            onEditWanted: App.fasting.history.edit(App.fasting.history.menuRow)
            onRemoveWanted: App.fasting.history.remove(App.fasting.history.menuRow)
        }
    }
}
