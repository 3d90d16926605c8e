// SPDX-License-Identifier: MIT
// The ring around what the keyboard acts on.
import QtQuick
import Mivo

Rectangle {
    id: root

    required property Item target
    property real targetRadius: Theme.controlRadius

    anchors.fill: parent
    anchors.margins: -(Theme.focusOffsetSize + Theme.focusRingSize)
    visible: root.target.activeFocus && InputMode.keyboard
    color: "transparent"
    border.width: Theme.focusRingSize
    border.color: Theme.focus
    radius: root.targetRadius + Theme.focusOffsetSize + Theme.focusRingSize
}
