// SPDX-License-Identifier: MIT
// The system's dialog that chooses the folder of the backups. Loaded when it is first wanted.
import QtQuick
import QtQuick.Dialogs
import Mivo

Item {
    function open() {
        dialog.open();
    }

    FolderDialog {
        id: dialog
        title: App.backups.changeLabel
        onAccepted: App.backups.chooseFolder(selectedFolder)
    }
}
