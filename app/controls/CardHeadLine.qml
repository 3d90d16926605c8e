// SPDX-License-Identifier: MIT
// A text with another at its trailing side, which drops to the next line where both do not fit.
import QtQuick
import Mivo

Item {
    id: root

    property string title
    property string detail
    property TextStyle titleStyle: Theme.bodyStrongText
    property TextStyle detailStyle: Theme.labelText
    property color detailColor: Theme.inkSecondary
    /// For words that arrive in lower case.
    property int detailCapitalization: Font.MixedCase
    /// Room that something before the title takes.
    property real indent: 0

    readonly property bool stacked: Theme.textScale >= 1.3 || titleText.lineWidth + indent + 12 + detailText.lineWidth > width
    readonly property alias titleHeight: titleText.height

    implicitHeight: stacked && detail !== "" ? titleText.height + detailText.height : titleText.height
    height: implicitHeight

    MeasuredText {
        id: titleText
        anchors.left: parent.left
        anchors.leftMargin: root.indent
        width: Math.min(lineWidth, root.width - root.indent)
        text: root.title
        style: root.titleStyle
    }

    MeasuredText {
        id: detailText
        visible: root.detail !== ""
        readonly property real fromLeading: root.stacked ? 0 : root.width - width

        x: LayoutMirroring.enabled ? root.width - width - fromLeading : fromLeading
        y: root.stacked ? titleText.height : titleText.baselineOffset - baselineOffset
        width: root.stacked ? root.width : lineWidth
        text: root.detail
        style: root.detailStyle
        color: root.detailColor
        font.capitalization: root.detailCapitalization
    }
}
