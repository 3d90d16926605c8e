// SPDX-License-Identifier: MIT
// A page that slides in over another one from the trailing side. Made when it opens, gone when it has slid out.
import QtQuick
import Mivo

FocusScope {
    id: root

    property bool open: false
    property alias page: loader.sourceComponent
    property alias source: loader.source
    /// What the page made, as long as any of it can be seen.
    readonly property Item shown: loader.item as Item

    readonly property bool mirroredNow: LayoutMirroring.enabled
    property real progress: open ? 1 : 0
    /// Nothing of what lies below can be seen.
    readonly property bool covers: progress === 1

    visible: progress > 0
    enabled: open
    /// What had the keys before it opened gets them back.
    property Item before: null

    onOpenChanged: {
        if (open) {
            before = Window.activeFocusItem;
            forceActiveFocus();
        } else if (before) {
            Qt.callLater(before.forceActiveFocus);
        }
    }

    Behavior on progress {
        NumberAnimation { duration: Theme.pushDuration; easing.type: Easing.OutCubic }
    }

    Rectangle {
        width: parent.width
        height: parent.height
        x: (root.mirroredNow ? -1 : 1) * (1 - root.progress) * width
        color: Theme.background

        // Nothing below it is reached.
        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            onWheel: wheel => wheel.accepted = true
        }

        Loader {
            id: loader
            anchors.fill: parent
            active: root.visible
            focus: true
            // The keys are the page's from its first moment on: Escape goes back.
            onLoaded: (item as Item).forceActiveFocus()
        }
    }
}
