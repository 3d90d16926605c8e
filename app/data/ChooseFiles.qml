// SPDX-License-Identifier: MIT
// The system's dialog that chooses files of the user's. A FileChooser loads it when it is first wanted.
import QtQuick
import QtQuick.Dialogs

Item {
    id: root

    property alias title: dialog.title
    property bool takesMany
    readonly property alias files: dialog.selectedFiles

    signal chosen

    function open() {
        dialog.open();
    }

    FileDialog {
        id: dialog
        fileMode: root.takesMany ? FileDialog.OpenFiles : FileDialog.OpenFile
        onAccepted: root.chosen()
    }
}
