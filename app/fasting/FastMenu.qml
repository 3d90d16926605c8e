// SPDX-License-Identifier: MIT
// What can be done with a fast of the history.
import QtQuick
import Mivo

Sheet {
    id: root

    property int row: -1

    signal editWanted
    signal removeWanted

    spacing: 8

    ActionButton {
        width: parent.width
        kind: ActionButton.Secondary
        text: Texts.text("Edit fast")
        onClicked: {
            root.close();
            root.editWanted();
        }
    }

    ActionButton {
        width: parent.width
        kind: ActionButton.Destructive
        iconName: "trash"
        text: Texts.text("Delete fast")
        onClicked: {
            root.close();
            root.removeWanted();
        }
    }
}
