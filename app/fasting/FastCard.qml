// SPDX-License-Identifier: MIT
// The fast that runs, or the eating window: the ring, the time in each zone, what can be changed, and the button that
// starts or ends it.
import QtQuick
import Mivo

Card {
    id: root

    readonly property bool stacked: Theme.textScale >= 1.3
    readonly property real tileWidth: stacked || !second.visible ? width - 2 * padding : (width - 2 * padding - 12) / 2

    signal startedWanted
    signal goalWanted

    spacing: 0

    Item {
        width: parent.width
        height: ring.height - 4

        TimerRing {
            id: ring
            width: root.width - 8
            height: Math.min(implicitHeight, width)
            anchors.horizontalCenter: parent.horizontalCenter
            y: -4
        }
    }

    ZoneTimes {
        visible: App.fasting.isRunning
        width: parent.width
        topPadding: 8
        zones: App.fasting.zones
    }

    Item {
        visible: caution.text !== ""
        width: parent.width
        height: caution.height + 12

        CautionLine {
            id: caution
            anchors.bottom: parent.bottom
            width: parent.width
            text: App.fasting.warning
        }
    }

    Item {
        width: parent.width
        height: 16
    }

    Flow {
        width: parent.width
        spacing: 12

        FactTile {
            width: root.tileWidth
            visible: App.fasting.startText !== ""
            height: root.stacked ? implicitHeight : Math.max(implicitHeight, second.implicitHeight)
            label: App.fasting.startLabel
            value: App.fasting.startText
            spoken: App.fasting.startSpoken
            editable: App.fasting.isRunning
            onClicked: root.startedWanted()
        }

        FactTile {
            id: second
            width: App.fasting.startText !== "" ? root.tileWidth : parent.width
            label: App.fasting.goalLabel
            value: App.fasting.goal
            spoken: App.fasting.goalSpoken
            onClicked: root.goalWanted()
        }
    }

    Item {
        width: parent.width
        height: 12
    }

    ActionButton {
        width: parent.width
        large: true
        kind: App.fasting.isRunning ? ActionButton.Secondary : ActionButton.Data
        iconName: App.fasting.isRunning ? "stop" : "play"
        text: App.fasting.button
        onClicked: App.fasting.press()
    }
}
