// SPDX-License-Identifier: MIT
// A tile, a text and a chevron: donation and roadmap.
import QtQuick
import Mivo

TappableCard {
    id: root

    required property NoticeCardRecord card
    property string iconName

    text: root.card.text !== "" ? root.card.text : root.card.button

    contentItem: face

    Item {
        id: face

        implicitHeight: Math.max(Theme.tileSize, body.implicitHeight)

        IconTile {
            id: tile
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: root.iconName
        }

        StyledText {
            id: body
            anchors.left: tile.right
            anchors.leftMargin: 12
            anchors.right: chevron.left
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            text: root.card.text !== "" ? root.card.text : root.card.button
        }

        Icon {
            id: chevron
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            name: "chevron"
            color: Theme.inkTertiary
            mirrored: root.mirrored
        }
    }
}
