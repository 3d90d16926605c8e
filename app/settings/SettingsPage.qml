// SPDX-License-Identifier: MIT
// What the user can choose. What belongs to the statistics, and what the app is, have a page of their own.
import QtQuick
import QtQuick.Window
import Mivo

FocusScope {
    id: root

    readonly property bool wide: Window.width >= Theme.sideBarWidth
    readonly property real margin: wide ? Theme.pageMarginWide : Theme.pageMargin

    /// Opens one of the sheets by its name, in place of what is open; none for an empty name.
    function present(name: string) {
        for (const sheet of [goal, weightUnit, firstWeekday, language, appearance])
            sheet.close();
        switch (name) {
        case "defaultGoal":
            return goal.open();
        case "weightUnit":
            return weightUnit.open();
        case "firstWeekday":
            return firstWeekday.open();
        case "language":
            return language.open();
        case "appearance":
            return appearance.open();
        }
    }

    Flickable {
        id: flick
        anchors.fill: parent
        contentWidth: width
        contentHeight: column.height + root.margin
        boundsBehavior: Flickable.DragOverBounds

        Column {
            id: column
            x: (flick.width - width) / 2
            width: Math.min(flick.width - 2 * root.margin, 720)

            PageTitle {
                width: parent.width
                wide: root.wide
                text: Texts.text("Settings")
            }

            Column {
                width: parent.width
                spacing: Theme.sectionTop

                ListGroup {
                    width: parent.width

                    ValueRow {
                        focus: true
                        iconName: "statistics"
                        text: Texts.text("Statistics and Fasting Zones")
                        onClicked: App.settings.page = "cards"
                    }
                }

                ListGroup {
                    width: parent.width
                    title: Texts.text("General")
                    note: App.settings.languageWaits ? Texts.text("The language changes when you open Mivo the next time.") : ""

                    ValueRow {
                        iconName: "fasting"
                        text: Texts.text("Goal")
                        value: App.settings.goal
                        onClicked: goal.open()
                    }

                    ValueRow {
                        iconName: "scale"
                        text: Texts.text("Weight unit")
                        value: App.settings.weightUnitText
                        onClicked: weightUnit.open()
                    }

                    ValueRow {
                        iconName: "calendar"
                        text: Texts.text("First weekday")
                        value: App.settings.firstWeekdayText
                        valueCapitalization: Font.Capitalize
                        onClicked: firstWeekday.open()
                    }

                    ValueRow {
                        iconName: "globe"
                        text: Texts.text("Language")
                        value: language.options[App.settings.language]
                        onClicked: language.open()
                    }

                    ValueRow {
                        iconName: "sun"
                        text: Texts.text("Appearance")
                        value: appearance.options[Appearance.mode]
                        onClicked: appearance.open()
                    }

                    TextSizeRow {}

                    SwitchRow {
                        iconName: "motion"
                        text: Texts.text("Reduced motion")
                        on: Appearance.reducedMotion
                        onClicked: Appearance.reducedMotion = !Appearance.reducedMotion
                    }
                }

                ListGroup {
                    width: parent.width

                    ValueRow {
                        iconName: "info"
                        text: Texts.text("About Mivo")
                        value: App.settings.version
                        onClicked: App.settings.page = "about"
                    }
                }
            }
        }
    }

    FocusFollower { view: flick }

    FastGoalSheet {
        id: goal
        goal: App.settings.goalSeconds
        onChosen: seconds => App.settings.goalSeconds = seconds
    }

    ChoiceSheet {
        id: weightUnit
        title: Texts.text("Weight unit")
        options: App.settings.weightUnits
        current: App.settings.weightUnit
        onChosen: index => App.settings.weightUnit = index
    }

    ChoiceSheet {
        id: firstWeekday
        title: Texts.text("First weekday")
        options: App.settings.firstWeekdays
        capitalization: Font.Capitalize
        current: App.settings.firstWeekday
        onChosen: index => App.settings.firstWeekday = index
    }

    ChoiceSheet {
        id: language
        title: Texts.text("Language")
        options: App.settings.languages
        current: App.settings.language
        note: Texts.text("The language changes when you open Mivo the next time.")
        onChosen: index => App.settings.language = index
    }

    ChoiceSheet {
        id: appearance
        title: Texts.text("Appearance")
        options: [Texts.text("System"), Texts.text("Light"), Texts.text("Dark")]
        current: Appearance.mode
        onChosen: index => Appearance.mode = index
    }
}
