// SPDX-License-Identifier: MIT
// The system's dialogs that choose files of the user's, or a folder. A FileChooser loads it when it is first wanted.
import QtQuick
import QtQuick.Dialogs

Item {
    id: root

    property string title
    property bool takesMany
    property bool takesFolder
    property list<url> files

    signal chosen

    function open() {
        if (takesFolder)
            folderDialog.open();
        else
            fileDialog.open();
    }

    function choose(urls: list<url>) {
        files = urls;
        chosen();
    }

    FileDialog {
        id: fileDialog
        title: root.title
        fileMode: root.takesMany ? FileDialog.OpenFiles : FileDialog.OpenFile
        onAccepted: root.choose(selectedFiles)
    }

    FolderDialog {
        id: folderDialog
        title: root.title
        onAccepted: root.choose([selectedFolder])
    }
}
