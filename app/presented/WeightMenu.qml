// SPDX-License-Identifier: MIT
// What can be done with a row of the weights.
import Mivo

RowMenu {
    title: App.weights.menuTitle
    editText: App.weights.editLabel
    removeText: App.weights.removeLabel
    onEditWanted: App.weights.edit(App.weights.menuRow)
    onRemoveWanted: App.weights.remove(App.weights.menuRow)
}
