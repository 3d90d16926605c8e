// SPDX-License-Identifier: MIT
// An end of a Stepper.
import QtQuick
import Mivo

Rectangle {
    id: root

    property string iconName
    property bool pressed: false

    implicitWidth: Theme.touchSize
    implicitHeight: Theme.touchSize
    radius: Theme.controlRadius
    color: pressed ? Theme.fillPressed : "transparent"

    Icon {
        anchors.centerIn: parent
        width: 20
        height: 20
        name: root.iconName
        color: root.enabled ? Theme.ink : Theme.inkDisabled
    }
}
