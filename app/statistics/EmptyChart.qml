// SPDX-License-Identifier: MIT
// A chart without data: three lines, and what to do.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Item {
    id: root

    property string text

    implicitHeight: Math.max(110, label.y + label.height + 12)

    Repeater {
        model: 3

        delegate: Rectangle {
            required property int index

            y: 12 + index * 36
            width: root.width
            height: Theme.hairlineSize
            color: index === 2 ? Theme.gridlineStrong : Theme.gridline
        }
    }

    ChartNote {
        id: label
        y: Math.max(12, 48 - height / 2)
        room: root.width
        text: root.text
    }
}
