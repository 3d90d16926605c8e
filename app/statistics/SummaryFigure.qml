// SPDX-License-Identifier: MIT
// One number over its label. A column that is too narrow for the number steps down to smaller ones.
import QtQuick
import Mivo

Item {
    id: root

    property string value
    property string label
    /// The sizes that it may have, the largest first.
    property list<TextStyle> styles: [Theme.numberText, Theme.numberSmallText, Theme.numberRowText]
    property bool trailing: false

    readonly property int fitting: {
        for (let size = 0; size < styles.length - 1; ++size)
            if (measures.itemAt(size) && measures.itemAt(size).implicitWidth <= width)
                return size;
        return styles.length - 1;
    }

    implicitHeight: number.height + 2 + caption.height
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value

    Repeater {
        id: measures
        model: root.styles.length

        delegate: StyledNumber {
            required property int index

            visible: false
            text: root.value
            style: root.styles[index]
        }
    }

    StyledNumber {
        id: number
        anchors.left: root.trailing ? undefined : parent.left
        anchors.right: root.trailing ? parent.right : undefined
        text: root.value
        style: root.styles[root.fitting]
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
