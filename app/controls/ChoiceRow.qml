// SPDX-License-Identifier: MIT
// One of the choices of a ChoiceSheet.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    required property int index
    required property string modelData
    property bool isChosen: false
    property alias capitalization: label.font.capitalization

    width: parent ? parent.width : 0
    implicitHeight: Math.max(Theme.rowSize, label.height + 26)
    focusPolicy: Qt.StrongFocus
    text: modelData
    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: isChosen
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down ? Theme.cardPressed : "transparent"

        Rectangle {
            visible: root.index > 0
            width: parent.width
            height: Theme.hairlineSize
            color: Theme.hairline
        }

        FocusRing {
            target: root
            anchors.margins: 2
            anchors.leftMargin: -8
            anchors.rightMargin: -8
            targetRadius: Theme.segmentRadius
        }
    }

    contentItem: face

    Item {
        id: face

        StyledText {
            id: label
            anchors.left: parent.left
            anchors.right: mark.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            style: root.isChosen ? Theme.bodyStrongText : Theme.bodyText
        }

        Icon {
            id: mark
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            name: root.isChosen ? "check" : ""
            color: Theme.ink
        }
    }
}
