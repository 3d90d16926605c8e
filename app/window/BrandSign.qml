// SPDX-License-Identifier: MIT
// The sign of the app: an open ring and a dot in the fasting colour.
import QtQuick
import Mivo

Item {
    id: root

    Icon {
        anchors.fill: parent
        name: "sign"
        color: Theme.ink
    }

    Rectangle {
        readonly property real unit: root.width / 28

        x: 18.8 * unit
        y: 3.2 * unit
        width: 6 * unit
        height: width
        radius: width / 2
        antialiasing: true
        color: Theme.fasting.fill
    }
}
