// SPDX-License-Identifier: MIT
// One zone's name over the time that the fast spent in it.
import QtQuick
import Mivo

Item {
    id: root

    required property int index
    required property string zone
    required property string name
    required property string duration
    required property string spoken
    required property bool isPresent
    /// Of all, and the width of one; 0 where each is as wide as it needs.
    required property int columns
    required property real columnWidth
    readonly property real naturalWidth: Math.max(Theme.swatchSize + 6 + heading.lineWidth, number.implicitWidth)
    readonly property real rest: width - texts.width
    // The first column stands at the leading edge, the last one at the trailing edge.
    readonly property real fromLeading: columns > 1 ? rest * (index % columns) / (columns - 1) : 0

    width: columnWidth > 0 ? columnWidth : naturalWidth
    implicitHeight: texts.height
    Accessible.role: Accessible.StaticText
    Accessible.name: spoken

    Column {
        id: texts
        x: root.LayoutMirroring.enabled ? root.rest - root.fromLeading : root.fromLeading
        spacing: 0

        Row {
            id: line
            anchors.left: parent.left
            spacing: 6

            Swatch {
                y: (Theme.captionText.line * Theme.textScale - height) / 2
                color: Theme.accentOf(root.zone).fill
            }

            MeasuredText {
                id: heading
                text: root.name
                width: Math.min(lineWidth, root.width - Theme.swatchSize - 6)
                style: Theme.captionText
                font.weight: root.isPresent ? 600 : 400
                color: root.isPresent ? Theme.ink : Theme.inkSecondary
                Accessible.ignored: true
            }
        }

        StyledNumber {
            id: number
            anchors.left: parent.left
            text: root.duration
            style: Theme.numberRowText
            evenDigits: root.isPresent
            Accessible.ignored: true
        }
    }
}
