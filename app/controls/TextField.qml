// SPDX-License-Identifier: MIT
// One line of text to type.
import QtQuick
import Mivo

Rectangle {
    id: root

    property alias text: input.text
    property string placeholder
    property string accessibleName: placeholder
    property bool hasProblem: false

    signal accepted

    function selectAll() {
        input.selectAll();
    }

    implicitHeight: Math.max(Theme.fieldSize, input.implicitHeight + 24)
    radius: Theme.controlRadius
    color: Theme.field
    border.width: hasProblem || input.activeFocus ? 2 : 0
    border.color: hasProblem ? Theme.danger : Theme.focus
    onActiveFocusChanged: {
        if (activeFocus)
            input.forceActiveFocus();
    }

    TextInput {
        id: input
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 12
        anchors.verticalCenter: parent.verticalCenter
        font.family: Theme.textFamily
        font.pixelSize: Theme.bodyText.size * Theme.textScale
        color: Theme.ink
        selectionColor: Theme.fillPressed
        selectedTextColor: Theme.ink
        horizontalAlignment: TextInput.AlignLeft
        clip: true
        selectByMouse: true
        activeFocusOnTab: true
        Accessible.role: Accessible.EditableText
        Accessible.name: root.accessibleName
        onAccepted: root.accepted()
    }

    StyledText {
        anchors.left: input.left
        anchors.right: input.right
        anchors.verticalCenter: parent.verticalCenter
        visible: input.text === "" && !input.preeditText
        text: root.placeholder
        color: Theme.inkTertiary
        Accessible.ignored: true
    }
}
