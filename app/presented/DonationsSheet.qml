// SPDX-License-Identifier: MIT
// The ways to give.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Sheet {
    id: root

    title: App.donations.title
    spacing: 12

    StyledText {
        width: parent.width
        text: App.donations.text
        color: Theme.inkSecondary
    }

    Repeater {
        model: App.donations.groups

        delegate: Column {
            id: kind
            required property donationGroupRecord modelData

            width: parent ? parent.width : 0
            spacing: 8

            StyledText {
                width: parent.width
                text: kind.modelData.label
                style: Theme.labelText
                color: Theme.inkSecondary
            }

            Grid {
                id: grid
                width: parent.width
                columns: Theme.textScale >= 1.6 ? 1 : 3
                spacing: 8

                Repeater {
                    model: kind.modelData.choices

                    delegate: ActionButton {
                        required property donationChoiceRecord modelData

                        width: (grid.width - (grid.columns - 1) * grid.spacing) / grid.columns
                        implicitHeight: Theme.buttonLargeSize
                        leftPadding: 8
                        rightPadding: 8
                        kind: modelData.isChosen ? ActionButton.Primary : ActionButton.Field
                        text: modelData.price
                        Accessible.name: modelData.spoken
                        Accessible.checked: modelData.isChosen
                        onClicked: App.donations.choose(modelData.id)
                    }
                }
            }
        }
    }

    StyledText {
        width: parent.width
        visible: text !== ""
        text: App.donations.failure
        color: Theme.inkSecondary
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    Column {
        width: parent.width
        spacing: 4

        ActionButton {
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            visible: text !== ""
            text: App.donations.button
            onClicked: App.donations.tapButton()
        }

        ActionButton {
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            kind: ActionButton.Plain
            text: App.donations.close
            onClicked: root.close()
        }
    }
}
