// SPDX-License-Identifier: MIT
// The backups that there are, and a new one.
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
        x: Theme.cardPadding
        width: parent.width - 2 * x
        text: App.backups.note
        style: Theme.labelText
        color: Theme.inkSecondary
        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
