// SPDX-License-Identifier: MIT
// Lies over a field without the keys: a click selects its text, to be typed over.
import QtQuick

MouseArea {
    id: root

    required property TextInput input

    visible: !input.activeFocus
    cursorShape: Qt.IBeamCursor
    onClicked: {
        input.forceActiveFocus(Qt.MouseFocusReason);
        input.selectAll();
    }
}
