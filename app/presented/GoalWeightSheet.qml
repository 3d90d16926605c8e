// SPDX-License-Identifier: MIT
// The weight that the user is heading for.
import QtQuick
import Mivo

Sheet {
    id: root

    title: App.goalSheet.title
    spacing: 12

    onAboutToShow: {
        App.openGoalWeight();
        field.text = App.goalSheet.fieldText;
    }
    onOpened: field.forceActiveFocus()

    function save() {
        App.setGoalWeight(field.text);
        if (App.goalSheet.problem === "")
            close();
    }

    TextField {
        id: field
        width: parent.width
        hasProblem: App.goalSheet.problem !== ""
        accessibleName: root.title
        unit: App.goalSheet.unit
        selectsOnFocus: true
        onAccepted: root.save()
    }

    StyledText {
        width: parent.width
        visible: text !== ""
        text: App.goalSheet.problem
        style: Theme.captionText
        color: Theme.danger
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    ActionButton {
        width: parent.width
        leastHeight: Theme.sheetButtonSize
        text: App.goalSheet.save
        onClicked: root.save()
    }

    ActionButton {
        width: parent.width
        leastHeight: Theme.sheetButtonSize
        visible: text !== ""
        kind: ActionButton.Plain
        text: App.goalSheet.remove
        onClicked: {
            App.setGoalWeight("");
            root.close();
        }
    }
}
