// SPDX-License-Identifier: MIT
// What was done and can be taken back, or what failed.
import QtQuick
import Mivo

UndoBar {
    text: App.undoText !== "" ? App.undoText : App.failure
    action: App.undoText !== "" ? Texts.text("Undo") : Texts.text("OK")
    icon: App.undoText !== "" ? "undo" : ""
    onUndone: App.undoText !== "" ? App.undo() : App.dismissMessages()
    onExpired: App.dismissMessages()
}
