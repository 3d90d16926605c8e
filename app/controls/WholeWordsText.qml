// SPDX-License-Identifier: MIT
// Text that grows with the user's text size as far as its longest word has room in a line.
import QtQuick
import Mivo

MeasuredText {
    id: root

    required property real room
    property real mostScale: 2

    /// Sizes are whole pixels: one that is rounded up may no longer fit.
    readonly property int mostSize: Math.floor(style.size * room / longest.advanceWidth)

    scaleLimit: Math.min(mostScale, Math.max(1, mostSize / style.size))

    TextMetrics {
        id: longest
        text: root.text.split(" ").reduce((one, other) => other.length > one.length ? other : one)
        font.family: root.style.family
        font.pixelSize: root.style.size
        font.weight: root.style.weight
    }
}
