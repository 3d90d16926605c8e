// SPDX-License-Identifier: MIT
// What failed, until the user has read it; else what was done and can be taken back.
import QtQuick
import Mivo

UndoBar {
    id: root

    readonly property bool failed: App.failure !== ""

    text: failed ? App.failure : App.undoText
    action: failed ? Texts.text("OK") : Texts.text("Undo")
    icon: failed ? "" : "undo"
    passing: !failed
    onUndone: failed ? App.dismissMessages() : App.undo()
    onExpired: App.dismissMessages()
}
