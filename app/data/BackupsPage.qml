// SPDX-License-Identifier: MIT
// The backups that there are, a new one, and where they go.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

PushedPage {
    id: root

    title: App.backups.title
    spacing: Theme.sectionTop

    ActionButton {
        width: parent.width
        leastHeight: Theme.sheetButtonSize
        enabled: !App.backups.isBusy
        text: App.backups.button
        onClicked: App.backups.backUp()
    }

    ListGroup {
        visible: App.backups.rows.count > 0
        width: parent.width
        title: App.backups.listTitle

        Repeater {
            model: App.backups.rows

            delegate: ValueRow {
                required property int index
                required property string date
                required property string counts
                required property bool isReadable

                iconName: "safe"
                text: date
                value: counts
                enabled: isReadable
                onClicked: App.backups.choose(index)
            }
        }
    }

    StyledText {
        visible: text !== ""
        x: Theme.cardPadding
        width: parent.width - 2 * x
        text: App.backups.fault
        style: Theme.labelText
        color: Theme.danger
        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    ListGroup {
        visible: App.backups.folder !== ""
        width: parent.width
        note: App.backups.note

        FactRow {
            title: App.backups.folderLabel
            value: App.backups.folder
        }

        ValueRow {
            visible: text !== ""
            enabled: !App.backups.isBusy
            text: App.backups.changeLabel
            onClicked: chooser.open()
        }

        ValueRow {
            visible: text !== ""
            enabled: !App.backups.isBusy
            text: App.backups.usualLabel
            onClicked: App.backups.useUsualFolder()
        }
    }

    FileChooser {
        id: chooser
        title: App.backups.changeLabel
        takesFolder: true
        onChosen: App.backups.chooseFolder(files[0])
    }
}
