// SPDX-License-Identifier: MIT
// Day bars in the colours of a meaning.
import QtQuick
import Mivo

DayBars {
    id: root

    property Accent accent: Theme.fasting

    barTop: accent.barTop
    barFill: accent.fill
    barDim: accent.barDim
    ink: Theme.ink
    inkSecondary: Theme.inkSecondary
    inkTertiary: Theme.inkTertiary
    gridline: Theme.gridline
    gridlineStrong: Theme.gridlineStrong
    card: Theme.card
    inverse: Theme.inverse
    textOnInverse: Theme.textOnInverse
    textOnInverseSecondary: Theme.textOnInverseSecondary
    axisFont: Theme.fontOf(Theme.axisText)
    axisStrongFont: Theme.fontOf(Theme.axisStrongText)
    captionFont: Theme.fontOf(Theme.captionText)
    valueFont: Theme.fontOf(Theme.valueText)
    roomAtTheSides: Theme.cardPadding
}
