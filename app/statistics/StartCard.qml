// SPDX-License-Identifier: MIT
// Before the first fast.
import QtQuick
import Mivo

Card {
    id: root

    required property NoticeCardRecord card

    signal startTapped

    padding: 24
    spacing: 20

    Item {
        width: parent.width
        height: 104

        FractionRing {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 8
            width: 96
            height: 96
            fraction: 0.2
            stroke: 12
            roundEnds: true
            fill: Theme.fasting.fill
            rest: Theme.fasting.tint
        }
    }

    StyledText {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: root.card.text
        style: Theme.headlineText
        font.weight: 500
    }

    ActionButton {
        width: parent.width
        kind: ActionButton.Data
        iconName: "play"
        text: root.card.button
        onClicked: root.startTapped()
    }
}
