// SPDX-License-Identifier: MIT
// The sign of a meaning before its name.
import QtQuick
import Mivo

Rectangle {
    width: Theme.swatchSize
    height: Theme.swatchSize
    radius: Theme.swatchRadius
}
