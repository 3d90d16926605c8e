// SPDX-License-Identifier: MIT
// The system's dialog that chooses files to bring along. Loaded when it is first wanted.
import QtQuick
import QtQuick.Dialogs
import Mivo

Item {
    function open() {
        dialog.open();
    }

    FileDialog {
        id: dialog
        title: App.importing.title
        fileMode: FileDialog.OpenFiles
        onAccepted: App.importing.choose(selectedFiles)
    }
}
