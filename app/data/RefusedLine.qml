// SPDX-License-Identifier: MIT
// A row of a file that is not taken in: where it is, and why.
import QtQuick
import Mivo

Item {
    id: root

    required property int index
    required property string place
    required property string reason
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
        topPadding: 10
        bottomPadding: 10

        StyledText {
            width: parent.width
            text: root.place
            style: Theme.labelText
            color: Theme.inkSecondary
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        }

        StyledText {
            width: parent.width
            text: root.reason
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        }
    }
}
