// SPDX-License-Identifier: MIT
// One number over its label. A column that is too narrow for the number steps down to smaller ones.
import QtQuick
import Mivo

Item {
    id: root

    property string value
    property string label
    /// The sizes that it may have.
    property TextStyle largest: Theme.numberText
    property TextStyle middle: Theme.numberSmallText
    property TextStyle smallest: Theme.numberRowText
    property bool trailing: false

    readonly property TextStyle fitting: inLargest.implicitWidth <= width ? largest : inMiddle.implicitWidth <= width ? middle : smallest

    implicitHeight: number.height + 2 + caption.height
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value

    StyledNumber {
        id: inLargest
        visible: false
        text: root.value
        style: root.largest
    }

    StyledNumber {
        id: inMiddle
        visible: false
        text: root.value
        style: root.middle
    }

    StyledNumber {
        id: number
        anchors.left: root.trailing ? undefined : parent.left
        anchors.right: root.trailing ? parent.right : undefined
        text: root.value
        style: root.fitting
        Accessible.ignored: true
    }

    StyledText {
        id: caption
        anchors.top: number.bottom
        anchors.topMargin: 2
        width: root.width
        horizontalAlignment: root.trailing ? Text.AlignRight : Text.AlignLeft
        text: root.label
        style: Theme.labelText
        color: Theme.inkSecondary
        Accessible.ignored: true
    }
}
