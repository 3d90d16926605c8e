// SPDX-License-Identifier: MIT
// What counts as a streak.
import QtQuick
import Mivo

ListGroup {
    id: root

    title: Texts.text("Streaks")
    note: Texts.text("A streak goes on while the next fast starts within this time.")

    ControlRow {
        id: counted
        text: Texts.text("Count")
        controlWidth: 168 * Theme.textScale

        SegmentedControl {
            width: parent.width
            accessibleName: counted.text
            options: [Texts.text("Days"), Texts.text("Fasts")]
            currentIndex: App.settings.countsFasts ? 1 : 0
            onChosen: index => App.settings.countsFasts = index === 1
        }
    }

    SwitchRow {
        text: Texts.text("Count fasts below their goal")
        on: App.settings.countsBelowGoal
        onClicked: App.settings.countsBelowGoal = !on
    }

    ControlRow {
        id: longest
        text: Texts.text("Longest break")
        controlWidth: stepper.wantedWidth

        Stepper {
            id: stepper
            width: parent.width
            accessibleName: longest.text
            from: App.settings.leastBreakHours
            to: App.settings.mostBreakHours
            value: App.settings.maxBreakHours
            textFromValue: value => App.settings.hoursText(value)
            onValueModified: App.settings.maxBreakHours = value
        }
    }
}
