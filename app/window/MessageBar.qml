// SPDX-License-Identifier: MIT
// What failed, until the user has read it; else what was done and can be taken back.
import QtQuick
import Mivo

UndoBar {
    text: App.message.text
    action: App.message.button
    icon: App.message.isFailure ? "" : "undo"
    seconds: App.message.seconds
    onUndone: App.pressMessage()
    onExpired: App.dismissMessages()
}
