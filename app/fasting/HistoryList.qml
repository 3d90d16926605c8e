// SPDX-License-Identifier: MIT
// The history below its headline, and where there is no room beside it the running fast above that.
import QtQuick
import Mivo

HistoryView {
    id: root

    model: App.fasting.history.rows
    header: HistoryHead {}
    delegate: HistoryRow {}
    footer: Item { height: Theme.pageMargin }

    onRemoveWanted: row => App.fasting.history.remove(row)
}
