// SPDX-License-Identifier: MIT
// Several lines of text to type.
import QtQuick
import Mivo

Rectangle {
    id: root

    property alias text: edit.text
    property string placeholder
    property string accessibleName: placeholder
    property bool hasProblem: false
    /// What its text needs to be seen whole, or what stands there without one.
    readonly property real wholeHeight: Math.max(edit.implicitHeight, hint.visible ? hint.implicitHeight : 0) + 24

    /// By whoever types, not by whoever sets the text.
    signal edited(string text)

    radius: Theme.controlRadius
    color: Theme.field
    border.width: hasProblem || edit.activeFocus ? 2 : 0
    border.color: hasProblem ? Theme.danger : Theme.focus
    onActiveFocusChanged: {
        if (activeFocus)
            edit.forceActiveFocus();
    }

    Flickable {
        id: flick
        anchors.fill: parent
        anchors.margins: 12
        contentWidth: width
        contentHeight: edit.height
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        TextEdit {
            id: edit
            width: flick.width
            height: Math.max(implicitHeight, flick.height)
            font.family: Theme.textFamily
            font.pixelSize: Theme.bodyText.size * Theme.textScale
            color: Theme.ink
            selectionColor: Theme.fillPressed
            selectedTextColor: Theme.ink
            wrapMode: TextEdit.Wrap
            horizontalAlignment: TextEdit.AlignLeft
            selectByMouse: true
            activeFocusOnTab: true
            Accessible.role: Accessible.EditableText
            Accessible.multiLine: true
            Accessible.name: root.accessibleName
            // Tab leaves the field; no text here needs one.
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            onTextChanged: {
                if (activeFocus)
                    root.edited(text);
            }
            onCursorRectangleChanged: {
                if (cursorRectangle.y < flick.contentY)
                    flick.contentY = cursorRectangle.y;
                else if (cursorRectangle.y + cursorRectangle.height > flick.contentY + flick.height)
                    flick.contentY = cursorRectangle.y + cursorRectangle.height - flick.height;
            }
        }
    }

    StyledText {
        id: hint
        anchors.fill: flick
        visible: edit.text === "" && !edit.preeditText
        clip: true
        text: root.placeholder
        color: Theme.inkTertiary
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
