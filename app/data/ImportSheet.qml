// SPDX-License-Identifier: MIT
// Bringing files along: choosing them, how far they are read, what they ask, what they would bring.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Sheet {
    id: root

    readonly property ImportModel page: App.importing

    title: page.title
    spacing: 16

    FileChooser {
        id: chooser
        title: root.title
        takesMany: true
        onChosen: root.page.choose(files)
    }

    StyledText {
        visible: text !== ""
        width: parent.width
        text: root.page.text
        color: Theme.inkSecondary
        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    StyledText {
        visible: text !== ""
        width: parent.width
        text: root.page.fault
        color: Theme.danger
        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    ProgressTrack {
        visible: root.page.progress >= 0
        width: parent.width
        fraction: root.page.progress
        Accessible.role: Accessible.ProgressBar
        Accessible.name: root.page.text
    }

    Column {
        visible: answers.count > 0
        width: parent.width
        spacing: 8

        Repeater {
            id: answers
            model: root.page.answers

            delegate: ActionButton {
                required property int index
                required property string modelData

                width: parent.width
                leastHeight: Theme.sheetButtonSize
                kind: ActionButton.Secondary
                text: modelData
                onClicked: root.page.answer(index)
            }
        }
    }

    SheetList {
        visible: root.page.files.count > 0

        Repeater {
            model: root.page.files
            delegate: ImportFileLine {}
        }
    }

    RefusedList {
        width: parent.width
        title: root.page.refusedTitle
        rows: root.page.refused
        more: root.page.moreRefused
    }

    Column {
        width: parent.width
        spacing: 4

        ActionButton {
            visible: text !== ""
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            enabled: !root.page.isBusy
            text: root.page.button
            onClicked: root.page.confirm()
        }

        ActionButton {
            visible: text !== ""
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            text: root.page.chooseLabel
            onClicked: chooser.open()
        }

        ActionButton {
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            kind: ActionButton.Plain
            text: root.page.cancelLabel
            onClicked: root.close()
        }
    }
}
