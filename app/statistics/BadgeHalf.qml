// SPDX-License-Identifier: MIT
// The best badge of a family, and how far the next one is.
import QtQuick
import Mivo

Column {
    id: root

    property int family: Badge.Milestone
    required property badgeFigureRecord figure

    Badge {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(88, root.width - 8)
        height: width
        family: root.family
        threshold: root.figure.threshold
        count: root.figure.isEarned ? root.figure.threshold : 0
        number: root.figure.number
        dark: Theme.dark
    }

    Item { width: 1; height: 8 }

    StyledText {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: root.figure.label
        style: Theme.bodyStrongText
    }

    Item { width: 1; height: 6 }

    ProgressTrack {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(112, root.width - 16)
        fraction: root.figure.fraction
    }

    Item { width: 1; height: 6 }

    StyledText {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: root.figure.progress
        style: Theme.labelText
        color: Theme.inkSecondary
    }
}
