// SPDX-License-Identifier: MIT
// The system's dialog that names the file for what is taken out. Loaded when it is first wanted.
import QtQuick
import QtQuick.Dialogs
import Mivo

Item {
    id: root

    property int row

    function open(chosenRow: int, fileName: string, ending: string, filter: string) {
        row = chosenRow;
        dialog.nameFilters = [filter];
        dialog.defaultSuffix = ending;
        dialog.selectedFile = App.exporting.proposal(fileName);
        dialog.open();
    }

    FileDialog {
        id: dialog
        title: App.exporting.title
        fileMode: FileDialog.SaveFile
        onAccepted: App.exporting.write(root.row, selectedFile)
    }
}
