// SPDX-License-Identifier: MIT
// A button of text on the dark of an undo bar.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    property string iconName

    implicitHeight: Theme.touchSize
    implicitWidth: row.width + 16
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: text

    background: Rectangle {
        radius: Theme.segmentRadius
        color: "transparent"
        border.width: root.activeFocus && InputMode.keyboard ? Theme.focusRingSize : 0
        border.color: Theme.textOnInverse
    }

    contentItem: face

    Item {
        id: face

        Row {
            id: row
            anchors.centerIn: parent
            spacing: 8

            Icon {
                visible: root.iconName !== ""
                anchors.verticalCenter: parent.verticalCenter
                width: 20
                height: 20
                name: root.iconName
                color: Theme.textOnInverse
                mirrored: root.mirrored
            }

            StyledText {
                text: root.text
                style: Theme.buttonText
                color: root.down ? Theme.textOnInverseSecondary : Theme.textOnInverse
                wrapMode: Text.NoWrap
            }
        }
    }
}
