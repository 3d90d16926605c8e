// SPDX-License-Identifier: MIT
// The last line of a card, which leads to more of what the card shows.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    implicitHeight: Math.max(Theme.touchSize, label.implicitHeight + 16)
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: text

    background: Item {
        Rectangle {
            width: parent.width
            height: Theme.hairlineSize
            color: Theme.hairline
        }

        FocusRing { target: root }
    }

    contentItem: face

    Item {
        id: face

        StyledText {
            id: label
            anchors.left: parent.left
            anchors.right: chevron.left
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            color: root.down ? Theme.inkSecondary : Theme.ink
        }

        Icon {
            id: chevron
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            name: "chevron"
            color: Theme.inkTertiary
            mirrored: root.mirrored
        }
    }
}
