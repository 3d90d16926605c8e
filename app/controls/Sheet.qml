// SPDX-License-Identifier: MIT
// A sheet over everything: slides up from the bottom; in wide windows it stands in the middle. Escape and a tap beside it
// close it.
import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Mivo

T.Popup {
    id: root

    property string title
    default property alias body: column.data

    readonly property bool wide: parent && parent.width >= Theme.twoColumnsWidth
    readonly property real roomAbove: 48
    /// From 0, where it stands open, to 1, where nothing of it is seen. Its place stays bound to the window's size.
    property real away: 0
    readonly property bool fades: wide || Theme.reducedMotion
    /// What had the keys before it opened gets them back, where nothing else has taken them.
    property Item before: null

    onAboutToShow: before = parent.Window.activeFocusItem
    onClosed: {
        const present = parent.Window.activeFocusItem;
        if (before && before.visible && (!present || present === parent.Window.contentItem))
            before.forceActiveFocus();
    }

    parent: T.Overlay.overlay
    spacing: 12
    modal: true
    focus: true
    dim: true
    width: parent ? (wide ? Math.min(480, parent.width - 48) : parent.width) : 390
    height: Math.min(implicitHeight, parent ? parent.height - (wide ? 48 : roomAbove) : implicitHeight)
    implicitHeight: flick.contentHeight + head.height + 20 + (wide ? 24 : 20)
    x: parent ? (parent.width - width) / 2 : 0
    y: parent ? (wide ? (parent.height - height) / 2 : parent.height - height * (fades ? 1 : 1 - away)) : 0
    opacity: fades ? 1 - away : 1
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    T.Overlay.modal: Rectangle {
        color: Theme.scrim

        Behavior on opacity {
            NumberAnimation { duration: Theme.reducedMotion ? 80 : Theme.sheetDuration }
        }
    }

    enter: Transition {
        NumberAnimation {
            property: "away"
            from: 1
            to: 0
            duration: Theme.reducedMotion ? 80 : Theme.sheetDuration
            easing.type: Easing.OutCubic
        }
    }
    exit: Transition {
        NumberAnimation {
            property: "away"
            to: 1
            duration: Theme.reducedMotion ? 80 : Theme.sheetDuration
            easing.type: Easing.OutCubic
        }
    }

    background: Rectangle {
        radius: Theme.sheetRadius
        color: Theme.card

        // Square where it meets the edge of the window.
        Rectangle {
            visible: !root.wide
            anchors.bottom: parent.bottom
            width: parent.width
            height: Theme.sheetRadius
            color: Theme.card
        }

        Rectangle {
            visible: !root.wide
            anchors.horizontalCenter: parent.horizontalCenter
            y: 8
            width: Theme.grabberWidthSize
            height: Theme.grabberHeightSize
            radius: height / 2
            color: Theme.grabber
        }
    }

    // Not made only when the sheet first opens: what a sheet shows is its own from the start.
    readonly property FocusScope content: FocusScope {
        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.name: root.title
        Keys.onPressed: event => scrollKeys.pressed(event)

        ScrollKeys {
            id: scrollKeys
            view: flick
        }

        Item {
            id: head
            x: Theme.pageMargin
            y: root.wide ? 12 : 20
            width: parent.width - 2 * x
            height: Math.max(Theme.touchSize, headline.height)

            WholeWordsText {
                id: headline
                room: width
                anchors.left: parent.left
                anchors.right: closeButton.left
                anchors.verticalCenter: parent.verticalCenter
                text: root.title
                style: Theme.headlineText
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            IconButton {
                id: closeButton
                anchors.right: parent.right
                anchors.rightMargin: -10
                anchors.verticalCenter: parent.verticalCenter
                iconName: "close"
                text: Words.close
                onClicked: root.close()
            }
        }

        Flickable {
            id: flick
            anchors.top: head.bottom
            anchors.topMargin: 4
            anchors.bottom: parent.bottom
            width: parent.width
            contentWidth: width
            contentHeight: column.height
            clip: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: ScrollMark {}

            Column {
                id: column
                x: Theme.pageMargin
                width: flick.width - 2 * x
                bottomPadding: root.wide ? 8 : 4
                spacing: root.spacing
            }
        }
    }

    FocusFollower {
        parent: root.content
        view: flick
    }

    contentItem: content
}
