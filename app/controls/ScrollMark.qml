// SPDX-License-Identifier: MIT
// How far a view is scrolled. The pointer can drag it; nothing of it is seen while the view rests.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.ScrollBar {
    id: root

    minimumSize: 0.06
    padding: 3
    visible: size < 1
    Accessible.ignored: true

    contentItem: Rectangle {
        implicitWidth: 6
        radius: width / 2
        color: Theme.controlBorder
        opacity: root.active ? 0.8 : 0

        Behavior on opacity {
            NumberAnimation { duration: Theme.selectDuration }
        }
    }
}
