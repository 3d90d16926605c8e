// SPDX-License-Identifier: MIT
// A bare icon that can be tapped, 44 points wide and high.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    property string iconName
    property color iconColor: Theme.ink
    property bool turns: false

    implicitWidth: Theme.touchSize
    implicitHeight: Theme.touchSize
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: text

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down ? Theme.fillPressed : "transparent"

        FocusRing { target: root }
    }

    contentItem: Item {
        Icon {
            anchors.centerIn: parent
            name: root.iconName
            color: root.enabled ? root.iconColor : Theme.inkDisabled
            mirrored: root.turns && root.mirrored
        }
    }
}
