// SPDX-License-Identifier: MIT
// A ring that has just begun.
import QtQuick
import QtQuick.Shapes
import Mivo

Item {
    id: root

    Rectangle {
        anchors.fill: parent
        radius: width / 2
        antialiasing: true
        color: "transparent"
        border.width: 12
        border.color: Theme.fasting.tint
    }

    Shape {
        anchors.fill: parent

        ShapePath {
            strokeColor: Theme.fasting.fill
            strokeWidth: 12
            fillColor: "transparent"
            capStyle: ShapePath.RoundCap

            PathAngleArc {
                centerX: root.width / 2
                centerY: root.height / 2
                radiusX: root.width / 2 - 6
                radiusY: root.height / 2 - 6
                startAngle: -90
                sweepAngle: 72
            }
        }
    }
}
