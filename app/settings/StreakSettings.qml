// SPDX-License-Identifier: MIT
// What counts as a streak.
import QtQuick
import Mivo

ListGroup {
    id: root

    readonly property CardSettingsModel page: App.settings.cards

    title: page.streaksTitle
    note: page.streaksNote

    ControlRow {
        id: counted
        text: root.page.counted.title
        controlWidth: 168 * Theme.textScale

        SegmentedControl {
            width: parent.width
            accessibleName: counted.text
            options: root.page.counted.options
            currentIndex: root.page.counted.chosen
            onChosen: index => root.page.count(index)
        }
    }

    SwitchRow {
        text: root.page.countsBelowGoalLabel
        on: root.page.countsBelowGoal
        onClicked: root.page.toggleBelowGoal()
    }

    ControlRow {
        id: longest
        text: root.page.longestBreak.title
        controlWidth: stepper.wantedWidth

        Stepper {
            id: stepper
            width: parent.width
            accessibleName: longest.text
            from: root.page.longestBreak.least
            to: root.page.longestBreak.most
            stepSize: root.page.longestBreak.step
            value: root.page.longestBreak.value
            textFromValue: value => App.settings.hoursText(value)
            onValueModified: root.page.changeLongestBreak(value)
        }
    }
}
