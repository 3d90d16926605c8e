// SPDX-License-Identifier: MIT
// Something to know and one thing to do: overlapping fasts, access to health data.
import QtQuick
import Mivo

Card {
    id: root

    required property NoticeCardRecord card
    property string iconName
    property bool isCaution: false
    readonly property bool stacked: Theme.textScale >= 1.3

    signal tapped

    spacing: 12

    Item {
        width: parent.width
        implicitHeight: Math.max(Theme.tileSize, texts.y + texts.implicitHeight)

        IconTile {
            id: tile
            anchors.left: parent.left
            name: root.iconName
            color: root.isCaution ? Theme.cautionFill : Theme.fill
            iconColor: root.isCaution ? Theme.caution : Theme.ink
        }

        Column {
            id: texts
            anchors.left: root.stacked ? parent.left : tile.right
            anchors.leftMargin: root.stacked ? 0 : 12
            anchors.right: parent.right
            y: root.stacked ? tile.height + 12 : 0
            spacing: 2

            WholeWordsText {
                width: parent.width
                room: width
                text: root.card.title
                style: Theme.headlineText
            }

            StyledText {
                width: parent.width
                text: root.card.text
            }
        }
    }

    ActionButton {
        width: parent.width
        kind: root.isCaution ? ActionButton.Secondary : ActionButton.Primary
        text: root.card.button
        onClicked: root.tapped()
    }
}
