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
    /// Stands behind the text.
    property alias unit: unitText.text
    /// Whoever comes to the field types over what stands there.
    property bool selectsOnFocus: false

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
        anchors.leftMargin: 12
        anchors.right: unitText.left
        anchors.rightMargin: unitText.text === "" ? 0 : 8
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
        onActiveFocusChanged: {
            if (activeFocus && root.selectsOnFocus)
                selectAll();
        }
    }

    StyledText {
        id: unitText
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.inkSecondary
        wrapMode: Text.NoWrap
    }

    SelectingArea {
        anchors.fill: parent
        visible: root.selectsOnFocus && !input.activeFocus
        input: input
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
