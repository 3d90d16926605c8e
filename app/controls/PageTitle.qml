// SPDX-License-Identifier: MIT
// The name of a tab above its page.
import QtQuick
import Mivo

Item {
    id: root

    property string text
    property bool wide: false

    implicitHeight: Math.max(Theme.titleBarSize, title.height + 24)

    StyledText {
        id: title
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        style: root.wide ? Theme.titleWideText : Theme.titleText
        scaleLimit: Math.max(1, Math.min(2, root.width / metrics.advanceWidth)) // so that no word is broken
        Accessible.role: Accessible.Heading
        Accessible.name: text

        TextMetrics {
            id: metrics
            text: title.text
            font.family: title.style.family
            font.pixelSize: title.style.size
            font.weight: title.style.weight
        }
    }
}
