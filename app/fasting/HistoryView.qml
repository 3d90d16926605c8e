// SPDX-License-Identifier: MIT
// What the head of the history knows of the list that it stands in.
import QtQuick
import Mivo

RowList {
    /// The running fast stands above the rows.
    property bool whole: true

    signal addWanted
    signal monthsWanted
    signal startedWanted
    signal goalWanted
}
