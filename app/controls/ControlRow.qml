// SPDX-License-Identifier: MIT
// A row with a control at its trailing side, which drops below the name where both do not fit.
import QtQuick
import Mivo

Item {
    id: root

    property string text
    property string iconName
    property real controlWidth
    default property alias control: slot.data

    readonly property real inner: width - 2 * Theme.cardPadding
    readonly property bool stacked: label.wholeWidth + 12 + controlWidth > inner

    width: parent ? parent.width : 0
    implicitHeight: stacked ? label.height + slot.height + 32 : Math.max(label.height, slot.height) + 12

    RowBackground {
        anchors.fill: parent
        isFirst: root.Positioner.isFirstItem
        isLast: root.Positioner.isLastItem
    }

    RowLabel {
        id: label
        anchors.left: parent.left
        anchors.leftMargin: Theme.cardPadding
        y: root.stacked ? 12 : (root.height - height) / 2
        width: root.stacked ? root.inner : root.inner - root.controlWidth - 12
        text: root.text
        iconName: root.iconName
    }

    Item {
        id: slot
        anchors.right: parent.right
        anchors.rightMargin: Theme.cardPadding
        y: root.stacked ? label.y + label.height + 8 : (root.height - height) / 2
        width: root.stacked ? root.inner : root.controlWidth
        height: childrenRect.height
    }
}
