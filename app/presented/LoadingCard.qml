// SPDX-License-Identifier: MIT
// A feature that is not there yet.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Card {
    id: root

    Item {
        id: lines
        width: parent.width
        height: 76

        Repeater {
            model: [0.36, 0.66, 0.46]

            delegate: Rectangle {
                required property int index
                required property real modelData

                // Not by the parent: it has none any more while it goes.
                x: LayoutMirroring.enabled ? lines.width - width : 0
                y: 8 + index * 24
                width: lines.width * modelData
                height: 12
                radius: 6
                color: Theme.fill
            }
        }

        Rectangle {
            anchors.right: parent.right
            width: Theme.voteWidthSize
            height: Theme.voteHeightSize
            radius: Theme.controlRadius
            color: Theme.fill
        }
    }
}
