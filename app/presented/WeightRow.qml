// SPDX-License-Identifier: MIT
// One weight of the list.
import QtQuick
import Mivo

SwipeRow {
    id: root

    required property string date
    required property string time
    required property string weight

    readonly property bool stacked: Theme.textScale >= 1.3

    implicitHeight: (stacked ? number.y + number.height : leading.y + leading.height) + 12

    Column {
        id: leading
        anchors.left: parent.left
        anchors.leftMargin: root.padding
        y: 12

        StyledText {
            anchors.left: parent.left
            text: root.date
            style: Theme.bodyStrongText
            wrapMode: Text.NoWrap
        }

        StyledText {
            anchors.left: parent.left
            text: root.time
            style: Theme.labelText
            color: Theme.inkSecondary
            wrapMode: Text.NoWrap
        }
    }

    StyledNumber {
        id: number
        readonly property real fromLeading: root.stacked ? root.padding : root.width - root.padding - width

        x: LayoutMirroring.enabled ? root.width - width - fromLeading : fromLeading
        y: leading.y + (root.stacked ? leading.height + 4 : (leading.height - height) / 2)
        text: root.weight
        style: Theme.numberRowText
        evenDigits: true
    }
}
