// SPDX-License-Identifier: MIT
// An idea of the user's, sent by their own mail program or copied.
import QtQuick
import Mivo

Sheet {
    id: root

    title: App.feedback.title
    spacing: 8

    onOpened: idea.forceActiveFocus()

    StyledText {
        width: parent.width
        text: App.feedback.ideaLabel
        style: Theme.labelText
        color: Theme.inkSecondary
    }

    TextArea {
        id: idea
        width: parent.width
        height: 132
        accessibleName: App.feedback.ideaLabel
    }

    StyledText {
        width: parent.width
        topPadding: 4
        text: App.feedback.replyLabel
        style: Theme.labelText
        color: Theme.inkSecondary
    }

    TextField {
        id: reply
        width: parent.width
        placeholder: App.feedback.replyPlaceholder
    }

    StyledText {
        width: parent.width
        text: App.feedback.note
        style: Theme.captionText
        color: Theme.inkSecondary
    }

    ActionButton {
        width: parent.width
        leastHeight: Theme.sheetButtonSize
        text: App.feedback.button
        enabled: App.canSend(idea.text)
        onClicked: {
            App.sendFeedback(idea.text, reply.text);
            root.close();
        }
    }
}
