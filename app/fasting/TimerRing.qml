// SPDX-License-Identifier: MIT
// The ring of the running fast or of the eating window, and inside it what it shows.
import QtQuick
import Mivo

Item {
    id: root

    readonly property bool begun: App.fasting.elapsed !== ""
    /// Of what stands inside the ring, whatever the size of texts.
    readonly property real room: 180 * fit
    readonly property real textLimit: 1.4 * fit
    readonly property real fit: height / 300

    implicitWidth: 300
    implicitHeight: 300

    ZoneRing {
        anchors.fill: parent
        seconds: App.fasting.ringSeconds
        spanSeconds: App.fasting.ringSpan
        marks: App.fasting.marks
        running: !App.fasting.isEating
        fills: Theme.zoneFills
        tints: Theme.zoneTints
        eatingFill: Theme.eating.fill
        eatingTint: Theme.eating.tint
        ink: Theme.ink
        markInk: Theme.inkSecondary
        card: Theme.card
        axisFont: Theme.fontOf(Theme.axisStrongText)
    }

    Column {
        anchors.centerIn: parent
        width: root.room
        spacing: 4

        Row {
            visible: root.begun
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8

            Swatch {
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.accentOf(App.fasting.zone).fill
            }

            WholeWordsText {
                room: root.room - 40
                width: Math.min(lineWidth, room)
                text: App.fasting.zoneName
                style: Theme.bodyStrongText
                mostScale: root.textLimit
            }
        }

        StyledNumber {
            visible: root.begun
            anchors.horizontalCenter: parent.horizontalCenter
            text: App.fasting.elapsed
            style: Theme.timerText
            scaleLimit: (text.length > 8 ? 0.88 : 1.1) * root.fit
            evenDigits: true
        }

        StyledText {
            visible: !root.begun
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: App.fasting.invitation
            style: Theme.headlineText
            scaleLimit: root.textLimit
        }

        StyledText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: root.begun ? App.fasting.goalText : App.fasting.invitationDetail
            style: Theme.labelText
            color: Theme.inkSecondary
            scaleLimit: root.textLimit
        }
    }
}
