// SPDX-License-Identifier: MIT
// How far a feature is: an empty ring, a half one, a full one.
import QtQuick
import QtQuick.Shapes
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

    Shape {
        visible: root.status === "inProgress"
        anchors.fill: parent

        ShapePath {
            strokeWidth: -1
            fillColor: Theme.inkSecondary

            PathSvg { path: "M6 0.5A5.5 5.5 0 0 1 6 11.5z" }
        }
    }
}
