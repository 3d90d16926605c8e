// SPDX-License-Identifier: MIT
// What a chart offers besides looking at it.
import QtQuick
import Mivo

Sheet {
    id: root

    /// The selected value in words; empty without one.
    property string value

    signal tableWanted

    title: root.value === "" ? Words.chart : root.value
    spacing: 8

    ActionButton {
        width: parent.width
        visible: root.value !== ""
        kind: ActionButton.Secondary
        text: Words.copyValue
        onClicked: {
            App.copy(root.value);
            root.close();
        }
    }

    ActionButton {
        width: parent.width
        kind: ActionButton.Secondary
        text: Words.showAsTable
        onClicked: {
            root.close();
            root.tableWanted();
        }
    }
}
