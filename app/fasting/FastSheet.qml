// SPDX-License-Identifier: MIT
// Edits a fast of the history, or adds one.
import QtQuick
import Mivo

Sheet {
    id: root

    readonly property FastDraftModel draft: App.fasting.draft
    readonly property GoalChoiceModel goal: App.fasting.goalChoice()

    title: draft.title
    spacing: 16

    onAboutToShow: {
        goal.begin(draft.goalSeconds);
        note.text = draft.note;
    }

    Connections {
        target: root.draft

        function onGoalSecondsChanged() {
            root.goal.tellProblem(root.draft.goalProblem);
        }

        function onGoalProblemChanged() {
            root.goal.tellProblem(root.draft.goalProblem);
        }
    }

    Connections {
        target: root.goal

        function onChosen(seconds: real) {
            root.draft.setGoal(seconds);
        }
    }

    Rectangle {
        width: parent.width
        height: fields.height
        radius: Theme.controlRadius
        color: Theme.field

        Column {
            id: fields
            width: parent.width

            DraftField {
                width: parent.width
                isFirst: true
                label: root.draft.startLabel
                value: root.draft.startText
                spoken: root.draft.startSpoken
                problem: root.draft.startProblem
                onClicked: date.choose(true)
            }

            DraftField {
                width: parent.width
                label: root.draft.endLabel
                value: root.draft.endText
                spoken: root.draft.endSpoken
                problem: root.draft.endProblem
                onClicked: date.choose(false)
            }

            DraftField {
                width: parent.width
                editable: false
                label: root.draft.lengthLabel
                value: root.draft.length
                spoken: root.draft.lengthSpoken
            }
        }
    }

    CautionLine {
        visible: text !== ""
        width: parent.width
        text: root.draft.overlap
    }

    GoalChoice {
        width: parent.width
        goal: root.goal
        onAccepted: root.draft.save()
    }

    Column {
        width: parent.width
        spacing: 8

        StyledText {
            width: parent.width
            text: root.draft.noteLabel
            style: Theme.labelText
            color: Theme.inkSecondary
        }

        TextArea {
            id: note
            width: parent.width
            height: Math.max(Theme.fieldSize, Math.min(wholeHeight, 132))
            hasProblem: root.draft.noteProblem !== ""
            accessibleName: root.draft.noteLabel
            onEdited: text => root.draft.setNote(text)
        }

        StyledText {
            visible: text !== ""
            width: parent.width
            text: root.draft.noteProblem
            style: Theme.captionText
            color: Theme.danger
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
    }

    Column {
        width: parent.width
        spacing: 8

        StyledText {
            width: parent.width
            text: root.draft.zonesLabel
            style: Theme.labelText
            color: Theme.inkSecondary
        }

        ZoneStrip {
            width: parent.width
            height: 6
            seconds: root.draft.seconds
            spanSeconds: Math.max(1, root.draft.seconds)
            fills: Theme.zoneFills
            mirrored: LayoutMirroring.enabled
        }

        ZoneTimes {
            width: parent.width
            zones: root.draft.zones
        }
    }

    StyledText {
        visible: text !== ""
        width: parent.width
        text: root.draft.failure
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
            enabled: root.goal.canSave
            text: root.draft.saveLabel
            onClicked: root.draft.save()
        }

        ActionButton {
            width: parent.width
            visible: !root.draft.isNew
            leastHeight: Theme.sheetButtonSize
            kind: ActionButton.Destructive
            iconName: "trash"
            text: root.draft.removeLabel
            onClicked: root.draft.remove()
        }

        ActionButton {
            width: parent.width
            visible: text !== ""
            leastHeight: Theme.sheetButtonSize
            kind: ActionButton.Plain
            text: root.draft.severalLabel
            onClicked: App.present("severalFasts")
        }
    }

    DateTimeSheet {
        id: date

        property bool isStart: true

        function choose(start: bool) {
            isStart = start;
            title = start ? root.draft.startLabel : root.draft.endLabel;
            instant = start ? root.draft.start : root.draft.end;
            open();
        }

        onChosen: instant => isStart ? root.draft.setStart(instant) : root.draft.setEnd(instant)
    }
}
