// SPDX-License-Identifier: MIT
// Changes the goal of the running fast, and of those to come.
import QtQuick
import Mivo

Sheet {
    id: root

    property real seconds

    title: Texts.text("Goal")
    spacing: 16

    onAboutToShow: {
        seconds = App.fasting.goalSeconds;
        choice.begin(seconds);
    }

    GoalChoice {
        id: choice
        labelled: false
        width: parent.width
        seconds: root.seconds
        onChosen: seconds => root.seconds = seconds
    }

    ActionButton {
        width: parent.width
        implicitHeight: Theme.sheetButtonSize
        enabled: !choice.unread
        text: Texts.text("Save")
        onClicked: {
            App.fasting.changeGoal(root.seconds);
            root.close();
        }
    }
}
