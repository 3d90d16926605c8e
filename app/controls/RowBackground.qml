// SPDX-License-Identifier: MIT
// What lies behind a row of a ListGroup: its part of the card, and the line above it.
import QtQuick
import Mivo

RowSurface {
    id: root

    property bool isFirst: false
    property bool isLast: false
    property bool pressed: false

    roundTop: isFirst
    roundBottom: isLast
    color: pressed ? Theme.cardPressed : Theme.card

    Rectangle {
        visible: !root.isFirst
        anchors.right: parent.right
        width: parent.width - Theme.cardPadding
        height: Theme.hairlineSize
        color: Theme.hairline
    }
}
