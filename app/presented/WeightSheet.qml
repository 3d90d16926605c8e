// SPDX-License-Identifier: MIT
// Edits a weight of the list.
import QtQuick
import Mivo

Sheet {
    id: root

    readonly property AddWeightModel entry: App.weights.entry

    title: App.weights.editLabel

    NumberField {
        width: parent.width
        text: root.entry.fieldText
        unit: root.entry.unit
        hasProblem: root.entry.problem !== ""
        accessibleName: root.title
        onEdited: text => root.entry.edit(text)
        onIncreased: root.entry.increase()
        onDecreased: root.entry.decrease()
        onAccepted: root.entry.save()
    }

    FieldButton {
        width: parent.width
        text: root.entry.dateText
        iconName: "updown"
        onClicked: date.open()
    }

    StyledText {
        width: parent.width
        visible: text !== ""
        text: root.entry.problem
        style: Theme.captionText
        color: Theme.danger
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    Column {
        width: parent.width
        spacing: 4

        ActionButton {
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            enabled: !root.entry.isSaving
            text: App.weights.saveLabel
            onClicked: root.entry.save()
        }

        ActionButton {
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            kind: ActionButton.Destructive
            iconName: "trash"
            text: App.weights.removeLabel
            onClicked: App.weights.removeEdited()
        }
    }

    DateTimeSheet {
        id: date
        title: root.entry.dateTitle
        instant: root.entry.date
        onChosen: instant => root.entry.changeDate(instant)
    }
}
