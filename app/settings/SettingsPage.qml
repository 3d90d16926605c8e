// SPDX-License-Identifier: MIT
// What the user can choose. What belongs to the statistics, and what the app is, have a page of their own.
import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Mivo

FocusScope {
    id: root
    focus: true

    readonly property bool wide: Window.width >= Theme.sideBarWidth
    readonly property real margin: wide ? Theme.pageMarginWide : Theme.pageMargin

    Keys.onPressed: event => scrollKeys.pressed(event)

    ScrollKeys {
        id: scrollKeys
        view: flick
    }

    /// Stays where it is in the window, under the pointer that changes how tall the rows above it are.
    property Item held: null
    property real heldMiddle

    function middleOf(item: Item): real {
        return item.mapToItem(root, 0, item.height / 2).y;
    }

    Flickable {
        id: flick
        anchors.fill: parent
        contentWidth: width
        contentHeight: column.height + root.margin
        boundsBehavior: Flickable.DragOverBounds
        T.ScrollBar.vertical: ScrollMark {}
        onMovementStarted: root.held = null
        onContentHeightChanged: {
            if (root.held)
                contentY = Math.max(0, contentY + root.middleOf(root.held) - root.heldMiddle);
        }

        Column {
            id: column
            x: (flick.width - width) / 2
            width: Math.min(flick.width - 2 * root.margin, 720)

            PageTitle {
                width: parent.width
                wide: root.wide
                text: App.settings.title
            }

            Column {
                width: parent.width
                spacing: Theme.sectionTop

                ListGroup {
                    width: parent.width

                    ValueRow {
                        focus: true
                        iconName: "statistics"
                        text: App.settings.cardsLabel
                        onClicked: App.present("cards")
                    }

                    ValueRow {
                        iconName: "bell"
                        text: App.settings.reminders.title
                        onClicked: App.present("reminders")
                    }
                }

                ListGroup {
                    width: parent.width
                    title: App.settings.general

                    ValueRow {
                        iconName: "fasting"
                        text: App.settings.goalLabel
                        value: App.settings.goal
                        onClicked: App.present("defaultGoal")
                    }

                    ValueRow {
                        iconName: "scale"
                        text: App.settings.weightUnit.title
                        value: App.settings.weightUnit.value
                        onClicked: App.present("weightUnit")
                    }

                    ValueRow {
                        iconName: "calendar"
                        text: App.settings.firstWeekday.title
                        value: App.settings.firstWeekday.value
                        valueCapitalization: Font.Capitalize
                        onClicked: App.present("firstWeekday")
                    }

                    ValueRow {
                        iconName: "globe"
                        text: App.settings.language.title
                        value: App.settings.language.value
                        onClicked: App.present("language")
                    }

                    ValueRow {
                        iconName: "sun"
                        text: App.settings.appearance.title
                        value: App.settings.appearance.value
                        onClicked: App.present("appearance")
                    }

                    TextSizeRow {
                        id: textSize
                        onAboutToChange: {
                            root.held = textSize;
                            root.heldMiddle = root.middleOf(textSize);
                        }
                    }

                    SwitchRow {
                        iconName: "motion"
                        text: App.settings.reducedMotionLabel
                        on: App.settings.reducesMotion
                        onClicked: App.settings.toggleReducedMotion()
                    }
                }

                ListGroup {
                    width: parent.width
                    title: App.settings.data
                    note: App.settings.dataNote

                    ValueRow {
                        iconName: "inbox"
                        text: App.settings.importLabel
                        onClicked: App.present("import")
                    }

                    ValueRow {
                        visible: text !== ""
                        iconName: "health"
                        text: App.settings.healthLabel
                        value: App.settings.linkedHealth
                        onClicked: App.present("health")
                    }

                    ValueRow {
                        iconName: "outbox"
                        text: App.settings.exportLabel
                        onClicked: App.present("export")
                    }

                    ValueRow {
                        iconName: "safe"
                        text: App.settings.backupsLabel
                        value: App.settings.newestBackup
                        onClicked: App.present("backups")
                    }
                }

                ListGroup {
                    width: parent.width

                    ValueRow {
                        iconName: "info"
                        text: App.settings.aboutLabel
                        value: App.settings.version
                        onClicked: App.present("about")
                    }
                }
            }
        }
    }

    FocusFollower { view: flick }

    LateSheet {
        screen: "defaultGoal"
        sourceComponent: FastGoalSheet {
            goal: App.settings.goalSeconds
            onChosen: seconds => App.settings.chooseGoal(seconds)
        }
    }

    LateSheet {
        screen: "eatingWindow"
        sourceComponent: ChoiceSheet {
            choice: App.settings.reminders.eatingWindow
            onChosen: index => App.settings.reminders.chooseEatingWindow(index)
        }
    }

    LateSheet {
        screen: "weightUnit"
        sourceComponent: ChoiceSheet {
            choice: App.settings.weightUnit
            onChosen: index => App.settings.chooseWeightUnit(index)
        }
    }

    LateSheet {
        screen: "firstWeekday"
        sourceComponent: ChoiceSheet {
            choice: App.settings.firstWeekday
            capitalization: Font.Capitalize
            onChosen: index => App.settings.chooseFirstWeekday(index)
        }
    }

    LateSheet {
        screen: "language"
        sourceComponent: ChoiceSheet {
            choice: App.settings.language
            onChosen: index => App.settings.chooseLanguage(index)
        }
    }

    LateSheet {
        screen: "appearance"
        sourceComponent: ChoiceSheet {
            choice: App.settings.appearance
            onChosen: index => App.settings.chooseAppearance(index)
        }
    }
}
