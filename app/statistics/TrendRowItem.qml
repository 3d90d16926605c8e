// SPDX-License-Identifier: MIT
// One zone of the trends: a sentence and two capsules.
import QtQuick
import Mivo

Column {
    id: root

    required property trendCardRecord modelData
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
        text: root.modelData.averageFastTimeRangeText
        color: Theme.inkSecondary
    }

    Item { width: 1; height: 8 }

    Capsule {
        id: thisCapsule
        width: parent.width
        labelWidth: root.labelWidth
        label: root.modelData.thisLabel
        value: root.modelData.thisTimeRangeAvg
        perDay: root.modelData.perDay
        fraction: root.modelData.thisTimeRangeFraction
        inside: root.modelData.thisTimeRangeInsideCapsule
        fill: root.accent.fill
        textOnFill: root.accent.textOnFill
    }

    Item { width: 1; height: 6 }

    Capsule {
        id: lastCapsule
        width: parent.width
        labelWidth: root.labelWidth
        label: root.modelData.lastLabel
        value: root.modelData.lastTimeRangeAvg
        perDay: root.modelData.perDay
        fraction: root.modelData.lastTimeRangeFraction
        inside: root.modelData.lastTimeRangeInsideCapsule
        fill: root.accent.tint
        textOnFill: Theme.ink
    }
}
