// SPDX-License-Identifier: MIT
// One zone's name over the time that the fast spent in it.
import QtQuick
import Mivo

Item {
    id: root

    required property int index
    required property zoneTime modelData
    readonly property Grid grid: parent as Grid
    readonly property int columns: grid ? grid.columns : 1
    readonly property real rest: width - texts.width
    // The first column stands at the leading edge, the last one at the trailing edge.
    readonly property real fromLeading: columns > 1 ? rest * (index % columns) / (columns - 1) : 0

    width: grid ? grid.width / columns : 0
    implicitHeight: texts.height
    Accessible.role: Accessible.StaticText
    Accessible.name: modelData.name + ", " + modelData.duration

    Column {
        id: texts
        x: root.LayoutMirroring.enabled ? root.rest - root.fromLeading : root.fromLeading
        spacing: 0

        Row {
            id: line
            anchors.left: parent.left
            spacing: 6

            Swatch {
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.accentOf(root.modelData.zone).fill
            }

            StyledText {
                text: root.modelData.name
                style: Theme.captionText
                font.weight: root.modelData.present ? 600 : 400
                color: root.modelData.present ? Theme.ink : Theme.inkSecondary
                wrapMode: Text.NoWrap
                Accessible.ignored: true
            }
        }

        StyledNumber {
            anchors.left: parent.left
            text: root.modelData.duration
            style: Theme.numberRowText
            evenDigits: root.modelData.present
            Accessible.ignored: true
        }
    }
}
