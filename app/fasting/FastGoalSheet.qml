// SPDX-License-Identifier: MIT
// Changes how long fasts are meant to be.
import QtQuick
import Mivo

Sheet {
    id: root

    /// As it is before anything is chosen, in seconds.
    property real goal
    property real seconds

    signal chosen(seconds: real)

    title: Texts.text("Goal")
    spacing: 16

    onAboutToShow: {
        seconds = goal;
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
        leastHeight: Theme.sheetButtonSize
        enabled: !choice.unread
        text: Texts.text("Save")
        onClicked: {
            root.chosen(root.seconds);
            root.close();
        }
    }
}
