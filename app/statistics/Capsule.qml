// SPDX-License-Identifier: MIT
// One average of a trend row: its label, a bar, and the value inside or after it.
import QtQuick
import Mivo

Item {
    id: root

    property string label
    property string value
    property string perDay
    property real fraction: 0
    property bool inside: false
    property color fill
    property color textOnFill

    /// Of the column that the labels stand in.
    property real labelWidth: Theme.capsuleLabelSize
    readonly property real wantedLabelWidth: labelText.implicitWidth + 8

    // From this text size on the label stands above, and the bar takes the full width.
    readonly property bool stacked: Theme.textScale >= 1.3
    readonly property real capsuleHeight: Math.max(Theme.capsuleSize, valueText.implicitHeight + 8)

    /// A value above its bar that has no room beside the label either gets a line of its own.
    readonly property real valueLine: texts.above && labelText.implicitWidth + 8 + texts.width > width ? texts.height + 2 : 0

    implicitHeight: stacked ? labelText.implicitHeight + 2 + valueLine + capsuleHeight : capsuleHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value + perDay

    StyledText {
        id: labelText
        anchors.left: parent.left
        y: root.stacked ? 0 : (parent.height - height) / 2
        width: root.stacked ? parent.width : root.labelWidth
        text: root.label
        style: Theme.labelText
        color: Theme.inkSecondary
        font.capitalization: Font.MixedCase
        wrapMode: Text.NoWrap
        Accessible.ignored: true
    }

    Item {
        id: track
        anchors.left: parent.left
        anchors.leftMargin: root.stacked ? 0 : root.labelWidth
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: root.capsuleHeight

        Rectangle {
            id: bar
            anchors.left: parent.left
            width: root.fraction > 0 ? Math.max(14, Math.min(1, root.fraction) * track.width) : 0
            height: parent.height
            radius: Math.min(Theme.capsuleRadius, width / 2)
            color: root.fill

            Behavior on width {
                NumberAnimation { duration: Theme.barDuration; easing.type: Easing.OutCubic }
            }
        }

        // It stands inside at the bar's end, or behind it. What is too wide for its bar goes behind too, while there is room.
        Item {
            id: texts
            readonly property bool fitsInside: row.width + 2 * 11 <= bar.width
            readonly property bool fitsBehind: bar.width + 8 + row.width <= track.width
            readonly property bool inside: root.inside && (fitsInside || (!fitsBehind && !root.stacked))
            /// Large text that fits neither way stands beside the label.
            readonly property bool above: root.stacked && !fitsBehind && !(root.inside && fitsInside)
            readonly property real fromLeading: above ? track.width - row.width : inside ? Math.max(11, bar.width - 11 - row.width) : Math.min(bar.width + (root.fraction > 0 ? 8 : 0), track.width - row.width)

            x: root.LayoutMirroring.enabled ? track.width - fromLeading - width : fromLeading
            y: above ? -height - 2 : (parent.height - height) / 2
            width: row.width
            height: row.height

            // Number and unit read from the left in every layout.
            Row {
                id: row
                LayoutMirroring.enabled: false
                spacing: 3

                StyledText {
                    id: valueText
                    text: root.value
                    style: Theme.valueText
                    color: texts.inside ? root.textOnFill : Theme.ink
                    wrapMode: Text.NoWrap
                    Accessible.ignored: true
                }

                StyledText {
                    anchors.baseline: valueText.baseline
                    text: root.perDay
                    style: Theme.captionText
                    font.weight: 500
                    color: valueText.color
                    wrapMode: Text.NoWrap
                    Accessible.ignored: true
                }
            }
        }
    }
}
