// SPDX-License-Identifier: MIT
// One tab: icon over name below the page, or beside it in the side bar.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    property string iconName
    property bool chosen: false
    property bool beside: false

    focusPolicy: Qt.StrongFocus
    implicitHeight: beside ? Theme.touchSize : Theme.tabBarSize
    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.selected: chosen

    background: Rectangle {
        color: root.beside && root.chosen ? Theme.fill : "transparent"
        radius: Theme.controlRadius

        FocusRing { target: root }
    }

    contentItem: face

    Item {
        id: face

        Icon {
            id: icon
            x: root.beside ? 12 : (parent.width - width) / 2
            y: root.beside ? (parent.height - height) / 2 : 10
            name: root.iconName === "statistics" && root.chosen ? "statisticsChosen" : root.iconName
            color: root.chosen ? Theme.ink : Theme.inkTertiary
        }

        StyledText {
            x: root.beside ? icon.x + icon.width + 12 : (parent.width - width) / 2
            y: root.beside ? (parent.height - height) / 2 : icon.y + icon.height + 4
            text: root.text
            style: root.beside ? (root.chosen ? Theme.bodyStrongText : Theme.bodyText) : (root.chosen ? Theme.tabOnText : Theme.tabText)
            scaleLimit: 1.3
            color: root.chosen ? Theme.ink : Theme.inkSecondary
            wrapMode: Text.NoWrap
        }
    }
}
