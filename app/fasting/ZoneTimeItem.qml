// SPDX-License-Identifier: MIT
// One zone's name over the time that the fast spent in it.
import QtQuick
import Mivo

Item {
    id: root

    enum Place { Leading, Middle, Trailing }

    required property int index
    required property zoneTime modelData
    property int place: ZoneTimeItem.Leading
    readonly property real rest: width - texts.width
    readonly property real fromLeading: place === ZoneTimeItem.Leading ? 0 : place === ZoneTimeItem.Middle ? rest / 2 : rest

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
