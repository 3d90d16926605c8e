// SPDX-License-Identifier: MIT
// Quiet text with an icon behind it that opens something.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    property string iconName

    implicitHeight: Theme.touchSize
    implicitWidth: row.implicitWidth + 8
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: text

    background: Item {
        FocusRing { target: root }
    }

    contentItem: face

    Item {
        id: face

        Row {
            id: row
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: 4

            StyledText {
                text: root.text
                style: Theme.labelText
                color: root.down ? Theme.inkSecondary : Theme.ink
                wrapMode: Text.NoWrap
            }

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                width: 16
                height: 16
                name: root.iconName
                color: Theme.inkTertiary
            }
        }
    }
}
