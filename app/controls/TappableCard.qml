// SPDX-License-Identifier: MIT
// A card that is one button as a whole.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    focusPolicy: Qt.StrongFocus
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    padding: Theme.cardPadding
    Accessible.role: Accessible.Button
    Accessible.name: text

    background: Rectangle {
        color: root.down ? Theme.cardPressed : Theme.card
        radius: Theme.cardRadius

        FocusRing {
            target: root
            targetRadius: Theme.cardRadius
        }
    }
}
