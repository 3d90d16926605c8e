// SPDX-License-Identifier: MIT
// The fast that runs: a ring through its zones, how long, and the button that starts or ends it.
import QtQuick
import Mivo

Flickable {
    id: root

    contentWidth: width
    contentHeight: column.height + Theme.pageMargin

    Column {
        id: column
        x: Math.max(Theme.pageMargin, (root.width - 480) / 2)
        width: root.width - 2 * x
        topPadding: 16
        spacing: 16

        StyledText {
            width: parent.width
            text: Texts.text("Fasting")
            style: Theme.titleText
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        Item {
            width: parent.width
            height: 300

            ZoneRing {
                id: ring
                anchors.horizontalCenter: parent.horizontalCenter
                width: 300
                height: 300
                seconds: App.fasting.seconds
                spanSeconds: App.fasting.spanSeconds
                running: App.fasting.running
                fills: [Theme.anabolic.fill, Theme.catabolic.fill, Theme.fatBurning.fill, Theme.ketosis.fill, Theme.deepKetosis.fill]
                tints: [Theme.anabolic.tint, Theme.catabolic.tint, Theme.fatBurning.tint, Theme.ketosis.tint, Theme.deepKetosis.tint]
                eatingFill: Theme.eating.fill
                eatingTint: Theme.eating.tint
                ink: Theme.ink
                inkTertiary: Theme.inkTertiary
                card: Theme.background
                axisFont: Theme.fontOf(Theme.axisText)
            }

            Column {
                anchors.centerIn: ring
                spacing: 4

                Row {
                    anchors.horizontalCenter: parent.horizontalCenter
                    spacing: 8

                    Swatch {
                        anchors.verticalCenter: parent.verticalCenter
                        color: Theme.accentOf(App.fasting.zone).fill
                    }

                    StyledText {
                        text: App.fasting.zoneName
                        style: Theme.bodyStrongText
                        wrapMode: Text.NoWrap
                    }
                }

                StyledNumber {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: App.fasting.elapsed
                    style: Theme.timerText
                    evenDigits: true
                }

                StyledText {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: App.fasting.goalText
                    style: Theme.labelText
                    color: Theme.inkSecondary
                    wrapMode: Text.NoWrap
                }
            }
        }

        Row {
            width: parent.width
            spacing: 12

            FactTile {
                width: (parent.width - 12) / 2
                visible: App.fasting.running
                label: Texts.text("Started")
                value: App.fasting.startedText
            }

            FactTile {
                width: App.fasting.running ? (parent.width - 12) / 2 : parent.width
                label: Texts.text("Goal")
                value: App.fasting.goalLength
            }
        }

        ActionButton {
            width: parent.width
            large: true
            kind: App.fasting.running ? ActionButton.Primary : ActionButton.Data
            iconName: App.fasting.running ? "stop" : "play"
            text: App.fasting.running ? Texts.text("Stop fast") : Texts.text("Start fast")
            onClicked: App.fasting.running ? App.fasting.stop() : App.fasting.start()
        }
    }
}
