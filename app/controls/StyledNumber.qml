// SPDX-License-Identifier: MIT
// A number with units in one of the theme's number styles.
import QtQuick
import Mivo

NumberText {
    id: root

    property TextStyle style: Theme.numberText

    font.family: style.family
    font.pixelSize: style.size * Theme.textScale
    font.weight: style.weight
    font.letterSpacing: style.spacing * Theme.textScale
    unitSize: style.unit * Theme.textScale
    lineHeight: style.line * Theme.textScale
    color: Theme.ink
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
