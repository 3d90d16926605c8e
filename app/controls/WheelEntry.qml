// SPDX-License-Identifier: MIT
import QtQuick
import Mivo

StyledText {
    id: root

    /// How far it is from the middle, in entries.
    property real distance: 0

    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    scaleLimit: 1.3
    style: root.distance < 0.5 ? Theme.bodyStrongText : Theme.bodyText
    color: root.distance < 0.5 ? Theme.ink : Theme.inkSecondary
    opacity: 1 - Math.min(0.6, root.distance / 5)
    wrapMode: Text.NoWrap
}
