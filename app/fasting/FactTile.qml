// SPDX-License-Identifier: MIT
// A label over a value, which a tap may change.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    property string label
    property string value
    property string spoken
    property bool editable: true

    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    padding: 12
    topPadding: 10
    bottomPadding: 10
    enabled: editable
    focusPolicy: Qt.StrongFocus
    text: spoken
    Accessible.role: editable ? Accessible.Button : Accessible.StaticText
    Accessible.name: text

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down ? Theme.fillPressed : Theme.field

        Icon {
            visible: root.editable
            anchors.right: parent.right
            anchors.rightMargin: root.padding
            y: root.topPadding + (Theme.labelText.line * Theme.textScale - height) / 2
            width: 16
            height: 16
            name: "pencil"
            color: Theme.inkSecondary
        }

        FocusRing { target: root }
    }

    contentItem: Column {
        spacing: 2

        StyledText {
            anchors.left: parent.left
            width: parent.width - (root.editable ? 22 : 0)
            text: root.label
            style: Theme.labelText
            color: Theme.inkSecondary
        }

        StyledText {
            width: parent.width
            text: root.value
            style: Theme.bodyStrongText
        }
    }
}
