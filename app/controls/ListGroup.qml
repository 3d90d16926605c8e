// SPDX-License-Identifier: MIT
// Rows in one card, with a name above them and a note below.
import QtQuick
import Mivo

Column {
    id: root

    property string title
    property string note
    default property alias rows: column.data

    spacing: 8

    StyledText {
        visible: root.title !== ""
        x: Theme.cardPadding
        width: parent.width - 2 * x
        text: root.title
        style: Theme.labelText
        color: Theme.inkSecondary
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Card {
        width: parent.width
        padding: 0

        Column {
            id: column
            width: parent.width
        }
    }

    StyledText {
        visible: root.note !== ""
        x: Theme.cardPadding
        width: parent.width - 2 * x
        text: root.note
        style: Theme.labelText
        color: Theme.inkSecondary
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
