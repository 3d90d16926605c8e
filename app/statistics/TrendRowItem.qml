// SPDX-License-Identifier: MIT
// One zone of the trends: a sentence and two capsules.
import QtQuick
import Mivo

Column {
    id: root

    required property trendRow modelData
    readonly property real labelWidth: Math.max(Theme.capsuleLabelSize, thisCapsule.wantedLabelWidth, lastCapsule.wantedLabelWidth)
    readonly property Accent accent: Theme.accentOf(modelData.zone)

    CardHead {
        width: parent.width
        title: root.modelData.name
        detail: root.modelData.detail
        hasSwatch: true
        swatch: root.accent.fill
    }

    Item { width: 1; height: 2 }

    StyledText {
        width: parent.width
        text: root.modelData.sentence
        color: Theme.inkSecondary
    }

    Item { width: 1; height: 8 }

    Capsule {
        id: thisCapsule
        width: parent.width
        labelWidth: root.labelWidth
        label: root.modelData.thisLabel
        value: root.modelData.thisAverage
        perDay: root.modelData.perDay
        fraction: root.modelData.thisFraction
        inside: root.modelData.thisInside
        fill: root.accent.fill
        textOnFill: root.accent.textOnFill
    }

    Item { width: 1; height: 6 }

    Capsule {
        id: lastCapsule
        width: parent.width
        labelWidth: root.labelWidth
        label: root.modelData.lastLabel
        value: root.modelData.lastAverage
        perDay: root.modelData.perDay
        fraction: root.modelData.lastFraction
        inside: root.modelData.lastInside
        fill: root.accent.tint
        textOnFill: Theme.ink
    }
}
