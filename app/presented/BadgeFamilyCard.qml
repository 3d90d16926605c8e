// SPDX-License-Identifier: MIT
// One family of badges: the best one, how far the next is, and those around it. A tap opens the list of all.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

TappableCard {
    id: root

    required property badgeFamilyPageRecord family
    required property int kind

    text: family.spoken

    contentItem: face

    Column {
        id: face

        spacing: 12

        Item {
            width: parent.width
            height: head.height

            CardHeadLine {
                id: head
                anchors.left: parent.left
                anchors.right: chevron.left
                anchors.rightMargin: 4
                title: root.family.title
                titleStyle: Theme.headlineText
                detail: root.family.allLabel
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

        Item {
            width: parent.width
            height: Math.max(120, facts.height)

            Badge {
                id: best
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                width: 120
                height: 120
                family: root.kind
                threshold: root.family.present.threshold
                count: root.family.present.isEarned ? root.family.present.threshold : 0
                number: root.family.present.number
                dark: Theme.dark
            }

            Column {
                id: facts
                anchors.left: best.right
                anchors.leftMargin: 16
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: 2

                StyledNumber {
                    anchors.left: parent.left
                    text: root.family.count
                    style: Theme.numberLargeText
                    scaleLimit: facts.width / natural.implicitWidth

                    StyledNumber {
                        id: natural
                        visible: false
                        text: root.family.count
                        style: Theme.numberLargeText
                        scaleLimit: 1
                    }
                }

                StyledText {
                    width: parent.width
                    text: root.family.countLabel
                    style: Theme.labelText
                    color: Theme.inkSecondary
                }

                Item { width: 1; height: 8 }

                ProgressTrack {
                    width: parent.width
                    fraction: root.family.fraction
                }

                Item { width: 1; height: 6 }

                StyledText {
                    width: parent.width
                    text: root.family.remaining
                    style: Theme.labelText
                    color: Theme.inkSecondary
                }
            }
        }

        Row {
            id: row
            width: parent.width
            topPadding: 4
            spacing: (width - 5 * 56) / 4

            Repeater {
                model: root.family.around

                delegate: Badge {
                    required property badgeItemRecord modelData

                    width: Math.min(56, row.width / 5)
                    height: width
                    family: root.kind
                    threshold: modelData.threshold
                    count: modelData.isEarned ? modelData.threshold : 0
                    number: modelData.number
                    dark: Theme.dark
                }
            }
        }
    }
}
