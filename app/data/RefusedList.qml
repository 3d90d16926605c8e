// SPDX-License-Identifier: MIT
// Rows that are not taken in: the first of them, and how many others there are.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Column {
    id: root

    required property string title
    required property RecordRows rows
    required property string more

    visible: rows.count > 0
    spacing: 8

    StyledText {
        width: parent.width
        text: root.title
        style: Theme.labelText
        color: Theme.inkSecondary
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    SheetList {
        Repeater {
            model: root.rows
            delegate: RefusedLine {}
        }
    }

    StyledText {
        visible: text !== ""
        width: parent.width
        text: root.more
        style: Theme.labelText
        color: Theme.inkSecondary
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
