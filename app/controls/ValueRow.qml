// SPDX-License-Identifier: MIT
// A row that says a value and leads to where it is changed.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    property string value
    property alias valueCapitalization: words.detailCapitalization
    property string iconName

    width: parent ? parent.width : 0
    implicitHeight: Math.max(Theme.rowSize, contentItem.implicitHeight + topPadding + bottomPadding)
    leftPadding: Theme.cardPadding
    rightPadding: Theme.cardPadding
    topPadding: 13
    bottomPadding: 13
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: value === "" ? text : text + ", " + value
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    background: RowBackground {
        isFirst: root.Positioner.isFirstItem
        isLast: root.Positioner.isLastItem
        pressed: root.down

        FocusRing {
            target: root
            anchors.margins: 2
            targetRadius: Theme.controlRadius
        }
    }

    contentItem: face

    Item {
        id: face

        implicitHeight: words.height

        Icon {
            id: icon
            visible: root.iconName !== ""
            anchors.left: parent.left
            y: words.y + (Theme.bodyText.line * Theme.textScale - height) / 2
            width: Theme.iconInTileSize
            height: Theme.iconInTileSize
            name: root.iconName
            color: Theme.inkSecondary
        }

        CardHeadLine {
            id: words
            readonly property real fromLeading: root.iconName !== "" ? icon.width + 12 : 0

            anchors.left: parent.left
            anchors.leftMargin: fromLeading
            anchors.verticalCenter: parent.verticalCenter
            width: root.availableWidth - fromLeading - 12 - chevron.width
            title: root.text
            titleStyle: Theme.bodyText
            detail: root.value
            detailStyle: Theme.bodyText
        }

        Icon {
            id: chevron
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            name: "chevron"
            color: Theme.inkTertiary
            mirrored: LayoutMirroring.enabled
        }
    }
}
