// SPDX-License-Identifier: MIT
// An idea of the user's, sent by their own mail program or copied.
import QtQuick
import Mivo

Sheet {
    id: root

    title: Texts.text("Feedback")
    spacing: 8

    onOpened: idea.forceActiveFocus()

    StyledText {
        width: parent.width
        text: Texts.text("Your idea")
        style: Theme.labelText
        color: Theme.inkSecondary
    }

    TextArea {
        id: idea
        width: parent.width
        height: 132
        accessibleName: Texts.text("Your idea")
    }

    StyledText {
        width: parent.width
        topPadding: 4
        text: Texts.text("Reply to (optional)")
        style: Theme.labelText
        color: Theme.inkSecondary
    }

    TextField {
        id: reply
        width: parent.width
        placeholder: Texts.text("E-mail address")
    }

    StyledText {
        width: parent.width
        text: Texts.text("Only what you write here is sent.")
        style: Theme.captionText
        color: Theme.inkSecondary
    }

    ActionButton {
        width: parent.width
        leastHeight: Theme.sheetButtonSize
        text: Texts.text("Send")
        enabled: idea.text.trim() !== ""
        onClicked: {
            App.sendFeedback(idea.text, reply.text);
            root.close();
        }
    }
}
