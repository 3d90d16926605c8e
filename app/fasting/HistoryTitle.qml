// SPDX-License-Identifier: MIT
// The headline of the history, and what adds a fast to it.
import QtQuick
import Mivo

Item {
    id: root

    signal addWanted

    implicitHeight: Math.max(add.height, headline.height)

    StyledText {
        id: headline
        anchors.left: parent.left
        anchors.right: add.left
        anchors.verticalCenter: add.verticalCenter
        text: Texts.text("History")
        style: Theme.sectionText
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    ActionButton {
        id: add
        anchors.right: parent.right
        anchors.rightMargin: -rightPadding
        leftPadding: 12
        rightPadding: 12
        kind: ActionButton.Plain
        iconName: "plus"
        text: Texts.text("Add fast")
        onClicked: root.addWanted()
    }
}
