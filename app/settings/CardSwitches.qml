// SPDX-License-Identifier: MIT
// A switch for each of a few cards.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

ListGroup {
    id: root

    required property CardSwitchesModel switches

    Repeater {
        model: root.switches

        delegate: SwitchRow {
            required property int index
            required property string title
            required property string hours
            required property string meaning
            required property bool shown

            text: title
            detail: hours
            accent: meaning
            on: shown
            onClicked: root.switches.toggle(index)
        }
    }
}
