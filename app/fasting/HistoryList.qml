// SPDX-License-Identifier: MIT
// The history below its headline, and where there is no room beside it the running fast above that.
import QtQuick
import QtQuick.Templates as T
import Mivo

HistoryView {
    id: root

    model: App.fasting.history
    currentIndex: -1
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    boundsBehavior: Flickable.DragOverBounds
    T.ScrollBar.vertical: ScrollMark {}
    header: HistoryHead {}
    delegate: HistoryRow {}
    footer: Item { height: Theme.pageMargin }

    // The next row takes the place of one that goes, for the keyboard too.
    onRemoveWanted: row => App.fasting.history.remove(row)
    onCountChanged: {
        keyedRow = Math.max(0, Math.min(count - 1, keyedRow));
    }
}
