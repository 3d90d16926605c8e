// SPDX-License-Identifier: MIT
// How long a fast is meant to be: the usual lengths, or one that is typed.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Column {
    id: root

    required property GoalChoiceModel goal
    property bool labelled: true

    /// Enter, while what stands in the field is a goal.
    signal accepted

    spacing: 8

    StyledText {
        visible: root.labelled
        width: parent.width
        text: root.goal.title
        style: Theme.labelText
        color: Theme.inkSecondary
    }

    Flow {
        width: parent.width
        spacing: 8

        Repeater {
            model: root.goal.offers

            Chip {
                required property int index
                required property bool isChosen
                required text

                chosen: isChosen
                onClicked: root.goal.pick(index)
            }
        }

        Chip {
            text: root.goal.customText
            chosen: root.goal.isTyped
            onClicked: {
                root.goal.openField();
                field.forceActiveFocus();
            }
        }
    }

    TextField {
        id: field
        visible: root.goal.isTyped
        width: parent.width
        hasProblem: root.goal.problem !== ""
        accessibleName: root.goal.fieldText
        placeholder: root.goal.example
        unit: root.goal.unit
        selectsOnFocus: true
        text: root.goal.typed
        onAccepted: {
            if (root.goal.canSave)
                root.accepted();
        }
        onTextChanged: {
            if (text !== root.goal.typed)
                root.goal.type(text);
        }
    }

    StyledText {
        visible: text !== ""
        width: parent.width
        text: root.goal.hint
        style: Theme.captionText
        color: Theme.inkSecondary
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    StyledText {
        visible: text !== ""
        width: parent.width
        text: root.goal.problem
        style: Theme.captionText
        color: Theme.danger
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
}
