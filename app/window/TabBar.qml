// SPDX-License-Identifier: MIT
// The tabs below the page.
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
        width: parent.width
        height: Theme.hairlineSize
        color: Theme.hairline
    }

    Row {
        anchors.fill: parent

        Repeater {
            model: root.tabs

            delegate: TabButton {
                required property int index
                required property string modelData

                width: root.width / root.tabs.length
                height: root.height
                iconName: modelData
                text: root.names[index]
                chosen: root.chosen === modelData
                onClicked: root.tapped(modelData)
            }
        }
    }
}
