// SPDX-License-Identifier: MIT
// A line chart in the colours of weight and fasting.
import QtQuick
import Mivo

LineChart {
    fills: [Theme.weight.fill, Theme.fasting.fill]
    textColors: [Theme.weight.text, Theme.fasting.text]
    inverseFills: [Theme.weightOnInverse, Theme.fastingOnInverse]
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
}
