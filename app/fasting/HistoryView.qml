// SPDX-License-Identifier: MIT
// What the rows and the head of the history know of the list that they stand in.
import QtQuick
import Mivo

ListView {
    id: root

    /// Where rows begin and how wide they are.
    property real rowX: Theme.pageMargin
    property real rowWidth: width - 2 * rowX
    /// The running fast stands above the rows.
    property bool whole: true
    /// The keyboard is at the rows, and at which of them. The list's own current item would take the focus.
    property bool keyed: false
    property int keyedRow: 0

    signal addWanted
    signal monthsWanted
    signal editWanted(row: int)
    signal menuWanted(row: int)
    signal removeWanted(row: int)
    signal startedWanted
    signal goalWanted

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
