// SPDX-License-Identifier: MIT
// One of the files that the records can be taken out into.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    required property int index
    required property string title
    required property string note
    required property string fileName
    required property string ending
    required property string filter

    width: parent ? parent.width : 0
    implicitHeight: Math.max(Theme.rowSize, words.height + 24)
    focusPolicy: Qt.StrongFocus
    text: title
    Accessible.role: Accessible.Button
    Accessible.name: title + ", " + note
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down ? Theme.fill : "transparent"

        Rectangle {
            visible: root.index > 0
            x: 12
            width: parent.width - 12
            height: Theme.hairlineSize
            color: Theme.hairline
        }

        FocusRing {
            target: root
            anchors.margins: 2
            targetRadius: Theme.controlRadius
        }
    }

    contentItem: face

    Item {
        id: face

        Column {
            id: words
            x: 12
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width - 24 - chevron.width - 12

            StyledText {
                width: parent.width
                text: root.title
                style: Theme.bodyStrongText
            }

            StyledText {
                width: parent.width
                text: root.note
                style: Theme.labelText
                color: Theme.inkSecondary
            }
        }

        Icon {
            id: chevron
            anchors.right: parent.right
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            name: "chevron"
            color: Theme.inkTertiary
            mirrored: LayoutMirroring.enabled
        }
    }
}
