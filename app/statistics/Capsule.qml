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

    // From this text size on the label stands above, and the bar takes the full width.
    readonly property bool stacked: Theme.textScale >= 1.3
    readonly property real capsuleHeight: Math.max(Theme.capsuleSize, valueText.implicitHeight + 8)

    implicitHeight: stacked ? labelText.implicitHeight + 2 + capsuleHeight : capsuleHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value + perDay

    StyledText {
        id: labelText
        anchors.left: parent.left
        y: root.stacked ? 0 : (parent.height - height) / 2
        width: root.stacked ? parent.width : Theme.capsuleLabelSize
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
        anchors.leftMargin: root.stacked ? 0 : Theme.capsuleLabelSize
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: root.capsuleHeight

        Rectangle {
            id: bar
            anchors.left: parent.left
            width: root.fraction > 0 ? Math.max(14, root.fraction * track.width) : 0
            height: parent.height
            radius: Math.min(Theme.capsuleRadius, width / 2)
            color: root.fill

            Behavior on width {
                NumberAnimation { duration: Theme.barDuration; easing.type: Easing.OutCubic }
            }
        }

        Row {
            id: texts
            anchors.verticalCenter: parent.verticalCenter
            anchors.right: root.inside ? bar.right : undefined
            anchors.rightMargin: 11
            anchors.left: root.inside ? undefined : bar.right
            anchors.leftMargin: root.fraction > 0 ? 8 : 0
            spacing: 3

            StyledText {
                id: valueText
                text: root.value
                style: Theme.valueText
                color: root.inside ? root.textOnFill : Theme.ink
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
