// SPDX-License-Identifier: MIT
// The way back and the title of a page that was pushed over another.
import QtQuick
import Mivo

FocusScope {
    id: root

    property string title

    height: Math.max(Theme.pushBarSize, titleText.height + 8)

    IconButton {
        anchors.left: parent.left
        anchors.leftMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        iconName: "back"
        turns: true
        focus: true
        text: Words.back
        onClicked: App.back()
    }

    MeasuredText {
        id: titleText
        anchors.centerIn: parent
        width: Math.min(lineWidth, parent.width - 2 * (Theme.touchSize + 12))
        horizontalAlignment: Text.AlignHCenter
        text: root.title
        style: Theme.headlineText
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
