// SPDX-License-Identifier: MIT
// Text in one of the theme's styles. Wraps; only notes are ever elided.
import QtQuick

Text {
    id: root

    property TextStyle style: Theme.bodyText
    /// Below the user's text scale where a style stops growing earlier.
    property real scaleLimit: 2

    readonly property real usedScale: Math.min(Theme.textScale, scaleLimit)

    color: Theme.ink
    font.family: style.family
    font.pixelSize: style.size * usedScale
    font.weight: style.weight
    font.letterSpacing: style.spacing * usedScale
    lineHeightMode: Text.FixedHeight
    lineHeight: style.line * usedScale
    horizontalAlignment: Text.AlignLeft
    wrapMode: Text.Wrap
    textFormat: Text.PlainText
}
