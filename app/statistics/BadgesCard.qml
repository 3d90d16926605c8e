// SPDX-License-Identifier: MIT
import QtQuick
import Mivo

TappableCard {
    id: root

    required property BadgesCardModel card

    text: root.card.title + ": " + root.card.milestoneLabel + ", " + root.card.streakLabel

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
                threshold: root.card.milestoneThreshold
                earned: root.card.milestoneIsEarned
                number: Texts.number(root.card.milestoneThreshold)
                label: root.card.milestoneLabel
                progress: root.card.milestoneProgress
                fraction: root.card.milestoneFraction
            }

            BadgeHalf {
                width: parent.width / 2
                family: Badge.Streak
                threshold: root.card.streakThreshold
                earned: root.card.streakIsEarned
                number: Texts.number(root.card.streakThreshold)
                label: root.card.streakLabel
                progress: root.card.streakProgress
                fraction: root.card.streakFraction
            }
        }
    }
}
