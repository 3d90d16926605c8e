// SPDX-License-Identifier: MIT
// Takes files that are dropped on the window, and says so while they are held over it.
import QtQuick
import Mivo

DropArea {
    id: root

    enabled: App.importing.takesFiles
    onEntered: drag => drag.accepted = drag.hasUrls
    onDropped: drop => {
        App.importing.choose(drop.urls);
        drop.accept(Qt.CopyAction);
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: 8
        visible: root.containsDrag
        radius: Theme.cardRadius
        color: Theme.card
        opacity: 0.94
        border.width: 2
        border.color: Theme.ink

        StyledText {
            anchors.centerIn: parent
            width: parent.width - 2 * Theme.pageMargin
            horizontalAlignment: Text.AlignHCenter
            text: App.importing.dropLabel
            style: Theme.headlineText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
