// SPDX-License-Identifier: MIT
import QtQuick
import Mivo

Card {
    id: root

    required property NoticeCardModel card

    signal dismissed

    Item {
        width: parent.width
        implicitHeight: Math.max(Theme.tileSize, texts.implicitHeight)

        IconTile {
            id: tile
            anchors.left: parent.left
            name: "bulb"
        }

        Column {
            id: texts
            anchors.left: tile.right
            anchors.leftMargin: 12
            anchors.right: parent.right
            anchors.rightMargin: Theme.touchSize - Theme.cardPadding

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
            text: Texts.text("Close")
            onClicked: root.dismissed()
        }
    }
}
