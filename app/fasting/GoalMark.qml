// SPDX-License-Identifier: MIT
// Whether a fast reached its goal: a disc with a tick, or a ring filled as far as it went.
import QtQuick
import Mivo

Item {
    id: root

    property real fraction: 0
    readonly property bool reached: fraction >= 1

    implicitWidth: 20
    implicitHeight: 20
    Accessible.ignored: true

    Rectangle {
        anchors.fill: parent
        visible: root.reached
        radius: height / 2
        color: Theme.fasting.fill

        Icon {
            anchors.centerIn: parent
            width: 14
            height: 14
            name: "check"
            color: Theme.fasting.textOnFill
        }
    }

    FractionRing {
        anchors.fill: parent
        anchors.margins: 1
        visible: !root.reached
        fraction: root.fraction
        fill: Theme.fasting.fill
        rest: Theme.fasting.tint
    }
}
