// SPDX-License-Identifier: MIT
// The tabs of wide windows, with the running fast at the foot.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Rectangle {
    id: root

    required property list<string> tabs
    required property list<string> names
    property string chosen

    signal tapped(string tab)

    color: Theme.card

    Rectangle {
        anchors.right: parent.right
        width: Theme.hairlineSize
        height: parent.height
        color: Theme.hairline
    }

    Row {
        id: brand
        anchors.left: parent.left
        anchors.leftMargin: 24
        y: 20
        spacing: 8

        BrandSign {
            anchors.verticalCenter: parent.verticalCenter
            width: 28
            height: 28
        }

        StyledText {
            text: "Mivo"
            style: Theme.sectionText
            font.weight: 700
            scaleLimit: 1.3
            wrapMode: Text.NoWrap
        }
    }

    Column {
        anchors.top: brand.bottom
        anchors.topMargin: 20
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 12
        spacing: 4

        Repeater {
            model: root.tabs

            delegate: TabButton {
                required property int index
                required property string modelData

                width: parent.width
                beside: true
                iconName: modelData
                text: root.names[index]
                chosen: root.chosen === modelData
                onClicked: root.tapped(modelData)
            }
        }
    }

    RunningFastCard {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 12
        anchors.bottomMargin: 20
        visible: App.fasting.isRunning
        onClicked: root.tapped("fasting")
    }
}
