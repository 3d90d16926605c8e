// SPDX-License-Identifier: MIT
// What can be done with a fast of the history.
import QtQuick
import Mivo

Sheet {
    id: root

    property int row: -1
    property bool edits: false

    signal editWanted
    signal removeWanted

    title: App.fasting.history.menuTitle
    spacing: 8
    onAboutToShow: edits = false
    // The keys are back at the row by then, and come back there again.
    onClosed: {
        if (edits)
            editWanted();
    }

    ActionButton {
        width: parent.width
        kind: ActionButton.Secondary
        text: App.fasting.history.editLabel
        onClicked: {
            root.edits = true;
            root.close();
        }
    }

    ActionButton {
        width: parent.width
        kind: ActionButton.Destructive
        iconName: "trash"
        text: App.fasting.history.removeLabel
        onClicked: {
            root.close();
            root.removeWanted();
        }
    }
}
