// SPDX-License-Identifier: MIT
// One choice of a few, side by side. Arrow keys move the choice.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

FocusScope {
    id: root

    required property list<string> options
    property int currentIndex: 0
    property string accessibleName

    signal chosen(int index)

    implicitHeight: Math.max(Theme.segmentedSize, 14 + Theme.bodyStrongText.line * Theme.textScale)
    implicitWidth: 300
    activeFocusOnTab: true
    Accessible.role: Accessible.RadioButton
    Accessible.name: accessibleName + ", " + options[currentIndex]

    function step(offset: int) {
        const index = Math.max(0, Math.min(root.options.length - 1, root.currentIndex + offset));
        if (index !== root.currentIndex)
            root.chosen(index);
    }

    Keys.onLeftPressed: root.step(root.LayoutMirroring.enabled ? 1 : -1)
    Keys.onRightPressed: root.step(root.LayoutMirroring.enabled ? -1 : 1)

    Rectangle {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: Theme.fill

        FocusRing { target: root }
    }

    Rectangle {
        readonly property real segmentWidth: (root.width - 8) / root.options.length
        readonly property int place: root.LayoutMirroring.enabled ? root.options.length - 1 - root.currentIndex : root.currentIndex

        x: 4 + place * segmentWidth
        y: 4
        width: segmentWidth
        height: root.height - 8
        radius: Theme.segmentRadius
        color: Theme.segment

        Behavior on x {
            NumberAnimation { duration: Theme.segmentDuration; easing.type: Easing.OutCubic }
        }
    }

    Row {
        anchors.fill: parent
        anchors.margins: 4

        Repeater {
            model: root.options

            delegate: Segment {
                width: (root.width - 8) / root.options.length
                height: root.height - 8
                isChosen: index === root.currentIndex
                onTapped: root.chosen(index)
            }
        }
    }
}
