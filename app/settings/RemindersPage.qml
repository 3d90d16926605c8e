// SPDX-License-Identifier: MIT
// What the user wants to be told of while they do not look.
import QtQuick
import Mivo

PushedPage {
    id: root

    readonly property RemindersModel page: App.settings.reminders

    title: page.title

    ListGroup {
        width: parent.width
        note: root.page.note

        SwitchRow {
            text: root.page.goalLabel
            on: root.page.tellsGoal
            onClicked: root.page.toggleGoal()
        }

        SwitchRow {
            text: root.page.eatingWindowLabel
            on: root.page.tellsEatingWindow
            onClicked: root.page.toggleEatingWindow()
        }

        ValueRow {
            text: root.page.eatingWindow.title
            value: root.page.eatingWindow.value
            onClicked: App.present("eatingWindow")
        }
    }
}
