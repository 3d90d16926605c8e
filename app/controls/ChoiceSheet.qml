// SPDX-License-Identifier: MIT
// One choice of a few, below each other. The arrow keys go through them.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Sheet {
    id: root

    required property choiceRecord choice
    /// For words that arrive in lower case.
    property int capitalization: Font.MixedCase

    signal chosen(index: int)

    title: choice.title
    spacing: 0
    onOpened: choices.itemAt(choice.chosen)?.forceActiveFocus()

    Column {
        width: parent.width

        Repeater {
            id: choices
            model: root.choice.options

            delegate: ChoiceRow {
                isChosen: index === root.choice.chosen
                capitalization: root.capitalization
                onClicked: {
                    root.chosen(index);
                    root.close();
                }
                Keys.onUpPressed: choices.itemAt(Math.max(0, index - 1)).forceActiveFocus()
                Keys.onDownPressed: choices.itemAt(Math.min(choices.count - 1, index + 1)).forceActiveFocus()
            }
        }
    }
}
