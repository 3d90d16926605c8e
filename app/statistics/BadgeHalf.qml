// SPDX-License-Identifier: MIT
// The best badge of a family, and how far the next one is.
import QtQuick
import Mivo

Column {
    id: root

    property int family: Badge.Milestone
    property int threshold: 1
    property bool earned: false
    property string number
    property string label
    property string progress
    property real fraction: 0

    Badge {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 88
        height: 88
        family: root.family
        threshold: root.threshold
        count: root.earned ? root.threshold : 0
        number: root.number
        dark: Theme.dark
    }

    Item { width: 1; height: 8 }

    StyledText {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: root.label
        style: Theme.bodyStrongText
    }

    Item { width: 1; height: 6 }

    ProgressTrack {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 112
        fraction: root.fraction
    }

    Item { width: 1; height: 6 }

    StyledText {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: root.progress
        style: Theme.labelText
        color: Theme.inkSecondary
    }
}
