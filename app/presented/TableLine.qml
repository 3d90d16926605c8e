// SPDX-License-Identifier: MIT
import QtQuick
import Mivo

Item {
    id: root

    property string date
    property string value

    implicitHeight: Math.max(Theme.rowSize, head.height + 24)
    Accessible.role: Accessible.StaticText
    Accessible.name: date + ": " + value

    CardHeadLine {
        id: head
        width: parent.width
        anchors.verticalCenter: parent.verticalCenter
        titleStyle: Theme.bodyText
        title: root.date
        detail: root.value
        detailStyle: Theme.bodyStrongText
        detailColor: Theme.ink
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.hairlineSize
        color: Theme.hairline
    }
}
