// SPDX-License-Identifier: MIT
// One segment of a SegmentedControl.
import QtQuick
import Mivo

Item {
    id: root

    required property int index
    required property string modelData
    property bool isChosen: false

    signal tapped

    StyledText {
        anchors.centerIn: parent
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: root.modelData
        font.capitalization: Font.Capitalize
        style: root.isChosen ? Theme.bodyStrongText : Theme.bodyText
        color: root.isChosen ? Theme.ink : Theme.inkSecondary
        wrapMode: Text.NoWrap
        // Large text grows as far as the segments have room.
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: style.size
    }

    TapHandler {
        onTapped: root.tapped()
    }
}
