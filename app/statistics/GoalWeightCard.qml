// SPDX-License-Identifier: MIT
// How far the goal weight is, and when the trend reaches it. A tap changes the goal.
import QtQuick
import Mivo

TappableCard {
    id: root

    required property GoalWeightCardRecord card

    signal weightsWanted

    text: {
        let said = card.title;
        for (const fact of [card.remaining, card.current, card.goal])
            said += fact === "" ? "" : ", " + fact;
        return said;
    }

    contentItem: face

    Item {
        id: face

        implicitHeight: figures.height + 8 + way.height

        Column {
            id: figures
            width: parent.width
            spacing: 8

            CardHead {
                width: parent.width
                title: root.card.title
                detail: root.card.remaining
            }

            Item {
                width: parent.width
                height: Math.max(current.height, goal.height)
                visible: root.card.current !== "" || root.card.goal !== ""

                SummaryFigure {
                    id: current
                    anchors.left: parent.left
                    width: parent.width / 2 - 4
                    height: implicitHeight
                    visible: root.card.current !== ""
                    value: root.card.current
                    label: root.card.currentLabel
                }

                SummaryFigure {
                    id: goal
                    anchors.right: parent.right
                    width: parent.width / 2 - 4
                    height: implicitHeight
                    visible: root.card.goal !== ""
                    trailing: true
                    value: root.card.goal
                    label: root.card.goalLabel
                }
            }
        }

        // Beside higher cards it keeps to the bottom.
        Column {
            id: way
            width: parent.width
            anchors.bottom: parent.bottom
            spacing: 8

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
                    readonly property real place: Math.min(1, root.card.fraction) * (parent.width - 14)

                    x: (LayoutMirroring.enabled ? parent.width - 14 - place : place) - 3
                    y: -3
                    width: 20
                    height: 20
                    radius: 10
                    antialiasing: true
                    color: Theme.weight.fill
                    border.width: 3
                    border.color: root.down ? Theme.cardPressed : Theme.card
                }
            }

            StyledText {
                width: parent.width
                visible: text !== ""
                textFormat: Text.StyledText
                text: (root.card.trendFigure === "" ? "" : "<b><font color='" + Theme.ink + "'>" + root.card.trendFigure + "</font></b>") + root.card.afterFigure
                style: Theme.labelText
                color: Theme.inkSecondary
                Accessible.role: Accessible.StaticText
                Accessible.name: root.card.trendFigure + root.card.afterFigure
            }

            ActionButton {
                width: parent.width
                visible: text !== ""
                kind: ActionButton.Secondary
                text: root.card.button
                onClicked: root.clicked()
            }

            CardLink {
                width: parent.width
                visible: text !== ""
                text: App.weights.openLabel
                onClicked: root.weightsWanted()
            }
        }
    }
}
