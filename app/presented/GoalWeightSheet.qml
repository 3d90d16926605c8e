// SPDX-License-Identifier: MIT
// The weight that the user is heading for.
import QtQuick
import Mivo

Sheet {
    id: root

    property bool hasProblem: false

    title: Texts.text("Goal weight")
    spacing: 12

    onAboutToShow: {
        field.text = App.goalWeightText;
        hasProblem = false;
    }
    onOpened: field.forceActiveFocus()

    function save() {
        hasProblem = !App.setGoalWeight(field.text);
        if (!hasProblem)
            close();
    }

    TextField {
        id: field
        width: parent.width
        hasProblem: root.hasProblem
        accessibleName: root.title
        placeholder: App.addWeight.unit
        onAccepted: root.save()
    }

    StyledText {
        width: parent.width
        visible: root.hasProblem
        text: Texts.text("Type your weight as a number, such as 81.4.")
        style: Theme.captionText
        color: Theme.danger
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    ActionButton {
        width: parent.width
        leastHeight: Theme.sheetButtonSize
        text: Texts.text("Save")
        onClicked: root.save()
    }

    ActionButton {
        width: parent.width
        leastHeight: Theme.sheetButtonSize
        visible: App.goalWeightText !== ""
        kind: ActionButton.Plain
        text: Texts.text("Remove goal")
        onClicked: {
            App.setGoalWeight("");
            root.close();
        }
    }
}
