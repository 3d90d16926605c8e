// SPDX-License-Identifier: MIT
// The range of trends and charts, over the part of the screen that it rules.
import QtQuick
import Mivo

Column {
    id: root

    required property TimeRangeCardRecord card
    /// Where the control itself begins in the page.
    readonly property real controlTop: slotTop + control.y
    property real slotTop: 0

    signal chosen(int index)

    topPadding: Theme.sectionTop - 4

    StyledText {
        width: parent.width
        text: root.card.title
        style: Theme.sectionText
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    StyledText {
        width: parent.width
        text: root.card.prompt
        style: Theme.labelText
        color: Theme.inkSecondary
    }

    Item { width: 1; height: 12 }

    SegmentedControl {
        id: control
        width: parent.width
        options: root.card.options
        currentIndex: root.card.selectedIndex
        accessibleName: root.card.title
        onChosen: index => root.chosen(index)
    }

    Item { width: 1; height: 4 }
}
