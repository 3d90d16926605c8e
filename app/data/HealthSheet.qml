// SPDX-License-Identifier: MIT
// The file that weights are taken from: which it is, how far it is read, another one or none.
import QtQuick
import Mivo

Sheet {
    id: root

    readonly property HealthModel page: App.health

    title: page.title
    spacing: 16

    StyledText {
        width: parent.width
        text: root.page.text
        color: Theme.inkSecondary
        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    ProgressTrack {
        visible: root.page.progress >= 0
        width: parent.width
        fraction: root.page.progress
        Accessible.role: Accessible.ProgressBar
        Accessible.name: root.page.title
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
            text: root.page.chooseLabel
            onClicked: root.page.chooseFile()
        }

        ActionButton {
            visible: text !== ""
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            kind: ActionButton.Secondary
            text: root.page.unlinkLabel
            onClicked: root.page.unlink()
        }

        ActionButton {
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            kind: ActionButton.Plain
            text: root.page.closeLabel
            onClicked: root.close()
        }
    }
}
