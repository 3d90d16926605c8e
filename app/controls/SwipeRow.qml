// SPDX-License-Identifier: MIT
// A row of a list of records. A tap opens it; a swipe to either side removes it.
import QtQuick
import Mivo

Item {
    id: root

    required property int index
    required property string spoken

    readonly property RowList list: ListView.view as RowList
    readonly property bool isLast: list !== null && index === list.count - 1
    readonly property real padding: Theme.cardPadding
    readonly property real inner: width - 2 * padding
    default property alias body: content.data

    width: list ? list.rowWidth : 0
    transform: Translate { x: root.list ? root.list.rowX : 0 } // later releases of Qt set x themselves
    clip: content.x !== 0
    Accessible.role: Accessible.ListItem
    Accessible.name: spoken
    Accessible.focusable: true
    Accessible.onPressAction: root.list.editWanted(root.index)

    RowSurface {
        anchors.fill: parent
        roundTop: root.index === 0
        roundBottom: root.isLast
        color: content.x === 0 ? Theme.card : Theme.dangerFill

        Icon {
            visible: content.x !== 0
            x: content.x > 0 ? 24 : root.width - width - 24
            anchors.verticalCenter: parent.verticalCenter
            name: "trash"
            color: Theme.danger
        }
    }

    RowSurface {
        id: content
        width: parent.width
        height: parent.height
        roundTop: root.index === 0
        roundBottom: root.isLast
        color: tap.pressed ? Theme.cardPressed : Theme.card

        Behavior on x {
            enabled: !drag.active
            NumberAnimation { duration: Theme.selectDuration; easing.type: Easing.OutCubic }
        }

        Rectangle {
            visible: root.index > 0
            anchors.right: parent.right
            width: parent.width - root.padding
            height: Theme.hairlineSize
            color: Theme.hairline
        }
    }

    FocusRing {
        target: root
        anchors.margins: 2
        visible: InputMode.keyboard && root.list !== null && root.list.keyed && root.list.keyedRow === root.index
    }

    TapHandler {
        id: tap
        onTapped: root.list.editWanted(root.index)
        onLongPressed: root.list.menuWanted(root.index)
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: root.list.menuWanted(root.index)
    }

    DragHandler {
        id: drag
        target: content
        yAxis.enabled: false
        onActiveChanged: {
            if (active)
                return;
            if (Math.abs(content.x) < root.width / 3) {
                content.x = 0;
                return;
            }
            content.x = content.x > 0 ? root.width : -root.width;
            root.list.removeWanted(root.index);
            back.start();
        }
    }

    // Still there where it could not be removed.
    Timer {
        id: back
        interval: 600
        onTriggered: content.x = 0
    }
}
