// SPDX-License-Identifier: MIT
// One feature of the roadmap, and the button that votes for it.
import QtQuick
import Mivo

Card {
    id: root

    required property string title
    required property string text
    required property string status
    required property string statusName
    required property bool hasVotes
    required property string count
    required property string spokenVote
    required property bool isVoted
    required property bool isOpen

    readonly property bool stacked: Theme.textScale >= 1.3

    signal voteTapped

    Item {
        width: parent.width
        height: !root.hasVotes ? texts.height : root.stacked ? vote.y + vote.height : Math.max(texts.height, vote.height)

        Column {
            id: texts
            anchors.left: parent.left
            anchors.right: root.stacked || !root.hasVotes ? parent.right : vote.left
            anchors.rightMargin: root.stacked || !root.hasVotes ? 0 : 12

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
                anchors.left: parent.left
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
            visible: root.hasVotes
            anchors.right: parent.right
            y: root.stacked ? texts.height + 12 : 0
            spoken: root.spokenVote
            count: root.count
            cast: root.isVoted
            enabled: root.isOpen
            onClicked: root.voteTapped()
        }
    }
}
