// SPDX-License-Identifier: MIT
// A rounded surface; its children stand below each other inside the padding.
import QtQuick
import Mivo

Rectangle {
    id: root

    default property alias content: column.data
    property int padding: Theme.cardPadding
    property int bottomPadding: padding
    property alias spacing: column.spacing

    color: Theme.card
    radius: Theme.cardRadius
    implicitHeight: column.implicitHeight + padding + bottomPadding

    Column {
        id: column
        x: root.padding
        y: root.padding
        width: root.width - 2 * root.padding
    }
}
