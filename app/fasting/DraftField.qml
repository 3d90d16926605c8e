// SPDX-License-Identifier: MIT
// A line of the sheet of a fast: a label, a value that a tap changes, and below them what is wrong with it.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    property string label
    property string value
    property string spoken
    property string problem
    property bool editable: true
    property bool isFirst: false

    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    padding: 12
    topPadding: 13
    bottomPadding: 13
    enabled: editable
    focusPolicy: Qt.StrongFocus
    text: spoken
    Accessible.role: editable ? Accessible.Button : Accessible.StaticText
    Accessible.name: text
    Accessible.description: problem

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down ? Theme.fillPressed : "transparent"
        border.width: root.problem === "" ? 0 : 2
        border.color: Theme.danger

        Rectangle {
            visible: !root.isFirst && root.problem === ""
            anchors.right: parent.right
            width: parent.width - 12
            height: Theme.hairlineSize
            color: Theme.hairline
        }

        Icon {
            visible: root.editable
            anchors.right: parent.right
            anchors.rightMargin: 12
            y: root.topPadding + (Theme.bodyText.line * Theme.textScale - height) / 2
            width: 18
            height: 18
            name: "updown"
            color: Theme.inkSecondary
        }

        FocusRing { target: root }
    }

    contentItem: Column {
        spacing: 4

        CardHeadLine {
            anchors.left: parent.left
            width: parent.width - (root.editable ? 26 : 0)
            title: root.label
            detail: root.value
            titleStyle: Theme.bodyText
            detailStyle: Theme.bodyStrongText
            detailColor: Theme.ink
        }

        StyledText {
            visible: root.problem !== ""
            width: parent.width
            text: root.problem
            style: Theme.captionText
            color: Theme.danger
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
    }
}
