// SPDX-License-Identifier: MIT
// How long a fast is meant to be: the usual lengths, or one that is typed.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Column {
    id: root

    property real seconds
    property string problem
    readonly property var usualHours: [16, 18, 20, 24]
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
        custom = !usualHours.includes(goal / 3600);
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

        Repeater {
            model: root.usualHours

            GoalChip {
                required property int modelData

                hours: modelData
                chosen: root.pickedHours === hours
                onPicked: seconds => root.pick(seconds)
            }
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
        text: root.custom && root.unread ? Texts.text("Type up to 168 hours, such as 17 or 16:30.") : root.problem
        style: Theme.captionText
        color: Theme.danger
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
}
