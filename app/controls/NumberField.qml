// SPDX-License-Identifier: MIT
// A weight between minus and plus, which can be typed too.
import QtQuick
import Mivo

Rectangle {
    id: root

    property alias text: input.text
    property string unit
    property bool hasProblem: false
    property string accessibleName

    signal edited(string text)
    signal increased
    signal decreased
    signal accepted

    implicitHeight: Math.max(Theme.fieldSize, input.implicitHeight + 16)
    radius: Theme.controlRadius
    color: Theme.field
    border.width: hasProblem || input.activeFocus ? 2 : 0
    border.color: hasProblem ? Theme.danger : Theme.focus

    IconButton {
        id: minus
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        iconName: "minus"
        text: Words.less
        autoRepeat: true
        onClicked: root.decreased()
    }

    Row {
        anchors.centerIn: parent
        spacing: 4
        LayoutMirroring.enabled: false // a number and its unit

        TextInput {
            id: input
            font.family: Theme.displayFamily
            font.pixelSize: Theme.numberSmallText.size * Theme.textScale
            font.weight: 600
            font.kerning: false
            color: Theme.ink
            selectByMouse: true
            inputMethodHints: Qt.ImhFormattedNumbersOnly
            horizontalAlignment: TextInput.AlignHCenter
            activeFocusOnTab: true
            Accessible.role: Accessible.EditableText
            Accessible.name: root.accessibleName
            onTextEdited: root.edited(text)
            onAccepted: root.accepted()
            onActiveFocusChanged: {
                if (activeFocus)
                    selectAll();
            }
        }

        StyledText {
            anchors.baseline: input.baseline
            text: root.unit
            style: Theme.bodyStrongText
            font.weight: 500
        }
    }

    SelectingArea {
        anchors.left: minus.right
        anchors.right: plus.left
        height: parent.height
        input: input
    }

    IconButton {
        id: plus
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        iconName: "plus"
        text: Words.more
        autoRepeat: true
        onClicked: root.increased()
    }
}
