// SPDX-License-Identifier: MIT
// Text whose width may depend on how long it is. Its `implicitWidth` changes with the width and must not.
import QtQuick

StyledText {
    id: root

    /// On one line.
    readonly property real lineWidth: Math.ceil(measured.implicitWidth)

    // Lays out as the text itself does; font metrics say another width, by a point or so.
    Text {
        id: measured
        visible: false
        text: root.text
        font: root.font
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
