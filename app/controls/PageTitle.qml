// SPDX-License-Identifier: MIT
// The name of a tab above its page.
import QtQuick
import Mivo

Item {
    id: root

    property string text
    property bool wide: false

    implicitHeight: Math.max(Theme.titleBarSize, title.height + 24)

    WholeWordsText {
        id: title
        room: root.width
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        style: root.wide ? Theme.titleWideText : Theme.titleText
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
