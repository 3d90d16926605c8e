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
    readonly property real naturalWidth: Math.max(Theme.swatchSize + 6 + Math.ceil(name.implicitWidth), number.implicitWidth)
    /// What all take beside each other. They stand so where there is room for it, else in columns of one width.
    readonly property real total: widthOfAll()
    readonly property bool spread: columns > 1 && columns > grid.children.length - 2 && total + 8 * columns <= grid.width
    readonly property real rest: width - texts.width
    // The first column stands at the leading edge, the last one at the trailing edge.
    readonly property real fromLeading: columns > 1 ? rest * (index % columns) / (columns - 1) : 0

    width: spread ? naturalWidth : grid ? grid.width / columns : 0

    function widthOfAll(): real {
        let sum = 0;
        for (let place = 0; grid && place < grid.children.length; ++place) {
            const item = grid.children[place] as ZoneTimeItem;
            sum += item ? item.naturalWidth : 0;
        }
        return sum;
    }

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
                y: (Theme.captionText.line * Theme.textScale - height) / 2
                color: Theme.accentOf(root.modelData.zone).fill
            }

            StyledText {
                id: name
                text: root.modelData.name
                width: Math.min(Math.ceil(implicitWidth), root.width - Theme.swatchSize - 6)
                style: Theme.captionText
                font.weight: root.modelData.present ? 600 : 400
                color: root.modelData.present ? Theme.ink : Theme.inkSecondary
                Accessible.ignored: true
            }
        }

        StyledNumber {
            id: number
            anchors.left: parent.left
            text: root.modelData.duration
            style: Theme.numberRowText
            evenDigits: root.modelData.present
            Accessible.ignored: true
        }
    }
}
