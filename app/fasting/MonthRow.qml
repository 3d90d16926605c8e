// SPDX-License-Identifier: MIT
// A month of the history, and how many fasts it has.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    required property int index
    required property string name
    required property string fasts
    required property int row

    readonly property bool stacked: nameText.implicitWidth + fastsText.implicitWidth + 12 > width

    width: parent ? parent.width : 0
    implicitHeight: Math.max(Theme.rowSize, nameText.height + (stacked ? fastsText.height : 0) + 26)
    focusPolicy: Qt.StrongFocus
    text: name
    Accessible.role: Accessible.Button
    Accessible.name: name + ", " + fasts
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
            id: nameText
            x: LayoutMirroring.enabled ? face.width - width : 0
            y: root.stacked ? 13 : (root.height - height) / 2
            text: root.name
            wrapMode: Text.NoWrap
        }

        StyledText {
            id: fastsText
            x: root.stacked === LayoutMirroring.enabled ? face.width - width : 0
            y: root.stacked ? nameText.y + nameText.height : (root.height - height) / 2
            text: root.fasts
            color: Theme.inkSecondary
            wrapMode: Text.NoWrap
        }
    }
}
