// SPDX-License-Identifier: MIT
// A sentence in the middle of a chart without data, on the lines behind it.
import QtQuick
import Mivo

MeasuredText {
    id: root

    property real room

    anchors.horizontalCenter: parent.horizontalCenter
    width: Math.min(lineWidth, room - 48)
    horizontalAlignment: Text.AlignHCenter
    style: Theme.labelText
    color: Theme.inkSecondary

    Rectangle {
        z: -1
        x: -12
        width: root.width + 24
        height: root.height
        color: Theme.card
    }
}
