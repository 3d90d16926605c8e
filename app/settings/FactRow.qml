// SPDX-License-Identifier: MIT
// A row that says something and leads nowhere.
import QtQuick
import Mivo

Item {
    id: root

    property string title
    property string value

    width: parent ? parent.width : 0
    implicitHeight: Math.max(Theme.rowSize, words.height + 26)
    Accessible.role: Accessible.StaticText
    Accessible.name: title + ", " + value

    RowBackground {
        anchors.fill: parent
        isFirst: root.Positioner.isFirstItem
        isLast: root.Positioner.isLastItem
    }

    CardHeadLine {
        id: words
        x: Theme.cardPadding
        width: parent.width - 2 * x
        anchors.verticalCenter: parent.verticalCenter
        title: root.title
        titleStyle: Theme.bodyText
        detail: root.value
        detailStyle: Theme.bodyText
    }
}
