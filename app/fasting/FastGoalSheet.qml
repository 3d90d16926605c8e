// SPDX-License-Identifier: MIT
// Changes how long fasts are meant to be.
import QtQuick
import Mivo

Sheet {
    id: root

    /// As it is before anything is chosen, in seconds.
    property real goal
    readonly property GoalChoiceModel choice: App.fasting.goalChoice()

    signal chosen(seconds: real)

    title: choice.title
    spacing: 16

    onAboutToShow: choice.begin(goal)

    function save() {
        chosen(choice.seconds);
        close();
    }

    GoalChoice {
        labelled: false
        width: parent.width
        goal: root.choice
        onAccepted: root.save()
    }

    ActionButton {
        width: parent.width
        leastHeight: Theme.sheetButtonSize
        enabled: root.choice.canSave
        text: root.choice.saveLabel
        onClicked: root.save()
    }
}
