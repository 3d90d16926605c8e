// SPDX-License-Identifier: MIT
// One zone of the trends: a sentence and two capsules.
import QtQuick
import Mivo

Column {
    id: root

    required property string zone
    required property string name
    required property string detail
    required property string averageFastTimeRangeText
    required property string perDay
    required property string thisLabel
    required property string thisTimeRangeAvg
    required property real thisTimeRangeFraction
    required property bool thisTimeRangeInsideCapsule
    required property string lastLabel
    required property string lastTimeRangeAvg
    required property real lastTimeRangeFraction
    required property bool lastTimeRangeInsideCapsule
    /// A line parts it from the row above.
    property bool divided: false

    readonly property real labelWidth: Math.max(Theme.capsuleLabelSize, thisCapsule.wantedLabelWidth, lastCapsule.wantedLabelWidth)
    readonly property Accent accent: Theme.accentOf(zone)

    Rectangle {
        visible: root.divided
        width: parent.width
        height: Theme.hairlineSize
        color: Theme.hairline
    }

    Item { visible: root.divided; width: 1; height: 16 }

    CardHead {
        width: parent.width
        title: root.name
        detail: root.detail
        hasSwatch: true
        swatch: root.accent.fill
    }

    Item { width: 1; height: 2 }

    StyledText {
        width: parent.width
        text: root.averageFastTimeRangeText
        color: Theme.inkSecondary
    }

    Item { width: 1; height: 8 }

    Capsule {
        id: thisCapsule
        width: parent.width
        labelWidth: root.labelWidth
        label: root.thisLabel
        value: root.thisTimeRangeAvg
        perDay: root.perDay
        fraction: root.thisTimeRangeFraction
        inside: root.thisTimeRangeInsideCapsule
        fill: root.accent.fill
        textOnFill: root.accent.textOnFill
    }

    Item { width: 1; height: 6 }

    Capsule {
        id: lastCapsule
        width: parent.width
        labelWidth: root.labelWidth
        label: root.lastLabel
        value: root.lastTimeRangeAvg
        perDay: root.perDay
        fraction: root.lastTimeRangeFraction
        inside: root.lastTimeRangeInsideCapsule
        fill: root.accent.tint
        textOnFill: Theme.ink
    }
}
