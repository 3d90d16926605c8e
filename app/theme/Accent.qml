// SPDX-License-Identifier: MIT
// The colours of one meaning.
import QtQuick

QtObject {
    property color fill
    property color text
    property color tint
    /// Text that stands on `fill`.
    property color textOnFill
    property color barTop
    property color barDim
}
