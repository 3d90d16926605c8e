// SPDX-License-Identifier: MIT
// The running fast in the side bar.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.AbstractButton {
    id: root

    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    padding: 12
    topPadding: 10
    focusPolicy: Qt.StrongFocus
    text: App.fasting.spoken
    Accessible.role: Accessible.Button
    Accessible.name: text

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down ? Theme.fillPressed : Theme.field

        FocusRing { target: root }
    }

    contentItem: Column {
        spacing: 4

        Row {
            spacing: 8

            Swatch {
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.accentOf(App.fasting.zone).fill
            }

            StyledText {
                text: App.fasting.zoneName
                style: Theme.labelText
                color: Theme.inkSecondary
                scaleLimit: 1.3
                wrapMode: Text.NoWrap
            }
        }

        StyledNumber {
            anchors.left: parent.left
            text: App.fasting.duration
            style: Theme.numberSmallText
            scaleLimit: 1.3
            evenDigits: true
        }

        ZoneStrip {
            width: parent.width
            height: 6
            seconds: App.fasting.ringSeconds
            spanSeconds: App.fasting.ringSpan
            fills: Theme.zoneFills
            rest: Theme.fill
            mirrored: LayoutMirroring.enabled
        }

        StyledText {
            width: parent.width
            text: App.fasting.goalText
            style: Theme.labelText
            color: Theme.inkSecondary
            scaleLimit: 1.3
        }
    }
}
