// SPDX-License-Identifier: MIT
// A value in a field that opens something to change it.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    property string iconName

    implicitHeight: Math.max(Theme.fieldSize, label.implicitHeight + 24)
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: text

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down ? Theme.fillPressed : Theme.field

        FocusRing { target: root }
    }

    contentItem: face

    Item {
        id: face

        StyledText {
            id: label
            anchors.left: parent.left
            anchors.leftMargin: 16
            anchors.right: icon.left
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
        }

        Icon {
            id: icon
            anchors.right: parent.right
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            width: 18
            height: 18
            name: root.iconName
            color: Theme.inkSecondary
        }
    }
}
