// SPDX-License-Identifier: MIT
import QtQuick
import Mivo

TappableCard {
    id: root

    required property BadgesCardRecord card

    text: root.card.title + ": " + root.card.milestone.label + ", " + root.card.streak.label

    contentItem: face

    Column {
        id: face

        spacing: 8

        Item {
            width: parent.width
            height: head.height

            CardHead {
                id: head
                width: parent.width - 28
                title: root.card.title
            }

            Icon {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                width: 20
                height: 20
                name: "chevron"
                color: Theme.inkTertiary
                mirrored: root.mirrored
            }
        }

        Row {
            width: parent.width

            BadgeHalf {
                width: parent.width / 2
                family: Badge.Milestone
                figure: root.card.milestone
            }

            BadgeHalf {
                width: parent.width / 2
                family: Badge.Streak
                figure: root.card.streak
            }
        }
    }
}
