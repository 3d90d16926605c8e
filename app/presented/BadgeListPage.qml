// SPDX-License-Identifier: MIT
// Every badge of one family.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

PushedPage {
    id: root

    required property badgeFamilyPageRecord family
    required property int kind

    readonly property int columns: width >= Theme.twoColumnsWidth ? 6 : 3

    title: root.family.title
    maxWidth: 960

    Column {
        width: parent.width
        bottomPadding: 4

        StyledNumber {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.family.count
            style: Theme.numberLargeText
        }

        StyledText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: root.family.remaining
            style: Theme.labelText
            color: Theme.inkSecondary
        }
    }

    Card {
        width: parent.width

        Grid {
            id: grid
            width: parent.width
            columns: root.columns
            rowSpacing: 20

            Repeater {
                model: root.family.all

                delegate: Column {
                    id: entry
                    required property badgeItemRecord modelData

                    width: grid.width / root.columns
                    spacing: 8
                    Accessible.role: Accessible.StaticText
                    Accessible.name: entry.modelData.label

                    Badge {
                        anchors.horizontalCenter: parent.horizontalCenter
                        width: Math.min(88, parent.width - 8)
                        height: width
                        family: root.kind
                        threshold: entry.modelData.threshold
                        count: entry.modelData.isEarned ? entry.modelData.threshold : 0
                        number: entry.modelData.number
                        dark: Theme.dark
                    }

                    StyledText {
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        text: entry.modelData.label
                        style: entry.modelData.isEarned ? Theme.bodyStrongText : Theme.bodyText
                        color: entry.modelData.isEarned ? Theme.ink : Theme.inkSecondary
                        Accessible.ignored: true
                    }
                }
            }
        }
    }
}
