// SPDX-License-Identifier: MIT
// One file: what it would bring, and what else there is to say of it.
import QtQuick
import Mivo

Item {
    id: root

    required property int index
    required property string name
    required property string summary
    required property string notes
    required property string spoken

    width: parent ? parent.width : 0
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

        StyledText {
            width: parent.width
            text: root.name
            style: Theme.bodyStrongText
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        }

        StyledText {
            width: parent.width
            text: root.summary
        }

        StyledText {
            visible: text !== ""
            width: parent.width
            text: root.notes
            style: Theme.labelText
            color: Theme.inkSecondary
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        }
    }
}
