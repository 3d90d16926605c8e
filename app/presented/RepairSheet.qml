// SPDX-License-Identifier: MIT
// What would become of fasts that overlap, for the user to agree to.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Sheet {
    id: root

    title: App.repair.title
    spacing: 16

    StyledText {
        width: parent.width
        text: App.repair.summary
        color: Theme.inkSecondary
    }

    Rectangle {
        width: parent.width
        height: list.height
        radius: Theme.controlRadius
        color: Theme.field

        Column {
            id: list
            width: parent.width

            Repeater {
                model: App.repair.rows

                delegate: RepairLine { width: list.width }
            }
        }
    }

    Column {
        width: parent.width
        spacing: 4

        ActionButton {
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            text: App.repair.button
            onClicked: App.repair.confirm()
        }

        ActionButton {
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            kind: ActionButton.Plain
            text: App.repair.cancelLabel
            onClicked: root.close()
        }
    }
}
