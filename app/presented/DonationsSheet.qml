// SPDX-License-Identifier: MIT
// The ways to give.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Sheet {
    id: root

    title: Texts.text("Donate")
    spacing: 12

    StyledText {
        width: parent.width
        text: Texts.text("Mivo is free, privacy-friendly and without ads. Donate to support my work. Thank you!")
        color: Theme.inkSecondary
    }

    Repeater {
        model: [App.donations.oneTime, App.donations.recurring]

        delegate: Column {
            id: kind
            required property int index
            required property list<donationChoice> modelData

            width: parent.width
            spacing: 8
            visible: modelData.length > 0

            StyledText {
                width: parent.width
                text: kind.index === 0 ? Texts.text("Once") : Texts.text("Every month")
                style: Theme.labelText
                color: Theme.inkSecondary
            }

            Grid {
                id: grid
                width: parent.width
                columns: Theme.textScale >= 1.6 ? 1 : 3
                spacing: 8

                Repeater {
                    model: kind.modelData

                    delegate: ActionButton {
                        required property donationChoice modelData

                        width: (grid.width - (grid.columns - 1) * grid.spacing) / grid.columns
                        implicitHeight: Theme.buttonLargeSize
                        leftPadding: 8
                        rightPadding: 8
                        kind: App.donations.chosen === modelData.id ? ActionButton.Primary : ActionButton.Field
                        text: modelData.price
                        Accessible.name: modelData.title + ", " + modelData.price
                        Accessible.checked: App.donations.chosen === modelData.id
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
            visible: !App.donations.loading
            text: App.donations.failure !== "" ? Texts.text("Try again") : App.donations.buttonText
            onClicked: App.donations.failure !== "" ? App.donations.tryAgain() : App.donations.donate()
        }

        ActionButton {
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            kind: ActionButton.Plain
            text: Texts.text("Not now")
            onClicked: root.close()
        }
    }
}
