// SPDX-License-Identifier: MIT
// A number with units in one of the theme's number styles.
import QtQuick
import Mivo

NumberText {
    id: root

    property TextStyle style: Theme.numberText
    /// Below the user's text scale where a number stops growing earlier.
    property real scaleLimit: 2

    readonly property real usedScale: Math.min(Theme.textScale, scaleLimit)

    font.family: style.family
    font.pixelSize: style.size * root.usedScale
    font.weight: style.weight
    font.kerning: false // it would close "7,1" up, so that the comma is not seen
    font.letterSpacing: style.spacing * root.usedScale
    unitSize: style.unit * root.usedScale
    lineHeight: style.line * root.usedScale
    color: Theme.ink
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
