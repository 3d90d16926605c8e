// SPDX-License-Identifier: MIT
// What the user may want to look at, behind the triangle.
import QtQuick
import Mivo

Item {
    id: root

    property string text

    implicitHeight: sentence.height
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Icon {
        id: icon
        anchors.left: parent.left
        y: (Theme.labelText.line * Theme.textScale - height) / 2
        width: 16
        height: 16
        name: "warning"
        color: Theme.caution
    }

    StyledText {
        id: sentence
        anchors.left: icon.right
        anchors.leftMargin: 8
        anchors.right: parent.right
        text: root.text
        style: Theme.labelText
        color: Theme.caution
        Accessible.ignored: true
    }
}
