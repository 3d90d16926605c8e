// SPDX-License-Identifier: MIT
// Text that grows with the user's text size as far as its longest word has room in a line.
import QtQuick
import Mivo

StyledText {
    id: root

    required property real room
    property real mostScale: 2

    scaleLimit: Math.min(mostScale, Math.max(1, room / longest.advanceWidth))

    TextMetrics {
        id: longest
        text: root.text.split(" ").reduce((one, other) => other.length > one.length ? other : one)
        font.family: root.style.family
        font.pixelSize: root.style.size
        font.weight: root.style.weight
    }
}
