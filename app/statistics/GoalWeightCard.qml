// SPDX-License-Identifier: MIT
// How far the goal weight is, and when the trend reaches it. A tap on the goal changes it.
import QtQuick
import Mivo

Card {
    id: root

    required property GoalWeightCardModel card

    signal goalTapped

    // Where the card is stretched to its neighbours' height, track and trend stand at the bottom.
    readonly property real slack: Math.max(0, height - implicitHeight)

    spacing: 8

    CardHead {
        width: parent.width
        title: root.card.title
        detail: root.card.remaining
    }

    Item {
        width: parent.width
        implicitHeight: Math.max(current.implicitHeight, goal.implicitHeight)
        visible: root.card.current !== "" || root.card.goal !== ""

        SummaryFigure {
            id: current
            anchors.left: parent.left
            width: parent.width / 2
            visible: root.card.current !== ""
            value: root.card.current
            label: root.card.currentLabel
        }

        SummaryFigure {
            id: goal
            anchors.right: parent.right
            width: parent.width / 2
            visible: root.card.goal !== ""
            trailing: true
            value: root.card.goal
            label: root.card.goalLabel

            TapHandler {
                onTapped: root.goalTapped()
            }
        }
    }

    Item {
        width: 1
        height: root.slack
        visible: root.slack > 0
    }

    Item {
        width: parent.width
        height: 14
        visible: root.card.fraction >= 0

        ProgressTrack {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: 6
            color: Theme.weight.tint
            done: Theme.weight.fill
            fraction: root.card.fraction
        }

        Rectangle {
            readonly property real place: root.card.fraction * (parent.width - 14)

            x: (LayoutMirroring.enabled ? parent.width - 14 - place : place) - 3
            y: -3
            width: 20
            height: 20
            radius: 10
            antialiasing: true
            color: Theme.weight.fill
            border.width: 3
            border.color: Theme.card
        }
    }

    StyledText {
        width: parent.width
        visible: text !== ""
        textFormat: Text.StyledText
        text: (root.card.trendFigure === "" ? "" : "<b><font color='" + Theme.ink + "'>" + root.card.trendFigure + "</font></b>") + root.card.trendRest
        Accessible.name: root.card.trendFigure + root.card.trendRest
        style: Theme.labelText
        color: Theme.inkSecondary
    }

    ActionButton {
        width: parent.width
        visible: text !== ""
        kind: ActionButton.Secondary
        text: root.card.button
        onClicked: root.goalTapped()
    }
}
