// SPDX-License-Identifier: MIT
// Everything is switched off.
import QtQuick
import Mivo

Card {
    id: root

    required property NoticeCardRecord card

    signal settingsTapped

    spacing: 12

    StyledText {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: root.card.text
        color: Theme.inkSecondary
    }

    ActionButton {
        width: parent.width
        kind: ActionButton.Secondary
        text: root.card.button
        onClicked: root.settingsTapped()
    }
}
