// SPDX-License-Identifier: MIT
// An arrow over the count of votes; a cast vote is in ink.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    property string spoken
    property string count
    property bool cast: false

    readonly property color label: cast ? Theme.textOnAction : enabled ? Theme.ink : Theme.inkDisabled

    implicitWidth: Math.max(Theme.voteWidthSize, number.implicitWidth + 16)
    implicitHeight: Math.max(Theme.voteHeightSize, 24 + number.height + 16)
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: cast
    Accessible.name: spoken

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.cast ? (root.down ? Theme.actionPressed : Theme.action) : root.down ? Theme.fillPressed : Theme.fill

        FocusRing { target: root }
    }

    contentItem: face

    Item {
        id: face

        Icon {
            id: arrow
            anchors.horizontalCenter: parent.horizontalCenter
            y: (parent.height - height - number.height) / 2
            width: 20
            height: 20
            name: "up"
            color: root.label
        }

        StyledNumber {
            id: number
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.top: arrow.bottom
            text: root.count
            style: Theme.buttonText
            evenDigits: true
            color: root.label
        }
    }
}
