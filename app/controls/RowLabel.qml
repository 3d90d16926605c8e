// SPDX-License-Identifier: MIT
// What a row of a list is about: an icon or the colour of a meaning, a name, and a quieter word behind it.
import QtQuick
import Mivo

Item {
    id: root

    property string text
    property string detail
    property string iconName
    property string accent
    readonly property real indent: iconName !== "" ? icon.width + 12 : accent !== "" ? swatch.width + 12 : 0
    /// What it needs to stand in one line, without the quieter word and with it.
    readonly property real nameWidth: indent + label.lineWidth
    readonly property real wholeWidth: nameWidth + (detail === "" ? 0 : words.spacing + detailText.lineWidth)

    implicitHeight: words.height

    Icon {
        id: icon
        visible: root.iconName !== ""
        anchors.left: parent.left
        y: (Theme.bodyText.line * Theme.textScale - height) / 2
        width: Theme.iconInTileSize
        height: Theme.iconInTileSize
        name: root.iconName
        color: Theme.inkSecondary
    }

    Swatch {
        id: swatch
        visible: root.accent !== ""
        anchors.left: parent.left
        y: (Theme.bodyText.line * Theme.textScale - height) / 2
        color: visible ? Theme.accentOf(root.accent).fill : "transparent"
    }

    Flow {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: root.indent
        anchors.right: parent.right
        spacing: 6

        MeasuredText {
            id: label
            width: Math.min(lineWidth, words.width)
            text: root.text
        }

        Item {
            visible: root.detail !== ""
            width: detailText.width
            height: detailText.y + detailText.height

            MeasuredText {
                id: detailText
                y: label.baselineOffset - baselineOffset
                width: Math.min(lineWidth, words.width)
                text: root.detail
                style: Theme.labelText
                color: Theme.inkSecondary
            }
        }
    }
}
