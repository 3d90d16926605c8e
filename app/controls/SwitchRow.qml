// SPDX-License-Identifier: MIT
// A row that switches something on and off.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    property string detail
    property string iconName
    property string accent
    property bool on: false

    width: parent ? parent.width : 0
    implicitHeight: Math.max(Theme.rowSize, contentItem.implicitHeight + topPadding + bottomPadding)
    leftPadding: Theme.cardPadding
    rightPadding: Theme.cardPadding
    topPadding: 10
    bottomPadding: 10
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.CheckBox
    Accessible.name: detail === "" ? text : text + ", " + detail
    Accessible.checkable: true
    Accessible.checked: on
    Accessible.onToggleAction: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    background: RowBackground {
        isFirst: root.Positioner.isFirstItem
        isLast: root.Positioner.isLastItem
        pressed: root.down
    }

    contentItem: face

    Item {
        id: face

        readonly property bool stacked: label.nameWidth + 12 + mark.width > root.availableWidth

        implicitHeight: stacked ? label.height + 8 + mark.height : Math.max(label.height, mark.height)

        RowLabel {
            id: label
            anchors.left: parent.left
            anchors.right: face.stacked ? parent.right : mark.left
            anchors.rightMargin: face.stacked ? 0 : 12
            y: face.stacked ? 0 : (face.height - height) / 2
            text: root.text
            detail: root.detail
            iconName: root.iconName
            accent: root.accent
        }

        SwitchMark {
            id: mark
            anchors.right: parent.right
            y: face.stacked ? label.height + 8 : (face.height - height) / 2
            target: root
            on: root.on
        }
    }
}
