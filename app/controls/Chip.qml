// SPDX-License-Identifier: MIT
// One choice of a few that stand in a row and may wrap.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    property bool chosen: false

    implicitHeight: Math.max(Theme.touchSize, label.implicitHeight + 22)
    implicitWidth: label.implicitWidth + 28
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: chosen
    Accessible.name: text

    background: Item {
        Rectangle {
            anchors.centerIn: parent
            width: parent.width
            height: parent.height - 8
            radius: height / 2
            color: root.chosen ? (root.down ? Theme.actionPressed : Theme.action) : root.down ? Theme.fillPressed : Theme.fill

            FocusRing {
                target: root
                targetRadius: (root.height - 8) / 2
            }
        }
    }

    contentItem: face

    Item {
        id: face

        StyledText {
            id: label
            anchors.centerIn: parent
            text: root.text
            style: Theme.labelText
            font.weight: root.chosen ? 600 : 500
            color: root.chosen ? Theme.textOnAction : Theme.inkSecondary
            wrapMode: Text.NoWrap
        }
    }
}
