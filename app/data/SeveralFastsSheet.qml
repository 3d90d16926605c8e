// SPDX-License-Identifier: MIT
// Several past fasts at once: lines to type or paste, and what they would bring.
import QtQuick
import Mivo

Sheet {
    id: root

    readonly property SeveralFastsModel page: App.severalFasts

    title: page.title
    spacing: 16

    onAboutToShow: lines.text = ""
    onOpened: lines.forceActiveFocus()

    StyledText {
        width: parent.width
        text: root.page.text
        color: Theme.inkSecondary
        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    TextArea {
        id: lines
        width: parent.width
        height: Math.max(120, Math.min(wholeHeight, 220))
        enabled: !root.page.isBusy
        accessibleName: root.page.fieldLabel
        placeholder: root.page.hint
        onEdited: text => root.page.type(text)
    }

    StyledText {
        visible: text !== ""
        width: parent.width
        text: root.page.summary
        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    StyledText {
        visible: text !== ""
        width: parent.width
        text: root.page.fault
        color: Theme.danger
        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    RefusedList {
        width: parent.width
        title: root.page.refusedTitle
        rows: root.page.refused
        more: root.page.moreRefused
    }

    Column {
        width: parent.width
        spacing: 4

        ActionButton {
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            enabled: root.page.canAdd
            text: root.page.button
            onClicked: root.page.add()
        }

        ActionButton {
            width: parent.width
            leastHeight: Theme.sheetButtonSize
            kind: ActionButton.Plain
            text: root.page.cancelLabel
            onClicked: root.close()
        }
    }
}
