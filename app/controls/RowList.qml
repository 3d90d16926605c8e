// SPDX-License-Identifier: MIT
// A list of records in one card. A row opens by a tap and goes by a swipe; for the keyboard all rows are one stop.
import QtQuick
import QtQuick.Templates as T
import Mivo

ListView {
    id: root

    /// Where rows begin and how wide they are.
    property real rowX: Theme.pageMargin
    property real rowWidth: width - 2 * rowX
    /// The keyboard is at the rows, and at which of them. The list's own current item would take the focus.
    property bool keyed: false
    property int keyedRow: 0

    currentIndex: -1
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    boundsBehavior: Flickable.DragOverBounds
    T.ScrollBar.vertical: ScrollMark {}

    signal editWanted(row: int)
    signal menuWanted(row: int)
    signal removeWanted(row: int)

    // The next row takes the place of one that goes, for the keyboard too.
    onCountChanged: keyedRow = Math.max(0, Math.min(count - 1, keyedRow))

    /// Shows a row at the top, and the keyboard goes on from there.
    function goTo(row: int) {
        keyedRow = row;
        positionViewAtIndex(row, ListView.Beginning);
    }

    function step(to: int) {
        keyedRow = Math.max(0, Math.min(count - 1, to));
        positionViewAtIndex(keyedRow, ListView.Contain);
    }

    function keyPressed(event: KeyEvent) {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Up:
            return step(keyedRow - 1);
        case Qt.Key_Down:
            return step(keyedRow + 1);
        case Qt.Key_PageUp:
            return step(keyedRow - 6);
        case Qt.Key_PageDown:
            return step(keyedRow + 6);
        case Qt.Key_Home:
            return step(0);
        case Qt.Key_End:
            return step(count - 1);
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space:
            return editWanted(keyedRow);
        case Qt.Key_Delete:
        case Qt.Key_Backspace:
            return removeWanted(keyedRow);
        case Qt.Key_Menu:
            return menuWanted(keyedRow);
        }
        event.accepted = false;
    }
}
