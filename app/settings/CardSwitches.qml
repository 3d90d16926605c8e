// SPDX-License-Identifier: MIT
// A switch for each of a few cards.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

ListGroup {
    id: root

    required property RecordRows switches

    signal toggled(row: int)

    Repeater {
        model: root.switches

        delegate: SwitchRow {
            required property int index
            required property string title
            required property string hours
            required property string meaning
            required property bool isShown

            text: title
            detail: hours
            accent: meaning
            on: isShown
            onClicked: root.toggled(index)
        }
    }
}
