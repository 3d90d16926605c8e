// SPDX-License-Identifier: MIT
// How far a feature is: an empty ring, a half one, a full one.
import QtQuick
import Mivo

Item {
    id: root

    property string status

    width: 12
    height: 12

    Rectangle {
        anchors.fill: parent
        radius: 6
        antialiasing: true
        color: root.status === "finished" ? Theme.inkSecondary : "transparent"
        border.width: 1.5
        border.color: Theme.inkSecondary
    }

    Icon {
        visible: root.status === "in progress"
        anchors.fill: parent
        name: "halfDisc"
        color: Theme.inkSecondary
    }
}
