// SPDX-License-Identifier: MIT
// Scrolls a page so that what the keyboard has reached is seen.
import QtQuick
import QtQuick.Window
import Mivo

Item {
    id: root

    required property Flickable page

    function isOnPage(item: Item): bool {
        let above = item;
        while (above && above !== page.contentItem)
            above = above.parent;
        return above !== null;
    }

    function show(item: Item) {
        const top = item.mapToItem(page.contentItem, 0, 0).y;
        const lowest = Math.max(0, page.contentHeight - page.height);
        if (top - 16 < page.contentY)
            page.contentY = Math.max(0, top - 16);
        else if (top + item.height + 16 > page.contentY + page.height)
            page.contentY = Math.min(lowest, top + item.height + 16 - page.height);
    }

    Connections {
        target: root.Window.window

        function onActiveFocusItemChanged() {
            const item = root.Window.activeFocusItem;
            if (item && InputMode.keyboard && root.isOnPage(item))
                root.show(item);
        }
    }
}
