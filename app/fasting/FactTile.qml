// SPDX-License-Identifier: MIT
// A label over a value on a card.
import QtQuick
import Mivo

Card {
    id: root

    property string label
    property string value

    spacing: 2

    StyledText {
        width: parent.width
        text: root.label
        style: Theme.labelText
        color: Theme.inkSecondary
    }

    StyledText {
        width: parent.width
        text: root.value
        style: Theme.bodyStrongText
    }
}
