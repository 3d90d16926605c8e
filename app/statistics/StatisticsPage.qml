// SPDX-License-Identifier: MIT
// The statistics tab: a column of cards that scrolls; on wide windows rows of cards.
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Mivo

FocusScope {
    id: root

    /// The window has room for a side bar beside the page.
    property bool wide: false
    readonly property int columns: wide ? 3 : width >= Theme.twoColumnsWidth ? 2 : 1
    readonly property int margin: wide ? Theme.pageMarginWide : Theme.pageMargin
    /// What the page needs to be seen whole.
    readonly property real wholeHeight: flick.contentHeight

    /// The picker of the range, where it is one of the cards.
    property TimeRangePicker picker: null
    readonly property real pickerTop: picker ? picker.controlTop : 0
    readonly property bool pickerSticks: !wide && picker !== null && flick.contentY > pickerTop - 8

    signal tableWanted(chart: ChartTable, title: string)

    Keys.onPressed: event => scrollKeys.pressed(event)

    ScrollKeys {
        id: scrollKeys
        view: flick
        covered: root.pickerSticks ? Theme.stickyRangeSize : 0
    }

    Flickable {
        id: flick
        anchors.fill: parent
        contentWidth: width
        contentHeight: column.y + column.height + root.margin
        boundsBehavior: Flickable.DragOverBounds
        T.ScrollBar.vertical: ScrollMark {}

        // The keyboard leaves when the column is scrolled.
        onMovementStarted: {
            InputMethod.hide();
            if (root.Window.activeFocusItem instanceof TextInput)
                root.forceActiveFocus();
        }

        Column {
            id: column
            x: Math.max(root.margin, (root.width - Theme.contentMaxWidth) / 2)
            width: root.width - 2 * x

            Item {
                id: head
                width: parent.width
                height: Math.max(Theme.titleBarSize, title.height + 24)

                StyledText {
                    id: title
                    anchors.left: parent.left
                    anchors.verticalCenter: parent.verticalCenter
                    text: Words.statistics
                    style: root.wide ? Theme.titleWideText : Theme.titleText
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }

                Repeater {
                    model: root.wide && App.screen.timeRange !== null ? 1 : 0

                    delegate: TimeRangeRow {
                        // Not by anchors: it has no parent any more while it goes.
                        x: LayoutMirroring.enabled ? 0 : head.width - width
                        y: (head.height - height) / 2
                        card: App.screen.timeRange
                        maxWidth: column.width - title.width - 24
                        onChosen: index => App.chooseTimeRange(index)
                    }
                }
            }

            CardGrid {
                id: grid
                width: parent.width
                height: implicitHeight
                gap: root.wide ? Theme.cardGapWide : Theme.cardGap
                mirrored: LayoutMirroring.enabled
                viewTop: flick.contentY - y
                onViewTopWanted: top => flick.contentY = Math.max(0, top + y)

                Repeater {
                    model: App.screen

                    delegate: CardSlot {
                        columns: root.columns
                        pageTop: grid.y
                        late: index >= root.columns * Math.ceil(root.height / Theme.lowestCard)
                        onTableWanted: (chart, name) => root.tableWanted(chart, name)
                        onPickerMade: made => root.picker = made
                    }
                }
            }
        }
    }

    // Stands in for the picker once that has gone under the top edge.
    Rectangle {
        visible: root.pickerSticks
        width: parent.width
        height: Math.max(Theme.stickyRangeSize, sticky.height + 16)
        color: Theme.background

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: Theme.hairlineSize
            color: Theme.hairline
        }

        SegmentedControl {
            id: sticky
            anchors.centerIn: parent
            width: column.width
            options: App.screen.timeRange ? App.screen.timeRange.options : [""]
            currentIndex: App.screen.timeRange ? App.screen.timeRange.selectedIndex : 0
            accessibleName: App.screen.timeRange ? App.screen.timeRange.title : ""
            onChosen: index => App.chooseTimeRange(index)
        }
    }

    FocusFollower {
        view: flick
        covered: root.pickerSticks ? Theme.stickyRangeSize : 0
    }
}
