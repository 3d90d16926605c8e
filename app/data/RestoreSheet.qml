// SPDX-License-Identifier: MIT
// Going back to a backup, for the user to agree to.
import QtQuick
import Mivo

Sheet {
    id: root

    readonly property RestoreSheetRecord page: App.backups.chosen

    title: page.title
    spacing: 16

    StyledText {
        width: parent.width
        text: root.page.text
        color: Theme.inkSecondary
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Column {
        width: parent.width

        TableLine {
            width: parent.width
            date: root.page.presentLabel
            value: root.page.present
        }

        TableLine {
            width: parent.width
            date: root.page.backupLabel
            value: root.page.backup
        }
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

    Column {
        width: parent.width
        spacing: 4

        ActionButton {
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            enabled: !root.page.isBusy
            text: root.page.button
            onClicked: App.backups.restore()
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
