// SPDX-License-Identifier: MIT
// One fast of the repair: as it is, struck through, and as it would be.
import QtQuick
import Mivo

Item {
    id: root

    required property int index
    required property string date
    required property string kind
    required property string before
    required property string after
    required property string spoken

    implicitHeight: texts.height
    Accessible.role: Accessible.StaticText
    Accessible.name: spoken

    Rectangle {
        visible: root.index > 0
        x: 12
        width: parent.width - 12
        height: Theme.hairlineSize
        color: Theme.hairline
    }

    Column {
        id: texts
        x: 12
        width: parent.width - 24
        topPadding: 12
        bottomPadding: 12

        CardHeadLine {
            width: parent.width
            title: root.date
            detail: root.kind
        }

        StyledText {
            width: parent.width
            text: root.before
            style: Theme.labelText
            color: Theme.inkSecondary
            font.strikeout: true
        }

        StyledText {
            visible: text !== ""
            width: parent.width
            text: root.after
        }
    }
}
