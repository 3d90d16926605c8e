// SPDX-License-Identifier: MIT
// One fast of the history.
import QtQuick
import Mivo

SwipeRow {
    id: root

    required property string date
    required property string times
    required property string length
    required property string goal
    required property string note
    required property string overlap
    required property real seconds
    required property real goalFraction

    readonly property bool stacked: Theme.textScale >= 1.3

    implicitHeight: mark.y + mark.height + (remarks.height > 0 ? remarks.height + 8 : 0) + 12

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
