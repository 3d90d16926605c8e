// SPDX-License-Identifier: MIT
// The mark of a line in the legend: a ring or a diamond.
import QtQuick
import Mivo

Rectangle {
    property bool diamond: false
    property color line

    width: diamond ? 8 : 9
    height: width
    radius: diamond ? 0 : width / 2
    rotation: diamond ? 45 : 0
    antialiasing: true
    color: Theme.card
    border.width: 2
    border.color: line
}
