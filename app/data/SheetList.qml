// SPDX-License-Identifier: MIT
// Lines of a sheet on one quiet surface.
import QtQuick
import Mivo

Rectangle {
    default property alias lines: column.data

    width: parent ? parent.width : 0
    height: column.height
    radius: Theme.controlRadius
    color: Theme.field

    Column {
        id: column
        width: parent.width
    }
}
