// SPDX-License-Identifier: MIT
// One of the type styles, in points at a text scale of 1.
import QtQuick

QtObject {
    property string family
    property int size
    property int line
    property int weight
    property real spacing
    /// Of the units beside a number.
    property int unit: 13
}
