// SPDX-License-Identifier: MIT
// A card's title with a label at its trailing side.
import QtQuick
import Mivo

CardHeadLine {
    id: root

    property bool hasSwatch: false
    property color swatch: "transparent"

    titleStyle: Theme.headlineText
    indent: hasSwatch ? Theme.swatchSize + 8 : 0
    Accessible.role: Accessible.Heading
    Accessible.name: title

    Swatch {
        visible: root.hasSwatch
        color: root.swatch
        anchors.left: parent.left
        y: (Theme.headlineText.line * Theme.textScale - height) / 2
    }
}
