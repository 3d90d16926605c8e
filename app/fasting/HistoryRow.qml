// SPDX-License-Identifier: MIT
// One fast of the history. A tap opens it; a swipe to either side removes it.
import QtQuick
import Mivo

Item {
    id: root

    required property int index
    required property string date
    required property string times
    required property string length
    required property string goal
    required property string note
    required property string overlap
    required property string spoken
    required property real seconds
    required property real goalFraction

    readonly property HistoryView list: ListView.view as HistoryView
    readonly property bool isLast: list !== null && index === list.count - 1
    readonly property bool stacked: Theme.textScale >= 1.3
    readonly property real padding: Theme.cardPadding
    readonly property real inner: width - 2 * padding

    x: list ? list.rowX : 0
    width: list ? list.rowWidth : 0
    implicitHeight: mark.y + mark.height + (remarks.height > 0 ? remarks.height + 8 : 0) + 12
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

        Column {
            id: leading
            anchors.left: parent.left
            anchors.leftMargin: root.padding
            y: 12

            StyledText {
                anchors.left: parent.left
                text: root.date
                style: Theme.bodyStrongText
                wrapMode: Text.NoWrap
            }

            StyledText {
                anchors.left: parent.left
                text: root.times
                style: Theme.labelText
                color: Theme.inkSecondary
                wrapMode: Text.NoWrap
            }
        }

        Column {
            id: trailing
            readonly property real fromLeading: root.stacked ? root.padding : root.width - root.padding - width

            x: LayoutMirroring.enabled ? root.width - width - fromLeading : fromLeading
            y: root.stacked ? leading.y + leading.height + 4 : 12 - (lengthText.height - Theme.bodyStrongText.line * Theme.textScale) / 2

            StyledNumber {
                id: lengthText
                x: root.stacked === LayoutMirroring.enabled ? trailing.width - width : 0
                text: root.length
                style: Theme.numberRowText
                evenDigits: true
            }

            StyledText {
                x: root.stacked === LayoutMirroring.enabled ? trailing.width - width : 0
                text: root.goal
                style: Theme.labelText
                color: Theme.inkSecondary
                wrapMode: Text.NoWrap
            }
        }

        ZoneStrip {
            anchors.left: parent.left
            anchors.leftMargin: root.padding
            anchors.verticalCenter: mark.verticalCenter
            width: root.inner - mark.width - 8
            height: 6
            seconds: root.seconds
            spanSeconds: App.fasting.history.scaleSeconds
            fills: Theme.zoneFills
            mirrored: LayoutMirroring.enabled
        }

        GoalMark {
            id: mark
            anchors.right: parent.right
            anchors.rightMargin: root.padding
            y: (root.stacked ? trailing.y + trailing.height : leading.y + leading.height) + 10
            fraction: root.goalFraction
        }

        Column {
            id: remarks
            anchors.left: parent.left
            anchors.leftMargin: root.padding
            anchors.top: mark.bottom
            anchors.topMargin: 8
            width: root.inner
            spacing: 4

            StyledText {
                visible: text !== ""
                width: parent.width
                text: root.note
                style: Theme.labelText
                color: Theme.inkSecondary
                maximumLineCount: 2
                elide: Text.ElideRight
            }

            CautionLine {
                visible: text !== ""
                width: parent.width
                text: root.overlap
            }
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
