// SPDX-License-Identifier: MIT
// Edits a fast of the history, or adds one.
import QtQuick
import Mivo

Sheet {
    id: root

    readonly property FastDraftModel draft: App.fasting.draft
    readonly property GoalChoiceModel goal: App.fasting.goalChoice()

    title: draft.isNew ? Texts.text("Add fast") : Texts.text("Edit fast")
    spacing: 16

    onAboutToShow: goal.begin(draft.goalSeconds)
    onClosed: draft.dismiss()

    Connections {
        target: root.draft

        function onEnded() {
            root.close();
        }

        function onChanged() {
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
                label: Texts.text("Start")
                value: root.draft.startText
                problem: root.draft.startProblem
                onClicked: date.choose(true)
            }

            DraftField {
                width: parent.width
                label: Texts.text("End")
                value: root.draft.endText
                problem: root.draft.endProblem
                onClicked: date.choose(false)
            }

            DraftField {
                width: parent.width
                editable: false
                label: Texts.text("Length")
                value: root.draft.length
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
    }

    Column {
        width: parent.width
        spacing: 8

        StyledText {
            width: parent.width
            text: Texts.text("Zones")
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
            text: Texts.text("Save")
            onClicked: root.draft.save()
        }

        ActionButton {
            width: parent.width
            visible: !root.draft.isNew
            leastHeight: Theme.sheetButtonSize
            kind: ActionButton.Destructive
            iconName: "trash"
            text: Texts.text("Delete fast")
            onClicked: {
                root.draft.remove();
                root.close();
            }
        }
    }

    DateTimeSheet {
        id: date

        property bool isStart: true

        function choose(start: bool) {
            isStart = start;
            title = start ? Texts.text("Start") : Texts.text("End");
            instant = start ? root.draft.start : root.draft.end;
            open();
        }

        onChosen: instant => isStart ? root.draft.setStart(instant) : root.draft.setEnd(instant)
    }
}
