// SPDX-License-Identifier: MIT
// The range of trends and charts in the title row of wide windows.
import QtQuick
import Mivo

Row {
    id: root

    required property TimeRangeCardRecord card
    property real maxWidth: 480
    readonly property real textRoom: maxWidth - spacing - control.width

    signal chosen(int index)

    spacing: 16
    layoutDirection: LayoutMirroring.enabled ? Qt.RightToLeft : Qt.LeftToRight

    Column {
        anchors.verticalCenter: parent.verticalCenter

        MeasuredText {
            anchors.right: parent.right
            width: Math.min(lineWidth, root.textRoom)
            horizontalAlignment: Text.AlignRight
            text: root.card.title
            style: Theme.bodyStrongText
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        MeasuredText {
            anchors.right: parent.right
            width: Math.min(lineWidth, root.textRoom)
            horizontalAlignment: Text.AlignRight
            text: root.card.prompt
            style: Theme.labelText
            color: Theme.inkSecondary
        }
    }

    SegmentedControl {
        id: control
        anchors.verticalCenter: parent.verticalCenter
        width: 272 * Math.min(Theme.textScale, 1.7)
        options: root.card.options
        currentIndex: root.card.selectedIndex
        accessibleName: root.card.title
        onChosen: index => root.chosen(index)
    }
}
