// SPDX-License-Identifier: MIT
// An icon on a quiet square.
import QtQuick
import Mivo

Rectangle {
    id: root

    property string name
    property color iconColor: Theme.ink

    width: Theme.tileSize
    height: Theme.tileSize
    radius: Theme.tileRadius
    color: Theme.fill

    Icon {
        anchors.centerIn: parent
        width: Theme.iconInTileSize
        height: Theme.iconInTileSize
        name: root.name
        color: root.iconColor
    }
}
