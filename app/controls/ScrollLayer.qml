// SPDX-License-Identifier: MIT
// Lies over a chart and turns drags and wheels into its scroll position, taps and holds into selections. The chart says
// how far it can scroll.
import QtQuick
import Mivo

Flickable {
    id: root

    property real wantedContentWidth: width
    property bool rightToLeft: false
    /// A held finger drags the selection instead of the chart.
    property bool selectsWhileHeld: false

    readonly property alias scroll: followed.scroll
    readonly property real maxScroll: Math.max(0, contentWidth - width)

    /// Moved by a hand or a wheel, or gliding to its place.
    readonly property bool underway: moving || glide.running

    signal tapped(real x)
    signal touched(real x)
    signal released
    signal menuWanted

    flickableDirection: Flickable.HorizontalFlick
    boundsBehavior: Flickable.StopAtBounds
    contentWidth: Math.max(width, wantedContentWidth)
    contentHeight: height
    interactive: !touch.isHeld

    // No binding: the chart may want another position as soon as it is told of one.
    function follow() {
        followed.scroll = rightToLeft ? maxScroll - contentX : contentX;
    }

    onContentXChanged: follow()
    onMaxScrollChanged: follow()
    onRightToLeftChanged: follow()

    QtObject {
        id: followed
        property real scroll: 0
    }

    function scrollTo(position: real, animated: bool) {
        const x = rightToLeft ? maxScroll - position : position;
        if (Math.abs(x - (glide.running ? glide.to : contentX)) < 0.5)
            return;
        glide.stop();
        if (!animated || Theme.reducedMotion) {
            contentX = x;
            return;
        }
        glide.from = contentX;
        glide.to = x;
        glide.start();
    }

    NumberAnimation {
        id: glide
        target: root
        property: "contentX"
        duration: Theme.segmentDuration
        easing.type: Easing.OutCubic
    }

    MouseArea {
        id: touch

        property bool isHeld: false
        property bool hasMoved: false

        parent: root
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        hoverEnabled: root.selectsWhileHeld
        pressAndHoldInterval: 300
        preventStealing: isHeld
        onPressed: mouse => {
            hasMoved = false;
            if (mouse.button === Qt.RightButton)
                root.menuWanted();
        }
        onClicked: mouse => {
            if (mouse.button === Qt.LeftButton)
                root.tapped(mouse.x);
        }
        onPressAndHold: mouse => {
            isHeld = mouse.button === Qt.LeftButton;
            if (isHeld && root.selectsWhileHeld)
                root.touched(mouse.x);
        }
        onPositionChanged: mouse => {
            hasMoved = true;
            if (root.selectsWhileHeld && (isHeld || !pressed))
                root.touched(mouse.x);
        }
        onReleased: {
            if (isHeld && !hasMoved)
                root.menuWanted();
            else if (isHeld)
                root.released();
            isHeld = false;
        }
        onCanceled: isHeld = false
        onExited: {
            if (root.selectsWhileHeld && !pressed)
                root.released();
        }
    }
}
