// SPDX-License-Identifier: MIT
// One feature of the roadmap, and the button that votes for it.
import QtQuick
import Mivo

Card {
    id: root

    required property string featureID
    required property string title
    required property string text
    required property string status
    required property string statusName
    required property string count
    required property bool voted
    required property bool open

    signal voteTapped

    Item {
        width: parent.width
        height: Math.max(texts.height, vote.height)

        Column {
            id: texts
            anchors.left: parent.left
            anchors.right: vote.left
            anchors.rightMargin: 12

            StyledText {
                width: parent.width
                text: root.title
                style: Theme.headlineText
            }

            StyledText {
                width: parent.width
                visible: text !== ""
                text: root.text
                color: Theme.inkSecondary
            }

            Item { width: 1; height: 6 }

            Row {
                spacing: 6

                StatusMark {
                    anchors.verticalCenter: parent.verticalCenter
                    status: root.status
                }

                StyledText {
                    text: root.statusName
                    style: Theme.captionText
                    color: Theme.inkSecondary
                    wrapMode: Text.NoWrap
                }
            }
        }

        VoteButton {
            id: vote
            anchors.right: parent.right
            title: root.title
            count: root.count
            cast: root.voted
            enabled: root.open
            onClicked: root.voteTapped()
        }
    }
}
