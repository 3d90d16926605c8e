// SPDX-License-Identifier: MIT
// The system's dialog that chooses files or a folder, loaded when it is first wanted: no page need wait for it.
import QtQuick
import Mivo

Loader {
    id: root

    required property string title
    property bool takesMany: false
    property bool takesFolder: false
    property list<url> files

    signal chosen

    active: false
    visible: false
    source: "qrc:/Mivo/ChooseFiles.qml"
    onLoaded: show()

    function open() {
        if (active)
            show();
        else
            active = true;
    }

    function show() {
        const dialog = item as ChooseFiles;
        dialog.title = title;
        dialog.takesMany = takesMany;
        dialog.takesFolder = takesFolder;
        dialog.open();
    }

    Connections {
        target: root.item as ChooseFiles

        function onChosen() {
            root.files = (root.item as ChooseFiles).files;
            root.chosen();
        }
    }
}
