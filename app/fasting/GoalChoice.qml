// SPDX-License-Identifier: MIT
// How long a fast is meant to be: the usual lengths, or one that is typed.
import QtQuick
import Mivo

Column {
    id: root

    property real seconds
    property string problem
    readonly property real pickedHours: custom ? 0 : seconds / 3600
    property bool labelled: true
    property bool custom: false
    /// What is typed is no length.
    property bool unread: false
    property bool filling: false

    signal chosen(seconds: real)

    spacing: 8

    /// Shows a goal as it is before anything is chosen.
    function begin(goal: real) {
        const hours = goal / 3600;
        custom = hours !== 16 && hours !== 18 && hours !== 20 && hours !== 24;
        fill(goal);
    }

    function fill(goal: real) {
        filling = true;
        field.text = App.fasting.typedGoal(goal);
        filling = false;
        unread = false;
    }

    function pick(goal: real) {
        custom = false;
        unread = false;
        chosen(goal);
    }

    function read() {
        const goal = App.fasting.parsedGoal(field.text);
        unread = goal === 0;
        if (!unread)
            chosen(goal);
    }

    StyledText {
        visible: root.labelled
        width: parent.width
        text: Texts.text("Goal")
        style: Theme.labelText
        color: Theme.inkSecondary
    }

    Flow {
        width: parent.width
        spacing: 8

        GoalChip {
            hours: 16
            chosen: root.pickedHours === 16
            onPicked: seconds => root.pick(seconds)
        }

        GoalChip {
            hours: 18
            chosen: root.pickedHours === 18
            onPicked: seconds => root.pick(seconds)
        }

        GoalChip {
            hours: 20
            chosen: root.pickedHours === 20
            onPicked: seconds => root.pick(seconds)
        }

        GoalChip {
            hours: 24
            chosen: root.pickedHours === 24
            onPicked: seconds => root.pick(seconds)
        }

        Chip {
            text: Texts.text("Custom")
            chosen: root.custom
            onClicked: {
                root.custom = true;
                root.fill(root.seconds);
                field.forceActiveFocus();
            }
        }
    }

    TextField {
        id: field
        visible: root.custom
        width: parent.width
        hasProblem: root.unread || root.problem !== ""
        accessibleName: Texts.text("Goal in hours")
        placeholder: Texts.text("Goal in hours")
        onTextChanged: {
            if (root.custom && !root.filling)
                root.read();
        }
    }

    StyledText {
        visible: text !== ""
        width: parent.width
        text: root.custom && root.unread ? Texts.text("Type hours, such as 17 or 16:30.") : root.problem
        style: Theme.captionText
        color: Theme.danger
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
}
