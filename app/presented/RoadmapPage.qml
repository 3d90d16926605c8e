// SPDX-License-Identifier: MIT
// What may come: features with their votes, by state.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

PushedPage {
    id: root

    property RoadmapModel roadmap: App.roadmap

    title: roadmap ? roadmap.title : ""

    // A chip is touched 4 beyond what is seen of it.
    Flow {
        width: parent.width
        topPadding: -4
        bottomPadding: -4
        spacing: 8
        visible: root.roadmap !== null && root.roadmap.filters.length > 0

        Repeater {
            model: root.roadmap ? root.roadmap.filters : []

            delegate: Chip {
                required property int index
                required property roadmapFilterRecord modelData

                text: modelData.name
                chosen: modelData.isChosen
                onClicked: root.roadmap.choose(index)
            }
        }
    }

    StyledText {
        width: parent.width
        visible: text !== ""
        text: root.roadmap ? root.roadmap.unsentVote : ""
        style: Theme.labelText
        color: Theme.danger
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    Repeater {
        model: waited.passed && root.roadmap && root.roadmap.isLoading ? 4 : 0

        delegate: LoadingCard { width: root.contentWidth }
    }

    Card {
        width: parent.width
        visible: root.roadmap !== null && root.roadmap.notice.title !== ""
        padding: 24
        spacing: 12

        Item {
            width: parent.width
            height: 56

            IconTile {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 56
                height: 56
                radius: 16
                name: root.roadmap && root.roadmap.notice.hasFailed ? "cloudOff" : "inbox"
            }
        }

        StyledText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: root.roadmap ? root.roadmap.notice.title : ""
            style: Theme.headlineText
        }

        StyledText {
            width: parent.width
            visible: text !== ""
            horizontalAlignment: Text.AlignHCenter
            text: root.roadmap ? root.roadmap.notice.text : ""
            color: Theme.inkSecondary
        }

        ActionButton {
            width: parent.width
            visible: text !== ""
            text: root.roadmap ? root.roadmap.notice.button : ""
            onClicked: root.roadmap.tryAgain()
        }
    }

    Repeater {
        model: root.roadmap ? root.roadmap.items : null

        delegate: RoadmapCard {
            required property int index

            width: root.contentWidth
            onVoteTapped: root.roadmap.vote(index)
        }
    }

    ActionButton {
        width: parent.width
        kind: ActionButton.Secondary
        text: root.roadmap ? root.roadmap.footer : ""
        onClicked: App.present("feedback")
    }

    // What loads at once never shows that it loads.
    Timer {
        id: waited
        property bool passed: false
        interval: 300
        running: true
        onTriggered: passed = true
    }
}
