// SPDX-License-Identifier: MIT
// The fasting tab: the fast that runs or the eating window, and below it, or beside it where there is room, the history.
import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Mivo

FocusScope {
    id: root

    /// The window has room for a side bar beside the page.
    readonly property bool wide: Window.width >= Theme.sideBarWidth
    readonly property bool twoColumns: width >= 700
    readonly property real margin: wide ? Theme.pageMarginWide : Theme.pageMargin
    readonly property real gap: wide ? Theme.cardGapWide : Theme.cardGap
    readonly property real contentWidth: Math.min(width - 2 * margin, twoColumns ? Theme.contentMaxWidth : 520)
    readonly property real contentX: (width - contentWidth) / 2
    readonly property real columnWidth: twoColumns ? (contentWidth - gap) / 2 : contentWidth

    /// Opens one of the sheets by its name, in place of what is open; none for an empty name.
    function present(name: string) {
        for (const sheet of [fast, goal, started, menu, months])
            sheet.close();
        switch (name) {
        case "editFast":
            return App.fasting.history.count > 0 ? edit(0) : undefined;
        case "addFast":
            return add();
        case "fastGoal":
            return goal.open();
        case "fastStart":
            return App.fasting.isRunning ? started.open() : undefined;
        case "months":
            return months.open();
        case "fastMenu":
            return App.fasting.history.count > 0 ? offer(0) : undefined;
        }
    }

    function edit(row: int) {
        App.fasting.history.edit(row);
        fast.open();
    }

    function add() {
        App.fasting.add();
        fast.open();
    }

    function offer(row: int) {
        menu.row = row;
        menu.open();
    }

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
            onStartedWanted: started.open()
            onGoalWanted: goal.open()
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
        onAddWanted: root.add()
        onMonthsWanted: months.open()
        onEditWanted: row => root.edit(row)
        onMenuWanted: row => root.offer(row)
        onStartedWanted: started.open()
        onGoalWanted: goal.open()
    }

    FocusFollower { view: side }

    FocusFollower { view: history }

    FastSheet { id: fast }

    FastGoalSheet {
        id: goal
        goal: App.fasting.goalSeconds
        onChosen: seconds => App.fasting.changeGoal(seconds)
    }

    DateTimeSheet {
        id: started
        title: App.fasting.startLabel
        instant: App.fasting.started
        problem: visible ? App.fasting.startProblem(current) : ""
        onChosen: instant => App.fasting.changeStart(instant)
    }

    LateSheet {
        id: months
        sourceComponent: MonthSheet {
            onChosen: row => history.goTo(row)
        }
    }

    RowMenu {
        id: menu
        title: App.fasting.history.menuTitle
        editText: App.fasting.history.editLabel
        removeText: App.fasting.history.removeLabel
        onEditWanted: root.edit(row)
        onRemoveWanted: App.fasting.history.remove(row)
    }
}
