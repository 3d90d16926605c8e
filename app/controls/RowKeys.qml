// SPDX-License-Identifier: MIT
// Stands for the rows of a list, where Tab comes to them.
import QtQuick
import Mivo

Item {
    id: root

    property RowList list: null
    /// The list with the row that the keyboard is at.
    property string spoken

    // Where there are no rows the keyboard has no business here, and leaves.
    enabled: list !== null && list.count > 0
    activeFocusOnTab: true
    Accessible.role: Accessible.List
    Accessible.name: spoken
    Accessible.focusable: true
    onActiveFocusChanged: {
        list.keyed = activeFocus;
        if (activeFocus)
            list.step(list.keyedRow);
    }
    Keys.onPressed: event => list.keyPressed(event)
}
