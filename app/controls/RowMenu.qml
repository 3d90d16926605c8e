// SPDX-License-Identifier: MIT
// What can be done with a row of a list.
import QtQuick
import Mivo

Sheet {
    id: root

    property alias editText: edit.text
    property alias removeText: remove.text
    property bool edits: false

    signal editWanted
    signal removeWanted

    spacing: 8
    onAboutToShow: edits = false
    // The keys are back at the row by then, and come back there again.
    onClosed: {
        if (edits)
            editWanted();
    }

    ActionButton {
        id: edit
        width: parent.width
        kind: ActionButton.Secondary
        onClicked: {
            root.edits = true;
            root.close();
        }
    }

    ActionButton {
        id: remove
        width: parent.width
        kind: ActionButton.Destructive
        iconName: "trash"
        onClicked: {
            root.close();
            root.removeWanted();
        }
    }
}
