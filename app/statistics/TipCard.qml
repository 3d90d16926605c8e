// SPDX-License-Identifier: MIT
import QtQuick
import Mivo

Card {
    id: root

    required property NoticeCardRecord card
    readonly property bool stacked: Theme.textScale >= 1.3

    signal dismissed

    Item {
        width: parent.width
        implicitHeight: Math.max(Theme.tileSize, texts.y + texts.implicitHeight)

        IconTile {
            id: tile
            anchors.left: parent.left
            name: "bulb"
        }

        Column {
            id: texts
            anchors.left: root.stacked ? parent.left : tile.right
            anchors.leftMargin: root.stacked ? 0 : 12
            anchors.right: parent.right
            anchors.rightMargin: root.stacked ? 0 : Theme.touchSize - Theme.cardPadding
            y: root.stacked ? tile.height + 12 : 0

            StyledText {
                width: parent.width
                text: root.card.title
                style: Theme.bodyStrongText
            }

            StyledText {
                width: parent.width
                text: root.card.text
                color: Theme.inkSecondary
            }
        }

        IconButton {
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: -Theme.cardPadding
            iconName: "close"
            iconColor: Theme.inkTertiary
            text: Words.close
            onClicked: root.dismissed()
        }
    }
}
