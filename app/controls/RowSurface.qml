// SPDX-License-Identifier: MIT
// The part of a card that lies behind one of its rows: only the first and the last have round corners.
import QtQuick
import Mivo

Rectangle {
    id: root

    property bool roundTop: false
    property bool roundBottom: false

    radius: Theme.cardRadius

    Rectangle {
        visible: !root.roundTop
        width: parent.width
        height: Math.min(parent.radius, parent.height)
        color: root.color
    }

    Rectangle {
        visible: !root.roundBottom
        anchors.bottom: parent.bottom
        width: parent.width
        height: Math.min(parent.radius, parent.height)
        color: root.color
    }
}
