// SPDX-License-Identifier: MIT
// The headline of the history, and what adds a fast to it.
import QtQuick
import Mivo

Item {
    id: root

    readonly property real buttons: add.implicitWidth + (months.visible ? months.width : 0)
    readonly property bool stacked: Math.ceil(whole.advanceWidth) + buttons > width

    signal addWanted
    signal monthsWanted

    implicitHeight: stacked ? headline.height + add.height : Math.max(add.height, headline.height)

    // The headline's own implicit width is worked out anew whenever its width changes.
    TextMetrics {
        id: whole
        text: headline.text
        font: headline.font
    }

    StyledText {
        id: headline
        anchors.left: parent.left
        y: root.stacked ? 0 : (add.height - height) / 2
        width: root.stacked ? root.width : root.width - root.buttons
        text: App.fasting.history.title
        style: Theme.sectionText
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    IconButton {
        id: months
        visible: App.fasting.history.hasMonths
        anchors.right: add.left
        y: add.y + (add.height - height) / 2
        iconName: "calendar"
        text: App.fasting.history.monthsLabel
        onClicked: root.monthsWanted()
    }

    ActionButton {
        id: add
        anchors.right: parent.right
        anchors.rightMargin: -rightPadding
        y: root.stacked ? headline.height : 0
        leftPadding: 12
        rightPadding: 12
        kind: ActionButton.Plain
        iconName: "plus"
        text: App.fasting.history.addLabel
        onClicked: root.addWanted()
    }
}
