// SPDX-License-Identifier: MIT
// A switch as it looks; the row that it stands in is what is tapped.
import QtQuick
import Mivo

Rectangle {
    id: root

    required property Item target
    property bool on: false
    readonly property real inset: (height - Theme.switchKnobSize) / 2

    implicitWidth: Theme.switchWidthSize
    implicitHeight: Theme.switchHeightSize
    radius: height / 2
    color: on ? Theme.action : Theme.controlBorder
    opacity: target.enabled ? 1 : 0.4

    Behavior on color {
        ColorAnimation { duration: Theme.selectDuration }
    }

    FocusRing {
        target: root.target
        targetRadius: root.radius
    }

    Rectangle {
        readonly property bool atRight: root.on !== root.LayoutMirroring.enabled

        x: atRight ? root.width - width - root.inset : root.inset
        y: root.inset
        width: Theme.switchKnobSize
        height: width
        radius: width / 2
        color: Theme.textOnAction

        Behavior on x {
            NumberAnimation { duration: Theme.selectDuration; easing.type: Easing.OutCubic }
        }
    }
}
