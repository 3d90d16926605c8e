// SPDX-License-Identifier: MIT
// The history below its headline, and what stands above that. For the keyboard all rows are one stop.
import QtQuick
import Mivo

ListView {
    id: root

    /// Where rows begin and how wide they are.
    property real rowX: Theme.pageMargin
    property real rowWidth: width - 2 * rowX
    property Component above: null

    signal addWanted
    signal editWanted(row: int)
    signal menuWanted(row: int)

    model: App.fasting.history
    currentIndex: -1
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    boundsBehavior: Flickable.DragOverBounds

    function step(to: int) {
        currentIndex = Math.max(0, Math.min(count - 1, to));
        positionViewAtIndex(currentIndex, ListView.Contain);
    }

    // The next one takes the place of the one that goes.
    function remove(row: int) {
        App.fasting.history.remove(row);
    }

    function keyPressed(event: KeyEvent) {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Up:
            return step(currentIndex - 1);
        case Qt.Key_Down:
            return step(currentIndex + 1);
        case Qt.Key_PageUp:
            return step(currentIndex - 6);
        case Qt.Key_PageDown:
            return step(currentIndex + 6);
        case Qt.Key_Home:
            return step(0);
        case Qt.Key_End:
            return step(count - 1);
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space:
            return editWanted(currentIndex);
        case Qt.Key_Delete:
        case Qt.Key_Backspace:
            return remove(currentIndex);
        case Qt.Key_Menu:
            return menuWanted(currentIndex);
        }
        event.accepted = false;
    }

    header: Item {
        id: head
        readonly property alias rows: keys
        property real before: 0

        width: root.width
        height: column.height
        // It grows upwards from the rows; who sees it wants its top to stay.
        onHeightChanged: {
            if (root.contentY < 0)
                root.contentY -= height - before;
            before = height;
        }

        Column {
            id: column
            x: root.rowX
            width: root.rowWidth

            Loader {
                width: parent.width
                sourceComponent: root.above
            }

            HistoryHead {
                width: parent.width
                height: implicitHeight + 12
                onAddWanted: root.addWanted()
            }

            Card {
                width: parent.width
                visible: root.count === 0

                StyledText {
                    width: parent.width
                    text: Texts.text("The fasts that have ended are listed here. Those of earlier days can be added.")
                    color: Theme.inkSecondary
                }
            }
        }

        // Stands for the rows, where Tab comes to them.
        Item {
            id: keys
            anchors.bottom: parent.bottom
            width: parent.width
            activeFocusOnTab: root.count > 0
            Accessible.role: Accessible.List
            Accessible.name: Texts.text("History") + (root.currentItem ? ", " + (root.currentItem as HistoryRow).spoken : "")
            Accessible.focusable: true
            onActiveFocusChanged: {
                if (activeFocus)
                    root.step(root.currentIndex);
            }
            Keys.onPressed: event => root.keyPressed(event)
        }
    }

    delegate: HistoryRow {
        x: root.rowX
        width: root.rowWidth
        scaleSeconds: App.fasting.history.scaleSeconds
        isLast: index === root.count - 1
        marked: index === root.currentIndex && InputMode.keyboard && root.headerItem !== null && root.headerItem.rows.activeFocus
        onTapped: root.editWanted(index)
        onMenuWanted: root.menuWanted(index)
        onRemoved: root.remove(index)
    }

    footer: Item {
        width: root.width
        height: Theme.pageMargin
    }
}
