// SPDX-License-Identifier: MIT
// Says for a while what was done, and takes it back.
import QtQuick
import Mivo

Rectangle {
    id: root

    property string text
    property string action
    property string icon: "undo"
    /// After which it goes away by itself; 0 where it stays.
    property real seconds
    readonly property bool shown: text !== ""

    signal undone
    signal expired

    visible: opacity > 0
    opacity: shown ? 1 : 0
    height: Math.max(52, message.height + 24)
    radius: Theme.controlRadius
    color: Theme.inverse
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message.text

    Behavior on opacity {
        NumberAnimation { duration: Theme.reducedMotion ? 80 : Theme.selectDuration }
    }

    // The words stay while it fades.
    onTextChanged: {
        if (text !== "")
            message.text = text;
    }

    Timer {
        interval: root.seconds * 1000
        running: root.seconds > 0 && root.shown && !button.activeFocus
        onTriggered: root.expired()
    }

    StyledText {
        id: message
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.right: button.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.textOnInverse
    }

    InverseButton {
        id: button
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        visible: root.action !== ""
        width: visible ? implicitWidth : 0
        iconName: root.icon
        text: root.action
        onClicked: root.undone()
    }
}
