// SPDX-License-Identifier: MIT
// A thin bar that fills from the leading side.
import QtQuick
import Mivo

Rectangle {
    id: root

    property real fraction: 0
    property color done: Theme.ink

    height: 4
    radius: height / 2
    color: Theme.fill

    Rectangle {
        anchors.left: parent.left
        height: parent.height
        width: root.fraction > 0 ? Math.max(height, root.width * Math.min(1, root.fraction)) : 0
        radius: height / 2
        color: root.done
    }
}
